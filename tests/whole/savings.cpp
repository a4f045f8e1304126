#include "household.h"

#include <gtest/gtest.h>

using namespace whole;

namespace {

/// Walks along an account's row: the starting amount is reckoned, the others are typed and left with Enter.
void walk(Program& program, int row, const std::string& name, const std::string& start,
          const std::vector<std::string>& amounts) {
    fillCell(program, accounts::Grid, row, 1, name);
    reckon(program, start);
    for (const std::string& amount : amounts)
        enter(program, amount);
}

/// The columns that these stories tell of; others may stand beside them.
const std::vector<std::string> captions{"账户名称", "起始金额", "收入", "支出", "借入",
                                        "借出",     "转入",     "转出", "余额", "备注信息"};
constexpr int balanceColumn = 9;

std::string balance(Program& program, int row = 1) {
    return program.cell(accounts::Grid, row, balanceColumn);
}

std::vector<std::string> accountsShown(Program& program) {
    return rows(program, accounts::Grid, captions);
}

} // namespace

TEST(Savings, AWalkAlongTheRowReckonsTheBalance) {
    const LedgerFolder folder;
    {
        Program program(folder);
        signIn(program);
        program.click(pages::Accounts);
        addInVain(program, accounts::Add);
        walk(program, 1, "工资卡", "800+200", {"300", "100", "0", "0", "60.5", "10"});
        EXPECT_EQ(balance(program), " 1250.5");
        EXPECT_FALSE(program.get(accounts::Box, "enabled").toBool()); // Enter has reached the balance
        fillGaps(program, accounts::Grid, 1);
        fillCell(program, accounts::Grid, 1, column(program, accounts::Grid, "备注信息"), "每月发");
        EXPECT_FALSE(program.shows(accounts::Box));
        EXPECT_EQ(accountsShown(program), std::vector<std::string>{"工资卡|1000|300|100|0|0|60.5|10| 1250.5|每月发"});
        save(program, accounts::Save);
        program.click(pages::Budget);
        EXPECT_FALSE(program.shows(accounts::Page));
        program.click(pages::Accounts);
        EXPECT_EQ(accountsShown(program), std::vector<std::string>{"工资卡|1000|300|100|0|0|60.5|10|1250.5|每月发"});
        endByCross(program);
    }
    EXPECT_EQ(folder.rows("select 账户名称,起始金额,收入,支出,借入,借出,转入,转出,余额,备注信息,区别 from zhb"),
              std::vector<std::string>{"工资卡|1000|300|100|0|0|60.5|10|1250.5|每月发|1"});

    Program program(folder);
    signIn(program);
    program.click(pages::Accounts);
    EXPECT_EQ(accountsShown(program), std::vector<std::string>{"工资卡|1000|300|100|0|0|60.5|10|1250.5|每月发"});
    endByCross(program);
}

TEST(Savings, LeavingAFilledAmountAgainCountsItTwiceUntilTheStartIsLeftAgain) {
    const LedgerFolder folder;
    Program program(folder);
    signIn(program);
    program.click(pages::Accounts);
    walk(program, 1, "存折", "100", {"20"});
    EXPECT_EQ(balance(program), " 120");

    program.clickCell(accounts::Grid, 1, 3);
    reckon(program, "20");
    program.waitUntil([&] { return balance(program) == " 140"; }, "the balance counted twice");
    program.clickCell(accounts::Grid, 1, 2);
    reckon(program, "100");
    enter(program, "20");
    enter(program, "150");
    EXPECT_EQ(balance(program), "-30");
    saveInVain(program, accounts::Save);
    EXPECT_EQ(folder.rows("select count(*) from zhb"), std::vector<std::string>{"0"});
    endByCross(program);
}

TEST(Savings, AnAccountDeletedIsGoneAtOnceAndOneThatWasNotSavedOnlyFromTheList) {
    const LedgerFolder folder;
    folder.execute("insert into zhb(账户名称,起始金额,收入,支出,借入,借出,转入,转出,余额,备注信息,区别) "
                   "values('工资卡', 1000, 0, 0, 0, 0, 0, 0, 1000, '', 1), "
                   "('存折', 200, 0, 0, 0, 0, 0, 0, 200, '', 2)");
    Program program(folder);
    signIn(program);
    program.click(pages::Accounts);
    program.clickCell(accounts::Grid, 2, 1);
    program.click(accounts::Add);
    fillCell(program, accounts::Grid, 3, 1, "零钱");
    program.waitForKeyboard(forms::Calculator); // Enter has come to the starting amount
    remove(program, accounts::Remove);
    program.waitUntil([&] { return accountsShown(program).size() == 2; }, "the row to go");
    EXPECT_EQ(folder.rows("select 账户名称 from zhb"), (std::vector<std::string>{"工资卡", "存折"}));

    program.clickCell(accounts::Grid, 1, 1);
    remove(program, accounts::Remove);
    program.waitUntil([&] { return accountsShown(program) == std::vector<std::string>{"存折|200|0|0|0|0|0|0|200|"}; },
                      "the row that is left");
    EXPECT_EQ(folder.rows("select 账户名称, 区别 from zhb"), std::vector<std::string>{"存折|2"});
    endByCross(program);
}

TEST(Savings, AnAmountWithItsUnitEndsTheProgramAndTheRowsBeforeItStay) {
    const LedgerFolder folder;
    folder.execute("insert into zhb(账户名称,起始金额,收入,支出,借入,借出,转入,转出,余额,备注信息,区别) "
                   "values('工资卡', 1000, 0, 0, 0, 0, 0, 0, 1000, '', 1)");
    {
        Program program(folder);
        signIn(program);
        program.click(pages::Accounts);
        program.clickCell(accounts::Grid, 1, 1);
        program.click(accounts::Add);
        walk(program, 2, "存折", "200", {"50元", "0", "0", "0", "0", "0"});
        EXPECT_EQ(balance(program, 2), " 250"); // the balance takes the leading number
        fillGaps(program, accounts::Grid, 2);
        program.click(accounts::Save);
        expectErrorWindow(program, "50元");
    }
    EXPECT_EQ(folder.rows("select 账户名称, 余额 from zhb"), std::vector<std::string>{"工资卡|1000"});
    Program program(folder);
    signIn(program);
    program.click(pages::Accounts);
    EXPECT_EQ(accountsShown(program), std::vector<std::string>{"工资卡|1000|0|0|0|0|0|0|1000|"});
    endByCross(program);
}
