#include "ledger/categories_rig.h"
#include "runtime/runtime_error.h"

#include <QApplication>

// How the page of the categories is reached, what it shows when it comes up, and what is left of a visit.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class CategoriesOpeningTest : public CategoriesTest {
protected:
    MSFlexGrid& ms1() { return rig.at(loans::Grid); }
    QStringList framesOnView() {
        QStringList shown;
        for (const Page* page : rig.mainWindow().navigation().pages())
            if (page->frame().Visible())
                shown << page->frame().objectName();
        return shown;
    }
    static QString place(const Placed& control) {
        return u"%1,%2,%3,%4"_s.arg(control.Left()).arg(control.Top()).arg(control.Width()).arg(control.Height());
    }
};

TEST_F(CategoriesOpeningTest, ThePageIsASmallStripBesideTheWindowUntilItIsOpened) {
    EXPECT_FALSE(frame3().Visible());
    EXPECT_EQ(place(frame3()), u"13200,1440,975,255");
    EXPECT_FALSE(option(Income).Value());
    EXPECT_FALSE(option(Expense).Value());
}

TEST_F(CategoriesOpeningTest, TheSettingsOpenItOnIncome) {
    openWith({u"工资|基本工资|gz"_s});
    EXPECT_EQ(framesOnView(), QStringList{categories::Page});
    EXPECT_EQ(place(frame3()), u"240,1200,12015,6615");
    EXPECT_TRUE(option(Income).Value());
    EXPECT_FALSE(option(Expense).Value());
    EXPECT_EQ(majors(), QStringList{u"工资"_s});
    EXPECT_TRUE(rig.messages->shown.empty());
}

TEST_F(CategoriesOpeningTest, TheSettingsStayTheChosenPage) {
    open();
    EXPECT_EQ(rig.mainWindow().navigation().currentPage, 7);
    EXPECT_EQ(rig.at(pages::Settings).ForeColor(), 255u);
}

TEST_F(CategoriesOpeningTest, ThePageLabelsStayInFrontSoThatItCanBeLeft) {
    open();
    for (const LabelledPage& page : LabelledPages) {
        auto& label = rig.at(page.label);
        EXPECT_EQ(rig.mainWindow().childAt(label.geometry().center()), &label) << std::string(page.label);
    }
}

TEST_F(CategoriesOpeningTest, TheIncomeSideAsksForTheMajorsOfIncome) {
    open();
    EXPECT_EQ(adodc1().recordSource(), u"select distinct 收入大类 from srflb");
    EXPECT_EQ(adodc1().connectionString(), shared().connection());
    EXPECT_FALSE(adodc1().isVisible());
    EXPECT_EQ(ms3().TextMatrix(0, 1), u"收入大类");
    EXPECT_EQ(ms4().TextMatrix(0, 1), u"收入细类");
    EXPECT_EQ(ms4().TextMatrix(0, 2), u"快速代码");
}

TEST_F(CategoriesOpeningTest, TheExpenseSideAsksForTheMajorsOfExpense) {
    store({u"工资|基本工资|gz"_s});
    openWith({u"日常生活|买菜|mc"_s}, Expense);
    EXPECT_EQ(adodc1().recordSource(), u"select distinct 支出大类 from zcflb");
    EXPECT_EQ(ms3().TextMatrix(0, 1), u"消费大类");
    EXPECT_EQ(ms4().TextMatrix(0, 1), u"消费细类");
    EXPECT_EQ(ms4().TextMatrix(0, 2), u"快速代码");
    EXPECT_EQ(majors(), QStringList{u"日常生活"_s});
    EXPECT_EQ(framesOnView(), QStringList{categories::Page});
}

TEST_F(CategoriesOpeningTest, TheExpenseSideSetsTheLeftEdgeOfTheMinors) {
    open();
    ms4().setLeft(500);
    choose(Expense);
    EXPECT_EQ(ms4().Left(), 120);
    ms4().setLeft(500);
    choose(Income);
    EXPECT_EQ(ms4().Left(), 500);
}

TEST_F(CategoriesOpeningTest, TheColumnsShareTheWidthOfTheirGrids) {
    open();
    EXPECT_EQ(ms3().Cols(), 2);
    EXPECT_EQ(ms3().ColWidth(0), 300);
    EXPECT_EQ(ms3().ColWidth(1), ms3().Width() - 400);
    EXPECT_EQ(ms4().Cols(), 3);
    EXPECT_EQ(ms4().ColWidth(0), 300);
    EXPECT_EQ(ms4().ColWidth(1), 2598); // half of 5,195, as a whole number
    EXPECT_EQ(ms4().ColWidth(2), 2598);
    EXPECT_EQ(ms3().RowHeight(0), 300);
    EXPECT_EQ(ms4().RowHeight(1), 300);
}

TEST_F(CategoriesOpeningTest, EqualMajorsStandOnceAndTheLastRowIsCurrent) {
    openWith({u"丙|1|"_s, u"甲|2|"_s, u"丙|3|"_s, u"乙|4|"_s, u"甲|5|"_s});
    EXPECT_EQ(majors(), (QStringList{u"丙"_s, u"乙"_s, u"甲"_s}));
    EXPECT_EQ(ms3().Row(), 3);
}

TEST_F(CategoriesOpeningTest, TheMinorsAreBlankAndClosedUntilAMajorIsClicked) {
    openWith({u"甲|1|a"_s});
    EXPECT_EQ(minors(), QStringList{u"|"_s});
    EXPECT_FALSE(minorsUsable());
    clickMajor(1);
    EXPECT_TRUE(minorsUsable());
}

TEST_F(CategoriesOpeningTest, AnEmptyTableLeavesTheCellOfTheMajorsAsItWas) {
    openWith({u"日常生活|买菜|mc"_s}, Expense);
    clickMajor(1);
    choose(Income);
    EXPECT_EQ(majors(), QStringList{u"日常生活"_s});
    EXPECT_EQ(minors(), QStringList{u"|"_s});
    EXPECT_TRUE(rig.messages->shown.empty());
}

TEST_F(CategoriesOpeningTest, AnEmptyTableShowsOneBlankRowAtTheFirstVisit) {
    open();
    EXPECT_EQ(majors(), QStringList{QString()});
    EXPECT_EQ(ms3().Row(), 1);
    EXPECT_TRUE(rig.messages->shown.empty());
}

TEST_F(CategoriesOpeningTest, AMajorWithoutAValueLeavesItsRowAsItWasAndTheNextFollows) {
    openWith({u"旧|1|"_s}, Expense);
    store({u"NULL|1|"_s, u"甲|2|"_s});
    choose(Income);
    EXPECT_EQ(majors(), (QStringList{u"旧"_s, u"甲"_s}));
}

TEST_F(CategoriesOpeningTest, AnEmptyMajorBlanksTheRowWhereTheLoanGridStands) {
    store({u"旧|1|"_s}, Expense);
    openWith({u"|1|"_s, u"甲|2|"_s}, Expense); // row 1 is empty there as well
    store({u"|1|"_s, u"甲|2|"_s});
    ms3().setTextMatrix(1, 1, u"留"_s);
    ms1().setRow(0); // stands on the captions
    choose(Income);
    EXPECT_EQ(majors(), (QStringList{u"留"_s, u"甲"_s}));
    EXPECT_EQ(ms3().TextMatrix(0, 1), u"");
    ms1().setRow(1);
    choose(Expense);
    EXPECT_EQ(majors(), (QStringList{QString(), u"旧"_s, u"甲"_s}));
}

TEST_F(CategoriesOpeningTest, AnEmptyMajorEndsTheProgramWhenTheLoanGridStandsFurtherDown) {
    store({u"|1|"_s, u"甲|2|"_s});
    const QStringList before = stored();
    ms1().setRows(9);
    ms1().setRow(5);
    clickLabel(pages::Settings);
    press(31);
    expectError(RuntimeError::SubscriptOutOfRange);
    EXPECT_EQ(stored(), before);
}

TEST_F(CategoriesOpeningTest, TheRowOfTheLoanGridMattersToEmptyMajorsAlone) {
    store({u"NULL|1|"_s, u"甲|2|"_s, u"乙|3|"_s});
    ms1().setRows(9);
    ms1().setRow(5);
    open();
    EXPECT_FALSE(rig.ended());
    EXPECT_EQ(majors().size(), 3);
}

TEST_F(CategoriesOpeningTest, TheOtherOptionDropsWhatWasNotSaved) {
    store({u"日常生活|买菜|mc"_s}, Expense);
    openWith({u"甲|1|a"_s});
    fillMajor(1, u"改过"_s);
    press(7);
    clickMajor(1);
    choose(Expense);
    EXPECT_FALSE(tx3().Visible());
    EXPECT_FALSE(minorsUsable());
    choose(Income);
    EXPECT_EQ(majors(), QStringList{u"甲"_s});
    EXPECT_TRUE(rig.messages->shown.empty());
}

TEST_F(CategoriesOpeningTest, ASecondClickOnTheSameOptionChangesNothing) {
    openWith({u"甲|1|a"_s});
    fillMajor(1, u"改过"_s);
    choose(Income);
    EXPECT_EQ(majors(), QStringList{u"改过"_s});
}

TEST_F(CategoriesOpeningTest, APageLabelHidesItAndClosesTheMinors) {
    openWith({u"甲|1|a"_s});
    for (const LabelledPage& page : LabelledPages) {
        open();
        clickMajor(1);
        ASSERT_TRUE(minorsUsable());
        clickLabel(page.label);
        EXPECT_FALSE(frame3().Visible()) << std::string(page.label);
        EXPECT_FALSE(minorsUsable()) << std::string(page.label);
        EXPECT_TRUE(ms3().isEnabled()) << std::string(page.label);
    }
}

TEST_F(CategoriesOpeningTest, TheBorrowedListHidesItAndClosesTheMinors) {
    openWith({u"甲|1|a"_s});
    clickMajor(1);
    rig.click(rig.at(loans::Picture));
    rig.settle();
    EXPECT_FALSE(frame3().Visible());
    EXPECT_FALSE(minorsUsable());
}

TEST_F(CategoriesOpeningTest, TheMinorsAreClosedFromTheFirstChangeOfPageOn) {
    EXPECT_TRUE(minorsUsable());
    clickLabel(pages::Budget);
    EXPECT_FALSE(minorsUsable());
}

TEST_F(CategoriesOpeningTest, TheSettingsOpenItOnIncomeWheneverItIsOpened) {
    store({u"日常生活|买菜|mc"_s}, Expense);
    openWith({u"甲|1|a"_s});
    for (const Side left : {Expense, Income}) {
        choose(left);
        clickMajor(1);
        fillMajor(1, u"改过"_s);
        clickLabel(pages::Income);
        store({u"乙|%1|"_s.arg(left)});
        open();
        EXPECT_TRUE(option(Income).Value());
        EXPECT_EQ(majors(), (QStringList{u"乙"_s, u"甲"_s}));
        EXPECT_FALSE(tx3().Visible());
        EXPECT_FALSE(minorsUsable());
    }
}

TEST_F(CategoriesOpeningTest, TabComesToTheOptionInForceAndTheArrowsChangeSides) {
    store({u"日常生活|买菜|mc"_s}, Expense);
    openWith({u"甲|1|a"_s});
    EXPECT_EQ(QApplication::focusWidget(), &rig.mainWindow());
    rig.press(rig.mainWindow(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &option(Income));
    rig.press(option(Income), Qt::Key_Right);
    EXPECT_EQ(majors(), QStringList{u"日常生活"_s});
    EXPECT_EQ(QApplication::focusWidget(), &option(Expense));
    rig.press(option(Expense), Qt::Key_Left);
    EXPECT_EQ(majors(), QStringList{u"甲"_s});
}

TEST_F(CategoriesOpeningTest, AClickBesideTheListsLeavesTheEditorOpen) {
    openWith({u"甲|1|a"_s});
    clickMajor(1);
    QTest::mouseClick(&frame3(), Qt::LeftButton, {}, QPoint(400, 60));
    rig.click(rig.at(categories::MajorsFrame));
    EXPECT_TRUE(tx3().Visible());
    pressBareForm(40);
    EXPECT_TRUE(tx3().Visible());
    EXPECT_EQ(majors(), QStringList{u"甲"_s});
}

TEST_F(CategoriesOpeningTest, ItsButtonsShowTheHandAndStayWhite) {
    openWith({u"甲|1|a"_s});
    clickMajor(1);
    for (int number = 7; number <= 12; ++number) {
        rig.hover(command(number));
        EXPECT_EQ(command(number).cursor().shape(), Qt::PointingHandCursor) << number;
        EXPECT_EQ(command(number).BackColor(), 0xFFFFFFu) << number;
    }
}

} // namespace
} // namespace qinghe::testing
