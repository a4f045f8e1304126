#include "ledger/income_rig.h"

#include <QApplication>

// Clicks beside the grid: the form commits what stands in the editor, a frame drops it.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class ClosingTest : public IncomeTest {
protected:
    ClosingTest() { openWith(2); }

    MSFlexGrid& ms1() { return rig.at(loans::Grid); }
    TextBox& tx1() { return rig.at(loans::Box); }
    void writeInto(int row, int col, const QString& text) {
        clickCell(row, col);
        write(text);
    }
};

TEST_F(ClosingTest, CommitsTheBoxByAClickOnTheForm) {
    writeInto(1, 3, u"未按回车"_s);
    clickForm();
    EXPECT_EQ(ms2().TextMatrix(1, 3), u"未按回车");
    EXPECT_FALSE(tx2().Visible());
    EXPECT_EQ(QApplication::focusWidget(), &ms2());
}

TEST_F(ClosingTest, HidesThePickerOnAPressOnTheForm) {
    writeInto(1, 2, u"2024-1-1"_s);
    EXPECT_EQ(tools(), forms::DatePicker);
    clickForm();
    EXPECT_EQ(ms2().TextMatrix(1, 2), u"2024-1-1");
    EXPECT_EQ(tools(), u"none");
}

TEST_F(ClosingTest, DropsTheBoxByAClickOnItsFrame) {
    writeInto(1, 3, u"未按回车"_s);
    clickFrame();
    EXPECT_EQ(ms2().TextMatrix(1, 3), u"项目1");
    EXPECT_FALSE(tx2().Visible());
    EXPECT_EQ(QApplication::focusWidget(), &ms2());
}

TEST_F(ClosingTest, GivesTheGridTheKeyboardByAClickOnTheFrame) {
    add().setFocus();
    clickFrame();
    EXPECT_EQ(QApplication::focusWidget(), &ms2());
}

TEST_F(ClosingTest, ClosesTheToolsByAClickOnTheFrame) {
    clickCell(1, 2);
    clickFrame();
    EXPECT_EQ(tools(), u"none");
    clickCell(1, 5);
    clickFrame();
    EXPECT_EQ(tools(), u"none");
}

TEST_F(ClosingTest, LeavesABoxOverAnAmountOpenWhenItIsClickedThoughItIsDisabled) {
    clickCell(1, 5);
    rig.loaded(forms::Calculator)->close();
    EXPECT_EQ(tools(), u"none");
    rig.click(tx2());
    EXPECT_EQ(tools(), forms::Calculator);
    EXPECT_TRUE(tx2().Visible());
    EXPECT_FALSE(tx2().isEnabled());
    EXPECT_EQ(ms2().TextMatrix(1, 5), u"1.5");
}

TEST_F(ClosingTest, HearsNoSecondClickInADoubleClickOnAnAmount) {
    clickCell(1, 5);
    rig.loaded(forms::Calculator)->close();
    rig.doubleClick(tx2()); // press, release, press again, release
    rig.type(*rig.loaded(forms::Calculator), u"7"_s);
    EXPECT_EQ(tools(), forms::Calculator);
    EXPECT_EQ(rig.at(calculator::Display).Text(), u"7");
}

TEST_F(ClosingTest, CommitsAlsoWhenAnotherPageIsInView) {
    writeInto(1, 3, u"别处提交"_s);
    rig.click(rig.at(pages::Desktop));
    EXPECT_FALSE(rig.at(income::Page).Visible());
    clickForm();
    EXPECT_EQ(ms2().TextMatrix(1, 3), u"别处提交");
}

TEST_F(ClosingTest, CommitsALoanAlsoWhenIncomeIsInView) {
    store(Lent, 1);
    open(Lent);
    rig.clickCell(ms1(), 1, 1);
    tx1().selectAll();
    rig.type(tx1(), u"别处提交"_s);
    open();
    clickForm();
    EXPECT_EQ(ms1().TextMatrix(1, 1), u"别处提交");
    EXPECT_FALSE(tx1().Visible());
}

TEST_F(ClosingTest, DropsTheBoxOfALoanByAClickOnTheFrameOfIncome) {
    store(Lent, 1);
    open(Lent);
    rig.clickCell(ms1(), 1, 1);
    open();
    EXPECT_TRUE(tx1().Visible()); // in a frame that is hidden
    clickFrame();
    EXPECT_FALSE(tx1().Visible());
}

TEST_F(ClosingTest, CommitsNeitherBudgetNorAccountWhileTheirPagesAreHidden) {
    for (const GridList& other : {Budget, Accounts}) {
        store(other, 1);
        open(other);
        auto& otherGrid = rig.at(other.grid);
        rig.clickCell(otherGrid, 1, other.text);
        const QString before = otherGrid.Text();
        rig.at(other.box).setText(u"未按回车"_s);
        open();
        clickForm();
        EXPECT_EQ(otherGrid.TextMatrix(1, other.text), before) << other.name;
    }
}

TEST_F(ClosingTest, CommitsNothingWhileTheGridIsDisabled) {
    writeInto(1, 3, u"统计中"_s);
    ms2().setUsable(false);
    clickForm();
    EXPECT_EQ(ms2().TextMatrix(1, 3), u"项目1");
    EXPECT_TRUE(tx2().Visible());
    clickFrame();
    EXPECT_FALSE(tx2().Visible());
}

TEST_F(ClosingTest, CommitsNothingByTheClickThatEndsAMoveOfTheWindow) {
    writeInto(1, 3, u"拖动"_s);
    MainWindow& window = rig.mainWindow();
    QTest::mousePress(&window, Qt::LeftButton, {}, QPoint(30, 3));
    QTest::mouseMove(&window, QPoint(60, 23));
    QTest::mouseRelease(&window, Qt::LeftButton, {}, QPoint(30, 3));
    EXPECT_EQ(ms2().TextMatrix(1, 3), u"项目1");
    EXPECT_TRUE(tx2().Visible());
}

TEST_F(ClosingTest, WritesTheBoxOfAPageNeverOpenedToItsFreshGrid) {
    rig.stop();
    rig.signIn();
    EXPECT_EQ(ms2().Rows(), 2);
    EXPECT_EQ(ms2().Cols(), 2);
    tx2().setText(u"甲"_s);
    clickForm();
    EXPECT_EQ(ms2().TextMatrix(1, 1), u"甲");
    EXPECT_FALSE(rig.ended());
}

} // namespace
} // namespace qinghe::testing
