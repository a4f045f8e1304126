#include "household.h"

#include <gtest/gtest.h>
#include <memory>

using namespace whole;

namespace {

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
    for (const std::string& table :
         folder.rows("select name from sqlite_schema where type = 'table' and name not in "
                     "('软件皮肤', '皮肤选择', '主界面', '登陆皮肤', 'nsrb', 'nzcb', 'sztjlsb')"))
        for (const std::string& row : folder.rows("select * from " + table))
            all.push_back(table + ": " + row);
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

    void click(const std::string& control) { program->click(control); }
    void save(const std::string& button) { whole::save(*program, button); }
    /// Leaves the page by a label, and presses keys.
    void leaveFor(const std::string& label, const std::vector<std::string>& keys) {
        before = everything(folder);
        click(label);
        for (const std::string& key : keys)
            program->key(key);
    }
    /// The program runs, this page alone is in view, no box and no tool has come up, the data are as before.
    void expectOnly(const std::string& frame) {
        EXPECT_EQ(program->windows(), std::vector<std::string>{forms::Main});
        for (const LabelledPage& page : LabelledPages)
            EXPECT_EQ(program->shows(page.frame), std::string(page.frame) == frame) << std::string(page.frame);
        EXPECT_EQ(program->shows(categories::Page), std::string(categories::Page) == frame);
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
    click(pages::Accounts);
    save(accounts::Save);
    leaveFor(pages::Users, {"Space"});
    expectNothingBut(users::Page);

    Program again(folder);
    signIn(again);
}

TEST_F(BetweenPages, TheButtonThatSavedTheIncomeDoesNotTakeTheLoansIntoIt) {
    click(pages::Income);
    save(income::Save);
    leaveFor(pages::Loans, {"Space"});
    expectOnly(loans::Page);
    save(loans::Save);
    expectNothingBut(loans::Page);
}

TEST_F(BetweenPages, TheButtonThatSavedTheCategoriesDoesNotMakeUsersOfThem) {
    click(pages::Settings);
    click(settings::Categories);
    save(categories::SaveMajors);
    leaveFor(pages::Users, {"Return"});
    expectNothingBut(users::Page);
}

TEST_F(BetweenPages, TheButtonThatSavedTheLoansDoesNotEmptyTheBudget) {
    click(pages::Loans);
    save(loans::Save);
    leaveFor(pages::Budget, {"Space"});
    expectNothingBut(budget::Page);
}

TEST_F(BetweenPages, TheButtonThatSavedTheBudgetDoesNotEmptyTodaysPlans) {
    click(pages::Budget);
    save(budget::Save);
    leaveFor(pages::Desktop, {"Space"});
    expectNothingBut(desktop::Page);
    EXPECT_EQ(folder.rows("select 日程内容 from rcb"), std::vector<std::string>{"晒谷"});
}

TEST_F(BetweenPages, TheButtonThatDidNotDeleteAnExpenseDoesNotDoItFromTheDesktop) {
    click(pages::Expense);
    save(income::Save);
    program->clickCell(income::Grid, 1, 1);
    remove(*program, income::Remove, "取消");
    leaveFor(pages::Desktop, {"Return", "Return"});
    expectNothingBut(desktop::Page);
}

TEST_F(BetweenPages, TheBoxThatDidNotInitialiseTheDataDoesNotDoItFromTheDesktop) {
    click(pages::Budget);
    save(budget::Save);
    click(pages::Settings);
    click(settings::Initialise);
    program->answer("否");
    leaveFor(pages::Desktop, {"Space", "Return"});
    expectNothingBut(desktop::Page);
}

TEST_F(BetweenPages, ACellThatWasLeftOpenTakesNoLetters) {
    click(pages::Income);
    save(income::Save);
    for (const int column : {1, 4}) { // Enter would go on to the date and to the amount
        click(pages::Income);
        program->clickCell(income::Grid, 1, column);
        const std::string cell = program->cell(income::Grid, 1, column), text = program->text(income::Box);
        leaveFor(pages::Desktop, {"A", "B", "Return"});
        expectOnly(desktop::Page);
        EXPECT_EQ(program->cell(income::Grid, 1, column), cell);
        EXPECT_EQ(program->text(income::Box), text);
    }
    endByCross(*program);
}

TEST_F(BetweenPages, LongTextsThatWereLeftTakeNoLetters) {
    click(pages::Budget);
    save(budget::Save);
    struct Text {
        std::vector<std::string> opening;
        std::string box;
    };
    for (const Text& text :
         {Text{{pages::Diary, diary_page::Add}, diary_page::Text}, Text{{pages::Schedule}, schedule::Plan}}) {
        for (const std::string& control : text.opening)
            click(control);
        click(text.box);
        program->type("abc");
        leaveFor(pages::Desktop, {"D", "E", "Return"});
        expectOnly(desktop::Page);
        EXPECT_EQ(program->get(text.box, "plainText").toString(), QStringLiteral("abc"));
    }
    endByCross(*program);
}

TEST_F(BetweenPages, AnOptionThatWasLeftDoesNotTurnToItsNeighbour) {
    click(pages::Loans);
    click(loans::Borrowed);
    save(loans::Save);
    click(loans::Borrowed);
    leaveFor(pages::Income, {"Right"});
    EXPECT_TRUE(program->get(loans::Borrowed, "checked").toBool());
    EXPECT_FALSE(program->get(loans::Lent, "checked").toBool());
    expectNothingBut(income::Page);
}
