#include "maintenance/users_rig.h"
#include "runtime/runtime_error.h"

#include <QApplication>

// The page of users: its opening, and how a text gets into its cells.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class UsersCellsTest : public UsersTest {};

TEST_F(UsersCellsTest, AreTwoColumnsOfOneWidth) {
    open();
    EXPECT_EQ(row(0), u"用户名|用户密码");
    EXPECT_EQ(grid().Cols(), 3);
    EXPECT_EQ(grid().ColWidth(0), 300);
    EXPECT_EQ(grid().ColWidth(1), 5508);
    EXPECT_EQ(grid().ColWidth(2), 5508);
    EXPECT_EQ(grid().RowHeight(0), 300);
    EXPECT_EQ(grid().RowHeight(1), 300);
    EXPECT_EQ(grid().Left(), 120);
    EXPECT_EQ(grid().Top(), 840);
    EXPECT_EQ(grid().Width(), 11415);
    EXPECT_EQ(grid().Height(), 4815);
}

TEST_F(UsersCellsTest, ComeToTheFrontWithTheirFrameAndLabel) {
    open();
    EXPECT_TRUE(frame().isVisible());
    EXPECT_EQ(frame().Caption(), u"用户设置");
    EXPECT_EQ(frame().Left(), 120);
    EXPECT_EQ(frame().Top(), 1680);
    EXPECT_EQ(frame().Width(), 11655);
    EXPECT_EQ(frame().Height(), 6255);
    EXPECT_EQ(rig.mainWindow().navigation().currentPage, 4);
    EXPECT_EQ(rig.at(pages::Users).ForeColor(), 255u);
    EXPECT_EQ(adodc1().recordSource(), u"select 用户名,用户密码 from yhb");
    EXPECT_TRUE(adodc1().connectionString().endsWith("data.dll "_L1));
    EXPECT_FALSE(adodc1().isVisible());
}

TEST_F(UsersCellsTest, ShowEverybodyAndAllPasswordsInClear) {
    openWith(3);
    EXPECT_EQ(rows(), (QStringList{u"人1|密码1"_s, u"人2|密码2"_s, u"人3|密码3"_s}));
    clickCell(2, 2);
    EXPECT_EQ(box().displayText(), u"密码2");
    for (int number = 1; number <= 3; ++number)
        EXPECT_EQ(grid().RowHeight(number), 300);
}

TEST_F(UsersCellsTest, KeepTheOldFirstRowOverAnEmptyTableWithoutAMessage) {
    openWith(2);
    rig.sql(u"delete from yhb"_s);
    open();
    EXPECT_EQ(row(0), u"用户名|用户密码");
    EXPECT_EQ(rows(), QStringList{u"人1|密码1"_s});
    EXPECT_TRUE(rig.messages->shown.empty());
}

TEST_F(UsersCellsTest, SkipNullFields) {
    rig.sql(u"insert into yhb(用户密码) values('只有密码')"_s);
    open();
    EXPECT_EQ(rows(), QStringList{u"|只有密码"_s});
}

TEST_F(UsersCellsTest, LoseAPasswordInTheRowOfTheLoanListWhereOneIsEmpty) {
    rig.sql(u"insert into jcb(账户, 区别) values('甲', 1), ('乙', 2)"_s);
    press(rig.at(pages::Loans));
    rig.clickCell(rig.at(loans::Grid), 1, 1);
    storeUser(u"王青"_s, u"abc"_s);
    storeUser(u"李禾"_s, u""_s);
    open();
    EXPECT_EQ(rows(), (QStringList{u"王青|"_s, u"李禾|"_s}));
}

TEST_F(UsersCellsTest, StopTheOpeningWhereTheRowOfTheLoanListIsBeyondTheirs) {
    rig.sql(u"insert into jcb(账户, 区别) values('甲', 1), ('乙', 2), ('丙', 3)"_s);
    press(rig.at(pages::Loans)); // which leaves the last row current
    storeUser(u"王青"_s, u""_s);
    open();
    expectError(RuntimeError::SubscriptOutOfRange);
}

TEST_F(UsersCellsTest, AreCoveredExactlyByTheEditorAndOpenNoTool) {
    openWith(2);
    for (int number = 1; number <= 2; ++number)
        for (int col = 1; col <= 2; ++col) {
            clickCell(number, col);
            expectEditorOver(number, col);
            EXPECT_EQ(box().Text(), grid().TextMatrix(number, col));
            EXPECT_TRUE(box().Visible());
            EXPECT_TRUE(box().isEnabled());
            EXPECT_EQ(QApplication::focusWidget(), &box());
            EXPECT_EQ(tools(), u"none");
        }
}

TEST_F(UsersCellsTest, FollowOneAnotherByEnterFromThePasswordToTheNextName) {
    openWith(2);
    fillCell(1, 1, u"改名"_s);
    EXPECT_EQ(grid().TextMatrix(1, 1), u"改名");
    EXPECT_EQ(current(), u"1,2");
    EXPECT_EQ(box().Text(), u"密码1");
    expectEditorOver(1, 2);
    write(u"新密码"_s);
    enter();
    EXPECT_EQ(row(1), u"改名|新密码");
    EXPECT_EQ(current(), u"2,1");
    EXPECT_EQ(box().Text(), u"人2");
    EXPECT_TRUE(box().Visible());
    EXPECT_EQ(QApplication::focusWidget(), &box());
    expectEditorOver(2, 1);
}

TEST_F(UsersCellsTest, EndWithTheLastPasswordWhichEnterClosesAndStaysOn) {
    openWith(2);
    fillCell(2, 2, u"末"_s);
    EXPECT_EQ(row(2), u"人2|末");
    EXPECT_EQ(current(), u"2,2");
    EXPECT_FALSE(box().Visible());
    EXPECT_EQ(grid().Rows(), 3);
    EXPECT_EQ(QApplication::focusWidget(), &grid());
}

TEST_F(UsersCellsTest, StayAsTheyWereOnEscWhileTheBoxKeepsItsTextUntilTheNextClick) {
    openWith(2);
    clickCell(1, 1);
    write(u"改过"_s);
    escape();
    EXPECT_EQ(row(1), u"人1|密码1");
    EXPECT_FALSE(box().Visible());
    EXPECT_EQ(QApplication::focusWidget(), &grid());
    EXPECT_EQ(box().Text(), u"改过");
    clickCell(2, 1);
    EXPECT_EQ(box().Text(), u"人2");
}

TEST_F(UsersCellsTest, AreCommittedByAClickOnTheForm) {
    openWith(1);
    clickCell(1, 2);
    write(u"未按回车"_s);
    clickForm();
    EXPECT_EQ(row(1), u"人1|未按回车");
    EXPECT_FALSE(box().Visible());
    EXPECT_EQ(QApplication::focusWidget(), &grid());
}

TEST_F(UsersCellsTest, AreLeftAloneByAClickOnTheFrameWhichHidesTheBox) {
    openWith(1);
    clickCell(1, 2);
    write(u"未按回车"_s);
    clickFrame();
    EXPECT_EQ(row(1), u"人1|密码1");
    EXPECT_FALSE(box().Visible());
}

TEST_F(UsersCellsTest, LeaveTheSchedulesDatePickerOpenWhenTheFrameIsClickedBehindIt) {
    openWith(1);
    clickCell(1, 1);
    press(rig.at(pages::Schedule));
    ASSERT_TRUE(box().Visible());
    handlers::enter([this] { shared().openDatePicker(DateField::None, {}, {0, 0}); });
    clickFrame(); // its lowest strip looks out under the schedule
    EXPECT_FALSE(box().Visible());
    EXPECT_EQ(tools(), forms::DatePicker);
}

TEST_F(UsersCellsTest, LoseTheEditorWhenThePageIsOpenedAgain) {
    openWith(1);
    clickCell(1, 1);
    open();
    EXPECT_FALSE(box().Visible());
    EXPECT_EQ(rows(), QStringList{u"人1|密码1"_s});
}

TEST_F(UsersCellsTest, AClickOnTheBareFormKeepsTheBoxAndGivesTheListTheKeyboard) {
    openWith(2);
    clickCell(1, 2);
    write(u"新密码"_s);
    clickForm();
    EXPECT_EQ(grid().TextMatrix(1, 2), u"新密码");
    EXPECT_FALSE(box().Visible());
    EXPECT_EQ(rig.mainWindow().focusWidget(), &grid());
    save().setFocus();
    clickForm();
    EXPECT_EQ(rig.mainWindow().focusWidget(), &grid());
}

} // namespace
} // namespace qinghe::testing
