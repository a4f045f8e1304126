#include "household.h"

#include <gtest/gtest.h>

using namespace whole;

// Looking for an expense of ten years.

TEST(Find, AnExpenseOfTenYearsIsFoundByTheKeyboardAndWrittenOn) {
    const LedgerFolder folder;
    folder.execute("with recursive n(n) as (select 1 union all select n + 1 from n where n < 3641) insert into zcb "
                   "select n, date('2014-12-01', n || ' days'), '买菜', '王青', 10, '现金', '记' || n, n from n");
    const auto stored = folder.rows("select * from zcb order by rowid");
    Program program(folder);
    signIn(program);
    program.click(pages::Expense);
    program.key("Ctrl+F");
    program.type("记1234");
    EXPECT_EQ(program.get(income::Grid, "Row").toInt(), 1234);
    EXPECT_EQ(program.get(income::Grid, "Col").toInt(), 7);
    program.key("Ctrl+F"); // once more: the words are selected
    program.type("记20");
    EXPECT_EQ(program.get(income::Grid, "Row").toInt(), 2000); // the next behind the one that was found
    program.key("Return");
    EXPECT_EQ(program.get(income::Grid, "Row").toInt(), 2001);
    program.key("Shift+Return");
    EXPECT_EQ(program.get(income::Grid, "Row").toInt(), 2000);
    EXPECT_EQ(folder.rows("select * from zcb order by rowid"), stored);

    program.key("Escape"); // the keyboard is the list's again
    program.key("Down");
    EXPECT_EQ(program.get(income::Grid, "Row").toInt(), 2001);
    program.click(pages::Desktop);
    program.key("Ctrl+F"); // no list here
    program.click(pages::Expense);
    program.clickCell(income::Grid, 2000, 7);
    enter(program, "找到了");
    EXPECT_EQ(program.cell(income::Grid, 2000, 7), "找到了");
    endByCross(program);
    EXPECT_EQ(folder.rows("select * from zcb order by rowid"), stored); // nothing was saved
}
