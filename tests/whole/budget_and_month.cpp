#include "household.h"

#include <gtest/gtest.h>

using namespace whole;

namespace {

/// Enters a row of the income or the expense page, by keys and the calculator.
void enterRecord(Program& program, int row, const std::vector<std::string>& upToPerson, const std::string& amount,
                 const std::string& account) {
    program.clickCell(income::Grid, row, 1);
    for (const std::string& text : upToPerson)
        enter(program, text);
    reckon(program, amount);
    enter(program, account);
}

void expectEditing(Program& program, bool possible) {
    for (const std::string& control : std::vector<std::string>{income::Add, income::Remove, income::Save, income::Grid})
        EXPECT_EQ(program.get(control, "enabled").toBool(), possible) << control;
}

} // namespace

TEST(Budget, IsPlannedWithPickerAndCalculatorAndSummedUpOnTheDesktop) {
    const LedgerFolder folder;
    {
        Program program(folder);
        signIn(program);
        EXPECT_EQ(program.text(desktop::Budget), "0.00元");
        program.click(pages::Budget);
        program.clickCell(budget::Grid, 1, 1);
        pickDay(program, 5);
        fillCell(program, budget::Grid, 1, 2, "买菜");
        reckon(program, "35*30");
        program.type("每天三十五");
        program.click(budget::Add); // adds a row, and takes the box over without Enter
        waitForRows(program, budget::Grid, {"2024-11-5|买菜| 1050|每天三十五", "|||"});
        addInVain(program, budget::Add);
        fillCell(program, budget::Grid, 2, 1, "2024-11-20");
        EXPECT_EQ(program.windows(), std::vector<std::string>{forms::Main}); // Enter has put the picker away
        enter(program, "电费");
        reckon(program, "99.5");
        save(program, budget::Save);
        program.click(pages::Accounts);
        program.click(pages::Budget);
        EXPECT_EQ(rows(program, budget::Grid),
                  (std::vector<std::string>{"2024-11-5|买菜|1050|每天三十五", "2024-11-20|电费|99.5|"}));
        endByCross(program);
    }
    EXPECT_EQ(folder.rows("select * from ysb"),
              (std::vector<std::string>{"2024-11-05|买菜|1050|每天三十五|1", "2024-11-20|电费|99.5||2"}));
    Program program(folder, "2024-11-19 07:10:00");
    signIn(program);
    EXPECT_EQ(program.text(desktop::Budget), "1149.50元");
    program.click(pages::Budget);
    EXPECT_EQ(program.cell(budget::Grid, 1, 4), "每天三十五");
    endByCross(program);
}

TEST(Budget, ADeletedRowIsGoneAtOnceAndAGapIsNotSaved) {
    const LedgerFolder folder;
    folder.execute("insert into ysb values('2024-11-05', '买菜', 1050, '', 1), ('2024-11-05', '买菜', 900, '', 2)");
    Program program(folder);
    signIn(program);
    EXPECT_EQ(program.text(desktop::Budget), "1950.00元");
    program.click(pages::Budget);
    program.clickCell(budget::Grid, 1, 2);
    remove(program, budget::Remove, "取消");
    EXPECT_EQ(rows(program, budget::Grid).size(), 2U);
    remove(program, budget::Remove);
    waitForRows(program, budget::Grid, {"2024-11-5|买菜|900|"});
    EXPECT_EQ(folder.rows("select 预算金额, 区别 from ysb"), std::vector<std::string>{"900|2"});
    program.clickCell(budget::Grid, 1, 2);
    remove(program, budget::Remove);
    waitForRows(program, budget::Grid, {"|||"});
    saveInVain(program, budget::Save);
    EXPECT_EQ(folder.rows("select count(*) from ysb"), std::vector<std::string>{"0"});
    endByCross(program);
}

TEST(Month, IsReportedByItemAndByPersonWhileTheListIsClosed) {
    const LedgerFolder folder;
    folder.execute("insert into srb values('9', '2024-10-30', '工资', '王青', 7000, '建行', '', 1)");
    Program program(folder);
    signIn(program);
    program.click(pages::Income);
    for (const auto& [row, person, item, amount] :
         {std::tuple{2, "王青", "工资", "8000"}, {3, "李禾", "稿费", "99.5"}, {4, "李禾", "工资", "6000"}}) {
        program.click(income::Add);
        enterRecord(program, row, {"00" + std::to_string(row), "2024-11-15", item, person}, amount, "建行");
    }
    save(program, income::Save);
    program.click(pages::Income); // the report knows what was saved when its page was opened
    program.click(income::ByItem);
    EXPECT_EQ(program.text(income::Total), "本月收入总额为：14099.50元");
    EXPECT_EQ(rows(program, income::Grid), (std::vector<std::string>{"工资|14000.00", "稿费|99.50"}));
    expectEditing(program, false);
    program.click(income::ByPerson);
    EXPECT_EQ(program.text(income::Total), "本月人员收入总额为：14099.50元");
    EXPECT_EQ(rows(program, income::Grid),
              (std::vector<std::string>{"李禾|工资|6000.00", "王青|工资|8000.00", "李禾|稿费|99.50"}));
    expectEditing(program, false);
    program.click(income::Records);
    EXPECT_EQ(program.text(income::Total), "当前收入总额为：21099.50元");
    EXPECT_EQ(rows(program, income::Grid).size(), 4U);
    EXPECT_EQ(rows(program, income::Grid)[0], "9|2024-10-30|工资|王青|7000|建行|");
    expectEditing(program, true);
    endByCross(program);
}

TEST(Month, OfExpenseIsReportedFromItsOwnSide) {
    const LedgerFolder folder;
    {
        Program program(folder);
        signIn(program);
        program.click(pages::Expense);
        enterRecord(program, 1, {"1", "2024-11-3", "买菜", "李禾"}, "45.8", "现金");
        save(program, income::Save);
        program.click(income::ByItem);
        EXPECT_EQ(program.text(income::Total), "本月支出总额为："); // as the page was opened
        endByCross(program);
    }
    Program program(folder, "2024-11-19 07:10:00");
    signIn(program);
    EXPECT_EQ(program.text(desktop::Expense), "45.80元");
    program.click(pages::Expense);
    program.click(income::ByPerson);
    EXPECT_EQ(program.cell(income::Grid, 0, 1), "付款人");
    EXPECT_EQ(program.cell(income::Grid, 0, 3), "本月消费总额");
    EXPECT_EQ(rows(program, income::Grid), std::vector<std::string>{"李禾|买菜|45.80"});
    program.click(pages::Income);
    program.click(income::ByPerson);
    EXPECT_EQ(program.text(income::Total), "本月人员收入总额为：");
    expectEditing(program, false);
    endByCross(program);
}
