#include "household.h"

#include <gtest/gtest.h>

using namespace whole;

namespace {

const std::string budget = "Form2/ms6", month = "Form2/ms2";

/// Enters a row of the income or the expense page, by keys and the calculator.
void enterRecord(Program& program, int row, const std::vector<std::string>& upToPerson, const std::string& amount,
                 const std::string& account) {
    program.clickCell(month, row, 1);
    for (const std::string& text : upToPerson)
        enter(program, text);
    reckon(program, amount);
    fillCell(program, month, row, 6, account);
}

void expectEditing(Program& program, bool possible) {
    for (const char* control : {"Form2/Command4", "Form2/Command5", "Form2/Command6", "Form2/ms2"})
        EXPECT_EQ(program.get(control, "enabled").toBool(), possible) << control;
}

} // namespace

TEST(Budget, IsPlannedWithPickerAndCalculatorAndSummedUpOnTheDesktop) {
    const LedgerFolder folder;
    {
        Program program(folder);
        signIn(program);
        EXPECT_EQ(program.text("Form2/Label33"), "0.00元");
        program.click("Form2/Label5");
        program.clickCell(budget, 1, 1);
        pickDay(program, 5);
        fillCell(program, budget, 1, 2, "买菜");
        reckon(program, "35*30");
        program.clickCell(budget, 1, 4);
        program.type("每天三十五");
        program.click("Form2/Command16"); // adds a row, and takes the box over without Enter
        waitForRows(program, budget, {"2024-11-5|买菜| 1050|每天三十五", "|||"});
        addInVain(program, "Form2/Command16");
        fillCell(program, budget, 2, 1, "2024-11-20");
        EXPECT_EQ(program.windows(), std::vector<std::string>{"Form2"}); // Enter has put the picker away
        enter(program, "电费");
        reckon(program, "99.5");
        save(program, "Form2/Command18");
        program.click("Form2/Label6");
        program.click("Form2/Label5");
        EXPECT_EQ(rows(program, budget),
                  (std::vector<std::string>{"2024-11-5|买菜|1050|每天三十五", "2024-11-20|电费|99.5|"}));
        endByCross(program);
    }
    EXPECT_EQ(folder.rows("select * from ysb"),
              (std::vector<std::string>{"2024-11-05|买菜|1050|每天三十五|1", "2024-11-20|电费|99.5||2"}));
    Program program(folder, "2024-11-19 07:10:00");
    signIn(program);
    EXPECT_EQ(program.text("Form2/Label33"), "1149.50元");
    program.click("Form2/Label5");
    EXPECT_EQ(program.cell(budget, 1, 4), "每天三十五");
    endByCross(program);
}

TEST(Budget, ADeletedRowIsGoneAtOnceAndAGapIsNotSaved) {
    const LedgerFolder folder;
    folder.execute("insert into ysb values('2024-11-05', '买菜', 1050, '', 1), ('2024-11-05', '买菜', 900, '', 2)");
    Program program(folder);
    signIn(program);
    EXPECT_EQ(program.text("Form2/Label33"), "1950.00元");
    program.click("Form2/Label5");
    program.clickCell(budget, 1, 2);
    remove(program, "Form2/Command17", "取消");
    EXPECT_EQ(rows(program, budget).size(), 2U);
    remove(program, "Form2/Command17");
    waitForRows(program, budget, {"2024-11-5|买菜|900|"});
    EXPECT_EQ(folder.rows("select 预算金额, 区别 from ysb"), std::vector<std::string>{"900|2"});
    program.clickCell(budget, 1, 2);
    remove(program, "Form2/Command17");
    waitForRows(program, budget, {"|||"});
    saveInVain(program, "Form2/Command18");
    EXPECT_EQ(folder.rows("select count(*) from ysb"), std::vector<std::string>{"0"});
    endByCross(program);
}

TEST(Month, IsReportedByItemAndByPersonWhileTheListIsClosed) {
    const LedgerFolder folder;
    folder.execute("insert into srb values('9', '2024-10-30', '工资', '王青', 7000, '建行', '', 1)");
    Program program(folder);
    signIn(program);
    program.click("Form2/Label2(0)");
    for (const auto& [row, person, item, amount] :
         {std::tuple{2, "王青", "工资", "8000"}, {3, "李禾", "稿费", "99.5"}, {4, "李禾", "工资", "6000"}}) {
        program.click("Form2/Command4");
        enterRecord(program, row, {"00" + std::to_string(row), "2024-11-15", item, person}, amount, "建行");
    }
    save(program, "Form2/Command6");
    program.click("Form2/Label2(0)"); // the report knows what was saved when its page was opened
    program.click("Form2/Option8");
    EXPECT_EQ(program.text("Form2/Label10"), "本月收入总额为：14099.50元");
    EXPECT_EQ(rows(program, month), (std::vector<std::string>{"工资|14000.00", "稿费|99.50"}));
    expectEditing(program, false);
    program.click("Form2/Option9");
    EXPECT_EQ(program.text("Form2/Label10"), "本月人员收入总额为：14099.50元");
    EXPECT_EQ(rows(program, month),
              (std::vector<std::string>{"李禾|工资|6000.00", "王青|工资|8000.00", "李禾|稿费|99.50"}));
    expectEditing(program, false);
    program.click("Form2/Option7");
    EXPECT_EQ(program.text("Form2/Label10"), "当前收入总额为：21099.50元");
    EXPECT_EQ(rows(program, month).size(), 4U);
    EXPECT_EQ(rows(program, month)[0], "9|2024-10-30|工资|王青|7000|建行|");
    expectEditing(program, true);
    endByCross(program);
}

TEST(Month, OfExpenseIsReportedFromItsOwnSide) {
    const LedgerFolder folder;
    {
        Program program(folder);
        signIn(program);
        program.click("Form2/Label2(1)");
        enterRecord(program, 1, {"1", "2024-11-3", "买菜", "李禾"}, "45.8", "现金");
        save(program, "Form2/Command6");
        program.click("Form2/Option8");
        EXPECT_EQ(program.text("Form2/Label10"), "本月支出总额为："); // as the page was opened
        endByCross(program);
    }
    Program program(folder, "2024-11-19 07:10:00");
    signIn(program);
    EXPECT_EQ(program.text("Form2/Label32"), "45.80元");
    program.click("Form2/Label2(1)");
    program.click("Form2/Option9");
    EXPECT_EQ(program.cell(month, 0, 1), "付款人");
    EXPECT_EQ(program.cell(month, 0, 3), "本月消费总额");
    EXPECT_EQ(rows(program, month), std::vector<std::string>{"李禾|买菜|45.80"});
    program.click("Form2/Label2(0)");
    program.click("Form2/Option9");
    EXPECT_EQ(program.text("Form2/Label10"), "本月人员收入总额为：");
    expectEditing(program, false);
    endByCross(program);
}
