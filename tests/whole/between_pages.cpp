#include "household.h"

#include <gtest/gtest.h>
#include <memory>

using namespace whole;

namespace {

const std::vector<std::string> pageFrames{"Frame13", "Frame2",  "Frame6",  "frame9",  "Frame8", "Frame15",
                                          "Frame7",  "Frame10", "Frame17", "Frame16", "Frame3"};

/// A ledger with something in every table that a stray key could reach.
void store(const LedgerFolder& folder) {
    folder.execute("delete from srflb; delete from zcflb;"
                   "insert into srflb values('工资','奖金','jj'),('租金','车位','cw');"
                   "insert into zcflb values('餐饮','买菜','mc');"
                   "insert into srb values('001','2024-11-15','工资','王青',8000,'建行','十一月',1);"
                   "insert into zcb values('001','2024-11-16','餐饮','王青',35.5,'现金','买菜',1);"
                   "insert into jrb values('建行','2024-11-05',5000,4992.5,7,'张山','王青','装修',1);"
                   "insert into jcb values('现金','2024-11-02',800,795,5,'王青','李禾','买书',1);"
                   "insert into ysb values('2024-11-20','买米',120,'两袋',1);"
                   "insert into zhb(账户名称,起始金额,收入,支出,借入,借出,转入,转出,余额,备注信息,区别) "
                   "values('工资卡',1000,300,100,0,0,60,10,1250,'每月发',1);"
                   "insert into rcb values('2024-11-17',1,'2024-11-18','8:05','晒谷','音乐1',1);"
                   "insert into rjb values('2024-11-17','秋收')");
}

/// All that a user has in the data file, each row behind the name of its table. Left out are pictures and what the
/// pages reckon for themselves when they are opened.
std::vector<std::string> everything(const LedgerFolder& folder) {
    std::vector<std::string> all;
    for (const char* table : {"srb", "zcb", "jrb", "jcb", "ysb", "zhb", "rcb", "rjb", "yhb", "登陆用户记录表", "srflb",
                              "zcflb", "txb", "systuopanb"})
        for (const std::string& row : folder.rows(std::string("select * from ") + table))
            all.push_back(std::string(table) + ": " + row);
    return all;
}

/// A page that was left by its label, with a control on it that had the keyboard: keys that are pressed now are
/// nobody's.
class BetweenPages : public ::testing::Test {
protected:
    BetweenPages() { store(folder); }
    void SetUp() override {
        program = std::make_unique<Program>(folder);
        signIn(*program);
    }

    void click(const std::string& control) { program->click("Form2/" + control); }
    void save(const std::string& button) { whole::save(*program, "Form2/" + button); }
    /// Leaves the page by a label, and presses keys.
    void leaveFor(const std::string& label, const std::vector<std::string>& keys) {
        before = everything(folder);
        click(label);
        for (const std::string& key : keys)
            program->key(key);
    }
    /// The program runs, this page alone is in view, no box and no tool has come up, the data are as before.
    void expectOnly(const std::string& frame) {
        EXPECT_EQ(program->windows(), std::vector<std::string>{"Form2"});
        for (const std::string& page : pageFrames)
            EXPECT_EQ(program->shows("Form2/" + page), page == frame) << page;
        EXPECT_EQ(everything(folder), before);
    }
    /// The same, and the program can be ended as ever.
    void expectNothingBut(const std::string& frame) {
        expectOnly(frame);
        endByCross(*program);
        EXPECT_EQ(everything(folder), before);
    }

    const LedgerFolder folder;
    std::unique_ptr<Program> program;
    std::vector<std::string> before;
};

} // namespace

TEST_F(BetweenPages, TheButtonThatSavedTheAccountsDoesNotEmptyTheUsers) {
    click("Label6");
    save("Command21");
    leaveFor("Label4", {"Space"});
    expectNothingBut("Frame7");

    Program again(folder);
    signIn(again);
}

TEST_F(BetweenPages, TheButtonThatSavedTheIncomeDoesNotTakeTheLoansIntoIt) {
    click("Label2(0)");
    save("Command6");
    leaveFor("Label1", {"Space"});
    expectOnly("Frame6");
    save("Command3");
    expectNothingBut("Frame6");
}

TEST_F(BetweenPages, TheButtonThatSavedTheCategoriesDoesNotMakeUsersOfThem) {
    click("Label7");
    click("Command31");
    save("Command9");
    leaveFor("Label4", {"Return"});
    expectNothingBut("Frame7");
}

TEST_F(BetweenPages, TheButtonThatSavedTheLoansDoesNotEmptyTheBudget) {
    click("Label1");
    save("Command3");
    leaveFor("Label5", {"Space"});
    expectNothingBut("Frame8");
}

TEST_F(BetweenPages, TheButtonThatSavedTheBudgetDoesNotEmptyTodaysPlans) {
    click("Label5");
    save("Command18");
    leaveFor("Label24", {"Space"});
    expectNothingBut("Frame13");
    EXPECT_EQ(folder.rows("select 日程内容 from rcb"), std::vector<std::string>{"晒谷"});
}

TEST_F(BetweenPages, TheButtonThatDidNotDeleteAnExpenseDoesNotDoItFromTheDesktop) {
    click("Label2(1)");
    save("Command6");
    program->clickCell("Form2/ms2", 1, 1);
    remove(*program, "Form2/Command5", "取消");
    leaveFor("Label24", {"Return", "Return"});
    expectNothingBut("Frame13");
}

TEST_F(BetweenPages, TheBoxThatDidNotInitialiseTheDataDoesNotDoItFromTheDesktop) {
    click("Label5");
    save("Command18");
    click("Label7");
    click("Check4");
    program->answer("否");
    leaveFor("Label24", {"Space", "Return"});
    expectNothingBut("Frame13");
}

TEST_F(BetweenPages, ACellThatWasLeftOpenTakesNoLetters) {
    click("Label2(0)");
    save("Command6");
    for (const int column : {1, 4}) { // Enter would go on to the date and to the amount
        click("Label2(0)");
        program->clickCell("Form2/ms2", 1, column);
        const std::string cell = program->cell("Form2/ms2", 1, column), text = program->text("Form2/tx2");
        leaveFor("Label24", {"A", "B", "Return"});
        expectOnly("Frame13");
        EXPECT_EQ(program->cell("Form2/ms2", 1, column), cell);
        EXPECT_EQ(program->text("Form2/tx2"), text);
    }
    endByCross(*program);
}

TEST_F(BetweenPages, LongTextsThatWereLeftTakeNoLetters) {
    click("Label5");
    save("Command18");
    struct Text {
        std::vector<std::string> opening;
        std::string box;
    };
    for (const Text& text : {Text{{"Label8", "Command22"}, "tx8"}, Text{{"Label23"}, "Text3"}}) {
        for (const std::string& control : text.opening)
            click(control);
        click(text.box);
        program->type("abc");
        leaveFor("Label24", {"D", "E", "Return"});
        expectOnly("Frame13");
        EXPECT_EQ(program->get("Form2/" + text.box, "plainText").toString(), QStringLiteral("abc"));
    }
    endByCross(*program);
}

TEST_F(BetweenPages, AnOptionThatWasLeftDoesNotTurnToItsNeighbour) {
    click("Label1");
    click("Option1");
    save("Command3");
    click("Option1");
    leaveFor("Label2(0)", {"Right"});
    EXPECT_TRUE(program->get("Form2/Option1", "checked").toBool());
    EXPECT_FALSE(program->get("Form2/Option2", "checked").toBool());
    expectNothingBut("Frame2");
}
