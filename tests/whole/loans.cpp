#include "household.h"

#include <gtest/gtest.h>

using namespace whole;

namespace {

struct Loan {
    std::string account, day, amount, repaid, balance, lender, borrower, note;
};

/// Enters a loan by keys along its row. The balance is closed to them; after a click it takes one, which goes into its
/// cell by a click on the bare window.
void enterLoan(Program& program, int row, const Loan& loan) {
    program.clickCell(loans::Grid, row, 5);
    program.type(loan.balance);
    program.click(forms::Main, bareTitle);
    program.clickCell(loans::Grid, row, 1);
    for (const std::string& text : {loan.account, loan.day, loan.amount, loan.repaid})
        enter(program, text);
    program.clickCell(loans::Grid, row, 6);
    for (const std::string& text : {loan.lender, loan.borrower, loan.note})
        enter(program, text);
}

void lendTwice(Program& program) {
    program.click(pages::Loans);
    enterLoan(program, 1, {"现金", "2024-11-2", "800", "795", "5", "王青", "李禾", "买书"});
    program.click(loans::Add);
    enterLoan(program, 2, {"建行", "2024-11-9", "1200.5", "1200.5", "0", "王青", "赵田", "学费"});
    save(program, loans::Save);
}

} // namespace

TEST(Loans, MoneyBorrowedIsEnteredBehindThePictureAndCountedAtTheNextStart) {
    const LedgerFolder folder;
    {
        Program program(folder);
        signIn(program);
        program.click(loans::Picture);
        EXPECT_EQ(program.caption(loans::Page), "借入记录");
        EXPECT_EQ(program.cell(loans::Grid, 0, 3), "借入金额");
        EXPECT_EQ(program.text(loans::Total), "当前借出总额为：0.00元");
        addInVain(program, loans::Add);
        enterLoan(program, 1, {"建行", "2024-11-5", "5000", "4992.5", "7", "张山", "王青", "装修"});
        program.click(loans::Add);
        program.clickCell(loans::Grid, 2, 2);
        pickDay(program, 16);
        waitForRows(program, loans::Grid, {"建行|2024-11-5|5000|4992.5|7|张山|王青|装修", "|2024-11-16||||||"});
        saveInVain(program, loans::Save);
        remove(program, loans::Remove);
        waitForRows(program, loans::Grid, {"建行|2024-11-5|5000|4992.5|7|张山|王青|装修"});
        save(program, loans::Save);
        endByCross(program);
    }
    EXPECT_EQ(folder.rows("select * from jrb"),
              std::vector<std::string>{"建行|2024-11-05|5000|4992.5|7|张山|王青|装修|1"});

    Program program(folder, "2024-11-19 07:10:00");
    signIn(program);
    EXPECT_EQ(program.text(desktop::Borrowed), "5000.00元");
    program.click(loans::Picture);
    EXPECT_EQ(rows(program, loans::Grid), std::vector<std::string>{"建行|2024-11-5|5000|4992.5|7|张山|王青|装修"});
    EXPECT_EQ(program.text(loans::Total), "当前借入总额为：5000.00元 ");
    endByCross(program);
}

TEST(Loans, MoneyLentShowsWhatIsRepaidAndWhatIsLeft) {
    const LedgerFolder folder;
    {
        Program program(folder);
        signIn(program);
        lendTwice(program);
        EXPECT_EQ(program.caption(loans::Page), "借出表");
        EXPECT_EQ(program.cell(loans::Grid, 0, 3), "借出金额");
        EXPECT_EQ(program.text(loans::Total), "当前借出总额为：0.00元"); // of the opening
        program.click(loans::Borrowed);
        EXPECT_EQ(rows(program, loans::Grid), std::vector<std::string>{"|||||||"});
        program.click(loans::Lent);
        EXPECT_EQ(program.text(loans::Total), "当前借出总额为：2000.50元 ，已还金额为：1995.50 元，目前余额为5.00 元");
        endByCross(program);
    }
    EXPECT_EQ(folder.rows("select * from jcb"),
              (std::vector<std::string>{"现金|2024-11-02|800|795|5|王青|李禾|买书|1",
                                        "建行|2024-11-09|1200.5|1200.5|0|王青|赵田|学费|2"}));
    EXPECT_EQ(folder.rows("select count(*) from jrb"), std::vector<std::string>{"0"});

    Program program(folder);
    signIn(program);
    EXPECT_EQ(program.text(desktop::Lent), "2000.50元");
    program.click(pages::Loans);
    EXPECT_EQ(rows(program, loans::Grid), (std::vector<std::string>{"现金|2024-11-2|800|795|5|王青|李禾|买书",
                                                                    "建行|2024-11-9|1200.5|1200.5|0|王青|赵田|学费"}));
    endByCross(program);
}

TEST(Loans, ABalanceTakesOneKeyAndAmountsTheCalculator) {
    const LedgerFolder folder;
    Program program(folder);
    signIn(program);
    program.click(pages::Loans);
    program.drag(forms::Main, bareTitle, {0, 600}); // so low that there is no room for a calculator below a cell
    program.clickCell(loans::Grid, 1, 3);
    program.waitForKeyboard(forms::Calculator);
    program.waitUntil(
        [&] { return program.place(forms::Calculator).bottom() < program.cellPlace(loans::Grid, 1, 3).top(); },
        "the calculator above its cell");
    EXPECT_FALSE(program.get(loans::Box, "enabled").toBool());
    reckon(program, "1000+250");
    program.click(loans::Box); // Enter has walked on to where an amount can be typed, too
    program.waitForKeyboard(forms::Calculator);
    program.type("250");
    program.close(forms::Calculator); // by its window button, which hands the number over as Enter does
    program.waitForKeyboard(forms::Main);
    program.key("Return");
    EXPECT_FALSE(program.get(loans::Box, "enabled").toBool()); // Enter has reached the balance
    program.type("1000");
    EXPECT_EQ(program.text(loans::Box), "");

    program.click(loans::Box); // the closed box goes, and the cell can be clicked
    EXPECT_FALSE(program.shows(loans::Box));
    program.clickCell(loans::Grid, 1, 5);
    program.type("1000");
    EXPECT_EQ(program.text(loans::Box), "1");
    waitForRows(program, loans::Grid, {"||1250|250||||"});
    program.click(forms::Main, bareTitle);
    waitForRows(program, loans::Grid, {"||1250|250|1|||"});
    endByCross(program);
}

TEST(Loans, TheFirstLoanDeletedLeavesABlankRowThatHasToBeFilled) {
    const LedgerFolder folder;
    Program program(folder);
    signIn(program);
    lendTwice(program);
    program.clickCell(loans::Grid, 1, 1);
    remove(program, loans::Remove, "取消");
    EXPECT_EQ(program.cell(loans::Grid, 1, 1), "现金");
    remove(program, loans::Remove);
    waitForRows(program, loans::Grid, {"|||||||", "建行|2024-11-9|1200.5|1200.5|0|王青|赵田|学费"});
    EXPECT_EQ(folder.rows("select 账户, 区别 from jcb"), std::vector<std::string>{"建行|2"});

    saveInVain(program, loans::Save);
    EXPECT_EQ(folder.rows("select 账户, 区别 from jcb"), std::vector<std::string>{"建行|2"});
    enterLoan(program, 1, {"工行", "2024-11-18", "60", "51", "9", "王青", "孙麦", ""});
    save(program, loans::Save);
    endByCross(program);
    EXPECT_EQ(folder.rows("select 账户, 借出金额, 余额, 备注, 区别 from jcb"),
              (std::vector<std::string>{"工行|60|9||1", "建行|1200.5|0|学费|2"}));
}

TEST(Loans, AnAmountInWordsEndsTheProgramAndTheRowsBeforeItStay) {
    const LedgerFolder folder;
    {
        Program program(folder);
        signIn(program);
        lendTwice(program);
        program.clickCell(loans::Grid, 2, 2);
        program.key("Return");
        enter(program, "一千二");
        program.click(loans::Save);
        expectErrorWindow(program, "一千二");
    }
    EXPECT_EQ(folder.rows("select 账户, 借出金额, 区别 from jcb"), std::vector<std::string>{"现金|800|1"});

    Program program(folder);
    signIn(program);
    program.click(pages::Loans);
    EXPECT_EQ(rows(program, loans::Grid), std::vector<std::string>{"现金|2024-11-2|800|795|5|王青|李禾|买书"});
    endByCross(program);
}
