#include "household.h"

#include <filesystem>
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

        program.waitForKeyboard(forms::Main);
        enter(program, "建行");
        program.click(income::Add);
        EXPECT_EQ(program.get(income::Grid, "Rows").toInt(), 3);
        program.clickCell(income::Grid, 2, 1);
        for (const char* text : {"002", "2024-11-16", "稿费", "李禾"})
            enter(program, text);
        program.waitForKeyboard(forms::Calculator);
        program.type("99.5");
        program.key("Return");
        program.waitForKeyboard(forms::Main);
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
    using std::filesystem::perms;
    for (const char* own : {".", "data.dll", "mydiary"}) // nobody else on this machine reads along
        EXPECT_EQ(std::filesystem::status(folder.file(own).toStdString()).permissions() &
                      (perms::group_all | perms::others_all),
                  perms::none)
            << own;

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

namespace {

/// Somebody at the program, whose clicks, key strokes and ways from the keyboard to the mouse are counted.
class Hand {
public:
    explicit Hand(Program& worked) : program(worked) {}

    void click(const std::string& at) {
        countClick();
        program.click(at);
    }
    void clickCell(const std::string& grid, int row, int col) {
        countClick();
        program.clickCell(grid, row, col);
    }
    void key(const std::string& name) {
        countKeys(1);
        program.key(name);
    }
    void enter(const std::string& text) {
        if (!text.empty())
            program.type(text);
        countKeys(static_cast<int>(QString::fromStdString(text).size()));
        key("Return");
    }
    /// Types into the calculator as soon as it has the keyboard, and back on the page as soon as that has it.
    void reckon(const std::string& text) {
        program.waitForKeyboard(forms::Calculator);
        enter(text);
        program.waitForKeyboard(forms::Main);
    }
    /// Presses a save's button and answers its message by Enter.
    void save(const std::string& button) {
        click(button);
        EXPECT_EQ(program.message().text, "保存成功");
        key("Return");
        program.waitUntil([this] { return !program.showsMessage(); }, "the answer");
    }

    int clicks = 0, keys = 0, trips = 0;

private:
    void countClick() {
        ++clicks;
        trips += atKeyboard;
        atKeyboard = false;
    }
    void countKeys(int count) {
        keys += count;
        atKeyboard = true;
    }

    Program& program;
    bool atKeyboard = true;
};

} // namespace

TEST(FirstEvening, FiveExpensesACorrectionAndALoanTakeOneWayToTheMouseARow) {
    const LedgerFolder folder;
    Program program(folder);
    signIn(program);
    Hand hand(program);
    const std::vector<std::vector<std::string>> expenses{{"01", "2024-11-18", "菜", "王青", "35.5", "现金"},
                                                         {"02", "2024-11-18", "米", "王青", "84", "现金"},
                                                         {"03", "2024-11-18", "电费", "李禾", "126.3", "建行"},
                                                         {"04", "2024-11-18", "书", "李禾", "29+45", "建行"},
                                                         {"05", "2024-11-18", "药", "王青", "18.8", "现金"}};
    hand.click(pages::Expense);
    for (int row = 1; const std::vector<std::string>& expense : expenses) {
        if (row > 1)
            hand.click(income::Add);
        hand.clickCell(income::Grid, row++, 1);
        for (int col = 0; col < 4; ++col)
            hand.enter(expense[static_cast<std::size_t>(col)]);
        hand.reckon(expense[4]);
        hand.enter(expense[5]);
        hand.enter(""); // no remark
    }
    hand.clickCell(income::Grid, 2, 5);
    hand.reckon("48");
    hand.save(income::Save);
    EXPECT_EQ(hand.trips, 7); // one a row, one for the correction, one for the save

    hand.click(pages::Loans);
    hand.clickCell(loans::Grid, 1, 1);
    for (const char* text : {"现金", "2024-11-18", "800", "5"})
        hand.enter(text);
    hand.key("Menu"); // of the balance, where the box is closed
    hand.key("Return");
    hand.reckon("795");
    for (const char* text : {"王青", "赵田", ""})
        hand.enter(text);
    hand.save(loans::Save);
    EXPECT_EQ(hand.trips, 9);
    // Before Enter walked on from the calculator it took 23 clicks on 16 ways to the mouse and 174 keys, and of the
    // balance no more than its first digit could be written.
    EXPECT_EQ(hand.clicks, 15);
    EXPECT_EQ(hand.keys, 179);
    endByCross(program);
    EXPECT_EQ(folder.rows("select * from zcb"),
              (std::vector<std::string>{"01|2024-11-18|菜|王青|35.5|现金||1", "02|2024-11-18|米|王青|48|现金||2",
                                        "03|2024-11-18|电费|李禾|126.3|建行||3", "04|2024-11-18|书|李禾|74|建行||4",
                                        "05|2024-11-18|药|王青|18.8|现金||5"}));
    EXPECT_EQ(folder.rows("select * from jcb"), std::vector<std::string>{"现金|2024-11-18|800|5|795|王青|赵田||1"});
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
