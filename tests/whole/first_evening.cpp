#include "household.h"

#include <gtest/gtest.h>

using namespace whole;

TEST(FirstEvening, TheFirstStartIsOneClickAndShowsAnEmptyDesktop) {
    const LedgerFolder folder;
    Program program(folder);
    EXPECT_EQ(program.windows(), std::vector<std::string>{"Form5"});
    EXPECT_EQ(folder.header(), "01 00");
    EXPECT_EQ(program.get("Form5/Combo1", "currentText").toString().toStdString(), "管理员");

    signIn(program);

    EXPECT_EQ(program.windows(), std::vector<std::string>{"Form2"});
    EXPECT_TRUE(program.shows("Form2/Frame13"));
    EXPECT_EQ(program.text("Form2/Label16"), "系统时间：2024-11-18");
    EXPECT_EQ(program.text("Form2/Label31"), "0.00元");
    EXPECT_EQ(program.text("Form2/Label36"), "您还未添加今日日程！");
    EXPECT_TRUE(folder.has("mydiary"));
}

TEST(FirstEvening, AnIncomeIsEnteredSavedAndFoundAgain) {
    const LedgerFolder folder;
    {
        Program program(folder, "2024-11-18 20:36:08");
        signIn(program);
        program.click("Form2/Label2(0)");
        EXPECT_EQ(program.caption("Form2/Frame2"), "收入记录");
        EXPECT_EQ(program.text("Form2/Label10"), "当前收入总额为：0.00元");

        // An empty ledger offers one blank row; a second one is not needed yet.
        addInVain(program, "Form2/Command4");

        program.clickCell("Form2/ms2", 1, 1);
        enter(program, "001");
        // The day is picked, and it can be picked from the keyboard's place.
        program.waitFor("Form1");
        EXPECT_EQ(program.text("Form1/Label1"), "2024 年 11月");
        EXPECT_EQ(program.text("Form1/Label3(19)"), "15");
        program.doubleClick("Form1/Label3(19)");
        EXPECT_EQ(program.cell("Form2/ms2", 1, 2), "2024-11-15");
        EXPECT_EQ(program.text("Form2/tx2"), "2024-11-15");

        program.clickCell("Form2/ms2", 1, 3);
        enter(program, "工资");
        enter(program, "王青");
        // The amount is reckoned, and goes into its cell with Enter.
        program.waitForKeyboard("Form9");
        EXPECT_FALSE(program.get("Form2/tx2", "enabled").toBool());
        for (const char* digit : {"8", "0", "0", "0"})
            program.click(std::string("Form9/Command1(") + digit + ")");
        program.type("+650.5");
        EXPECT_EQ(program.text("Form9/Text1"), "8000+650.5");
        program.key("Return");
        EXPECT_EQ(program.cell("Form2/ms2", 1, 5), "8650.5");

        program.clickCell("Form2/ms2", 1, 6);
        enter(program, "建行");
        program.click("Form2/Command4");
        EXPECT_EQ(program.get("Form2/ms2", "Rows").toInt(), 3);
        program.clickCell("Form2/ms2", 2, 1);
        for (const char* text : {"002", "2024-11-16", "稿费", "李禾"})
            enter(program, text);
        program.waitForKeyboard("Form9");
        program.type("99.5");
        program.key("Return");
        program.clickCell("Form2/ms2", 2, 6);
        enter(program, "现金");
        enter(program, "第一篇");

        save(program, "Form2/Command6");
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
    EXPECT_EQ(program.text("Form2/Label31"), "8750.00元");
    program.click("Form2/Label2(0)");
    EXPECT_EQ(program.cell("Form2/ms2", 1, 2), "2024-11-15");
    EXPECT_EQ(program.cell("Form2/ms2", 1, 5), "8650.5");
    EXPECT_EQ(program.cell("Form2/ms2", 2, 7), "第一篇");
    EXPECT_EQ(program.text("Form2/Label10"), "当前收入总额为：8750.00元 ");
    endByCross(program);
}

TEST(FirstEvening, ASaveWithAGapChangesNothing) {
    const LedgerFolder folder;
    Program program(folder);
    signIn(program);
    program.click("Form2/Label2(1)");
    program.clickCell("Form2/ms2", 1, 1);
    enter(program, "001");
    saveInVain(program, "Form2/Command6");
    EXPECT_EQ(folder.rows("select count(*) from zcb"), std::vector<std::string>{"0"});
    EXPECT_EQ(program.cell("Form2/ms2", 1, 1), "001");
    endByCross(program);
}
