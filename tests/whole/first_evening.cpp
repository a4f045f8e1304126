#include "household.h"

#include <gtest/gtest.h>

using namespace whole;

TEST(FirstEvening, TheFirstStartIsOneClickAndShowsAnEmptyDesktop) {
    const LedgerFolder folder;
    Program program(folder);
    EXPECT_EQ(program.windows(), std::vector<std::string>{forms::SignIn});
    EXPECT_EQ(folder.header(), "01 00");
    EXPECT_EQ(program.get(sign_in::User, "currentText").toString().toStdString(), "管理员");

    signIn(program);

    EXPECT_EQ(program.windows(), std::vector<std::string>{forms::Main});
    EXPECT_TRUE(program.shows(desktop::Page));
    EXPECT_EQ(program.text(title::Date), "系统时间：2024-11-18");
    EXPECT_EQ(program.text(desktop::Income), "0.00元");
    EXPECT_EQ(program.text(desktop::Plans), "您还未添加今日日程！");
    EXPECT_TRUE(folder.has("mydiary"));
}

TEST(FirstEvening, AnIncomeIsEnteredSavedAndFoundAgain) {
    const LedgerFolder folder;
    {
        Program program(folder, "2024-11-18 20:36:08");
        signIn(program);
        program.click(pages::Income);
        EXPECT_EQ(program.caption(income::Page), "收入记录");
        EXPECT_EQ(program.text(income::Total), "当前收入总额为：0.00元");

        // An empty ledger offers one blank row; a second one is not needed yet.
        addInVain(program, income::Add);

        program.clickCell(income::Grid, 1, 1);
        enter(program, "001");
        // The day is picked, and it can be picked from the keyboard's place.
        program.waitFor(forms::DatePicker);
        EXPECT_EQ(program.text(date_picker::Month), "2024 年 11月");
        EXPECT_EQ(program.text(date_picker::Day[19]), "15");
        program.doubleClick(date_picker::Day[19]);
        EXPECT_EQ(program.cell(income::Grid, 1, 2), "2024-11-15");
        EXPECT_EQ(program.text(income::Box), "2024-11-15");

        program.clickCell(income::Grid, 1, 3);
        enter(program, "工资");
        enter(program, "王青");
        // The amount is reckoned, and goes into its cell with Enter.
        program.waitForKeyboard(forms::Calculator);
        EXPECT_FALSE(program.get(income::Box, "enabled").toBool());
        for (const int digit : {8, 0, 0, 0})
            program.click(calculator::Digit[digit]);
        program.type("+650.5");
        EXPECT_EQ(program.text(calculator::Display), "8000+650.5");
        program.key("Return");
        EXPECT_EQ(program.cell(income::Grid, 1, 5), "8650.5");

        program.clickCell(income::Grid, 1, 6);
        enter(program, "建行");
        program.click(income::Add);
        EXPECT_EQ(program.get(income::Grid, "Rows").toInt(), 3);
        program.clickCell(income::Grid, 2, 1);
        for (const char* text : {"002", "2024-11-16", "稿费", "李禾"})
            enter(program, text);
        program.waitForKeyboard(forms::Calculator);
        program.type("99.5");
        program.key("Return");
        program.clickCell(income::Grid, 2, 6);
        enter(program, "现金");
        enter(program, "第一篇");

        save(program, income::Save);
        endByCross(program);
    }
    EXPECT_EQ(folder.rows("select * from srb"),
              (std::vector<std::string>{"001|2024-11-15|工资|王青|8650.5|建行||1",
                                        "002|2024-11-16|稿费|李禾|99.5|现金|第一篇|2"}));
    EXPECT_EQ(folder.header(), "00 00");
    for (const char* picture : {"pf.jpg", "zjm.jpg", "dlpf.jpg"})
        EXPECT_FALSE(folder.has(picture)) << picture;

    Program program(folder, "2024-11-19 07:10:00");
    signIn(program);
    EXPECT_EQ(program.text(desktop::Income), "8750.00元");
    program.click(pages::Income);
    EXPECT_EQ(program.cell(income::Grid, 1, 2), "2024-11-15");
    EXPECT_EQ(program.cell(income::Grid, 1, 5), "8650.5");
    EXPECT_EQ(program.cell(income::Grid, 2, 7), "第一篇");
    EXPECT_EQ(program.text(income::Total), "当前收入总额为：8750.00元 ");
    endByCross(program);
}

TEST(FirstEvening, ASaveWithAGapChangesNothing) {
    const LedgerFolder folder;
    Program program(folder);
    signIn(program);
    program.click(pages::Expense);
    program.clickCell(income::Grid, 1, 1);
    enter(program, "001");
    saveInVain(program, income::Save);
    EXPECT_EQ(folder.rows("select count(*) from zcb"), std::vector<std::string>{"0"});
    EXPECT_EQ(program.cell(income::Grid, 1, 1), "001");
    endByCross(program);
}
