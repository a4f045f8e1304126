#include "household.h"

#include <gtest/gtest.h>

using namespace whole;

namespace {

const std::string majors = "Form2/ms3", minors = "Form2/ms4";
const std::string incomeTable = "select * from srflb", expenseTable = "select * from zcflb";

void openCategories(Program& program) {
    program.click("Form2/Label7");
    program.click("Form2/Command31");
    program.waitUntil([&] { return program.shows("Form2/Frame3"); }, "the categories");
}

/// A ledger with two majors of income and one of expense.
void store(const LedgerFolder& folder) {
    folder.execute("delete from srflb; delete from zcflb;"
                   "insert into srflb values('工资', '奖金', 'jj'), ('工资', '津贴', 'jt'), ('租金', '车位', 'cw');"
                   "insert into zcflb values('餐饮', '买菜', 'mc')");
}

using Rows = std::vector<std::string>;

} // namespace

TEST(Categories, AreReachedBySettingsAndLeftByAnyLabel) {
    const LedgerFolder folder;
    store(folder);
    Program program(folder);
    signIn(program);
    openCategories(program);
    EXPECT_EQ(rows(program, majors), (Rows{"工资", "租金"}));
    EXPECT_FALSE(program.get(minors, "enabled").toBool());
    program.clickCell(majors, 1, 1);
    EXPECT_EQ(rows(program, minors), (Rows{"奖金|jj", "津贴|jt"}));
    EXPECT_TRUE(program.get(minors, "enabled").toBool());

    program.click("Form2/Option4");
    EXPECT_EQ(program.cell(majors, 0, 1), "消费大类");
    EXPECT_EQ(rows(program, majors), Rows{"餐饮"});
    EXPECT_FALSE(program.get("Form2/Command12", "enabled").toBool());
    program.clickCell(majors, 1, 1);
    EXPECT_EQ(rows(program, minors), Rows{"买菜|mc"});

    program.click("Form2/Label6");
    EXPECT_FALSE(program.shows("Form2/Frame3"));
    EXPECT_TRUE(program.shows("Form2/frame9"));
    openCategories(program);
    EXPECT_TRUE(program.get("Form2/Option3", "checked").toBool());
    EXPECT_EQ(rows(program, majors), (Rows{"工资", "租金"}));
    endByCross(program);
}

TEST(Categories, AMajorIsAddedAndSavedWithoutTheMinorsBehindTheOthers) {
    const LedgerFolder folder;
    store(folder);
    {
        Program program(folder);
        signIn(program);
        openCategories(program);
        program.clickCell(majors, 2, 1);
        program.click("Form2/Command7");
        program.click("Form2/tx3"); // over the new row, without the keyboard yet
        enter(program, "稿费");
        EXPECT_EQ(folder.rows("select count(*) from srflb"), Rows{"3"});
        save(program, "Form2/Command9");
        endByCross(program);
    }
    EXPECT_EQ(folder.rows(incomeTable), (Rows{"工资||", "租金||", "稿费||"}));
    EXPECT_EQ(folder.rows(expenseTable), Rows{"餐饮|买菜|mc"});

    Program program(folder);
    signIn(program);
    openCategories(program);
    waitForRows(program, majors, {"工资", "租金", "稿费"});
    program.clickCell(majors, 1, 1);
    remove(program, "Form2/Command8", "取消");
    EXPECT_EQ(rows(program, majors).size(), 3U);
    remove(program, "Form2/Command8");
    program.waitUntil([&] { return rows(program, majors).size() == 2; }, "the major to go");
    EXPECT_EQ(folder.rows("select count(*) from srflb"), Rows{"3"}); // only the save tells the table
    save(program, "Form2/Command9");
    EXPECT_EQ(folder.rows(incomeTable), (Rows{"租金||", "稿费||"}));
    endByCross(program);
}

TEST(Categories, MinorsAreSavedOneColumnFurtherLeftAndAreMajorsAtTheNextOpening) {
    const LedgerFolder folder;
    store(folder);
    Program program(folder);
    signIn(program);
    openCategories(program);
    program.clickCell(majors, 1, 1);
    program.click("Form2/Command10");
    fillCell(program, minors, 3, 1, "加班");
    EXPECT_TRUE(program.shows("Form2/tx4")); // Enter goes on to the quick code
    enter(program, "jb");
    EXPECT_FALSE(program.shows("Form2/tx4"));
    program.clickCell(minors, 2, 1);
    remove(program, "Form2/Command11");
    waitForRows(program, minors, {"奖金|jj", "加班|jb"});
    EXPECT_EQ(folder.rows(incomeTable), (Rows{"工资|奖金|jj", "工资|津贴|jt", "租金|车位|cw"}));

    save(program, "Form2/Command12");
    EXPECT_EQ(folder.rows(incomeTable), (Rows{"租金|车位|cw", "奖金|jj|", "加班|jb|"}));
    program.click("Form2/Label6");
    openCategories(program);
    EXPECT_EQ(rows(program, majors).size(), 3U);
    EXPECT_EQ(folder.rows("select distinct 收入大类 from srflb"), (Rows{"租金", "奖金", "加班"}));
    endByCross(program);
}

TEST(Categories, TheLastMinorStaysAndTheLastMajorIsBlanked) {
    const LedgerFolder folder;
    store(folder);
    Program program(folder);
    signIn(program);
    openCategories(program);
    program.click("Form2/Option4");
    program.clickCell(majors, 1, 1);
    program.clickCell(minors, 1, 1);
    remove(program, "Form2/Command11");
    remove(program, "Form2/Command8");
    waitForRows(program, majors, {""});
    EXPECT_EQ(rows(program, minors), Rows{"买菜|mc"});
    EXPECT_EQ(folder.rows(expenseTable), Rows{"餐饮|买菜|mc"});
    endByCross(program);
}

TEST(Categories, AMajorWithAQuoteEndsTheProgramWhenItsMinorsAreLookedFor) {
    const LedgerFolder folder;
    store(folder);
    {
        Program program(folder);
        signIn(program);
        openCategories(program);
        fillCell(program, majors, 2, 1, "it's");
        save(program, "Form2/Command9");
        program.clickCell(majors, 2, 1);
        expectErrorWindow(program, "it's");
    }
    EXPECT_EQ(folder.rows(incomeTable), (Rows{"工资||", "it's||"}));
    Program program(folder);
    signIn(program);
    openCategories(program);
    waitForRows(program, majors, {"it's", "工资"});
    endByCross(program);
}
