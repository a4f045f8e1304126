#include "household.h"

#include <gtest/gtest.h>

using namespace whole;

namespace {

const std::string incomeTable = "select * from srflb", expenseTable = "select * from zcflb";

void openCategories(Program& program) {
    program.click(pages::Settings);
    program.click(settings::Categories);
    program.waitUntil([&] { return program.shows(categories::Page); }, "the categories");
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
    EXPECT_EQ(rows(program, categories::Majors), (Rows{"工资", "租金"}));
    EXPECT_FALSE(program.get(categories::Minors, "enabled").toBool());
    program.clickCell(categories::Majors, 1, 1);
    EXPECT_EQ(rows(program, categories::Minors), (Rows{"奖金|jj", "津贴|jt"}));
    EXPECT_TRUE(program.get(categories::Minors, "enabled").toBool());

    program.click(categories::Expense);
    EXPECT_EQ(program.cell(categories::Majors, 0, 1), "消费大类");
    EXPECT_EQ(rows(program, categories::Majors), Rows{"餐饮"});
    EXPECT_FALSE(program.get(categories::SaveMinors, "enabled").toBool());
    program.clickCell(categories::Majors, 1, 1);
    EXPECT_EQ(rows(program, categories::Minors), Rows{"买菜|mc"});

    program.click(pages::Accounts);
    EXPECT_FALSE(program.shows(categories::Page));
    EXPECT_TRUE(program.shows(accounts::Page));
    openCategories(program);
    EXPECT_TRUE(program.get(categories::Income, "checked").toBool());
    EXPECT_EQ(rows(program, categories::Majors), (Rows{"工资", "租金"}));
    endByCross(program);
}

TEST(Categories, AMajorIsAddedAndSavedWithoutTheMinorsBehindTheOthers) {
    const LedgerFolder folder;
    store(folder);
    {
        Program program(folder);
        signIn(program);
        openCategories(program);
        program.clickCell(categories::Majors, 2, 1);
        program.click(categories::AddMajor);
        program.click(categories::MajorBox); // over the new row, without the keyboard yet
        enter(program, "稿费");
        EXPECT_EQ(folder.rows("select count(*) from srflb"), Rows{"3"});
        save(program, categories::SaveMajors);
        endByCross(program);
    }
    EXPECT_EQ(folder.rows(incomeTable), (Rows{"工资||", "租金||", "稿费||"}));
    EXPECT_EQ(folder.rows(expenseTable), Rows{"餐饮|买菜|mc"});

    Program program(folder);
    signIn(program);
    openCategories(program);
    waitForRows(program, categories::Majors, {"工资", "租金", "稿费"});
    program.clickCell(categories::Majors, 1, 1);
    remove(program, categories::RemoveMajor, "取消");
    EXPECT_EQ(rows(program, categories::Majors).size(), 3U);
    remove(program, categories::RemoveMajor);
    program.waitUntil([&] { return rows(program, categories::Majors).size() == 2; }, "the major to go");
    EXPECT_EQ(folder.rows("select count(*) from srflb"), Rows{"3"}); // only the save tells the table
    save(program, categories::SaveMajors);
    EXPECT_EQ(folder.rows(incomeTable), (Rows{"租金||", "稿费||"}));
    endByCross(program);
}

TEST(Categories, MinorsAreSavedOneColumnFurtherLeftAndAreMajorsAtTheNextOpening) {
    const LedgerFolder folder;
    store(folder);
    Program program(folder);
    signIn(program);
    openCategories(program);
    program.clickCell(categories::Majors, 1, 1);
    program.click(categories::AddMinor);
    fillCell(program, categories::Minors, 3, 1, "加班");
    EXPECT_TRUE(program.shows(categories::MinorBox)); // Enter goes on to the quick code
    enter(program, "jb");
    EXPECT_FALSE(program.shows(categories::MinorBox));
    program.clickCell(categories::Minors, 2, 1);
    remove(program, categories::RemoveMinor);
    waitForRows(program, categories::Minors, {"奖金|jj", "加班|jb"});
    EXPECT_EQ(folder.rows(incomeTable), (Rows{"工资|奖金|jj", "工资|津贴|jt", "租金|车位|cw"}));

    save(program, categories::SaveMinors);
    EXPECT_EQ(folder.rows(incomeTable), (Rows{"租金|车位|cw", "奖金|jj|", "加班|jb|"}));
    program.click(pages::Accounts);
    openCategories(program);
    EXPECT_EQ(rows(program, categories::Majors).size(), 3U);
    EXPECT_EQ(folder.rows("select distinct 收入大类 from srflb"), (Rows{"租金", "奖金", "加班"}));
    endByCross(program);
}

TEST(Categories, TheLastMinorStaysAndTheLastMajorIsBlanked) {
    const LedgerFolder folder;
    store(folder);
    Program program(folder);
    signIn(program);
    openCategories(program);
    program.click(categories::Expense);
    program.clickCell(categories::Majors, 1, 1);
    program.clickCell(categories::Minors, 1, 1);
    remove(program, categories::RemoveMinor);
    remove(program, categories::RemoveMajor);
    waitForRows(program, categories::Majors, {""});
    EXPECT_EQ(rows(program, categories::Minors), Rows{"买菜|mc"});
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
        fillCell(program, categories::Majors, 2, 1, "it's");
        save(program, categories::SaveMajors);
        program.clickCell(categories::Majors, 2, 1);
        expectErrorWindow(program, "it's");
    }
    EXPECT_EQ(folder.rows(incomeTable), (Rows{"工资||", "it's||"}));
    Program program(folder);
    signIn(program);
    openCategories(program);
    waitForRows(program, categories::Majors, {"it's", "工资"});
    endByCross(program);
}
