#include "ledger/income_rig.h"

#include <QApplication>

// A click on a cell lays the editor over it and opens the tool of its column; a click in the editor brings a tool back.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class CellClickTest : public IncomeTest {
protected:
    CellClickTest() { openWith(3); }
};

TEST_F(CellClickTest, LaysTheEditorExactlyOverTheCellAndCopiesItsText) {
    clickCell(2, 4);
    EXPECT_EQ(current(), u"2,4");
    EXPECT_TRUE(tx2().isVisible());
    EXPECT_EQ(tx2().Text(), u"人2");
    EXPECT_EQ(tx2().Left(), 120 + 300 + 3 * 1150);
    EXPECT_EQ(tx2().Top(), 840 + 2 * 300);
    EXPECT_EQ(tx2().Width(), 1150);
    EXPECT_EQ(tx2().Height(), 300);
    expectEditorOver(2, 4);
}

TEST_F(CellClickTest, CoversEveryCellWithoutGapOrOverlap) {
    for (int row = 1; row <= 3; ++row)
        for (const int col : {1, 2, 3, 4, 5, 6, 7}) {
            clickCell(row, col);
            expectEditorOver(row, col);
            EXPECT_EQ(rig.at(income::Page).childAt(tx2().geometry().center()), &tx2());
        }
}

TEST_F(CellClickTest, GivesTheEditorTheKeyboard) {
    clickCell(1, 3);
    EXPECT_EQ(QApplication::focusWidget(), &tx2());
    EXPECT_EQ(tools(), u"none");
}

TEST_F(CellClickTest, OpensTheDatePickerUnderTheDateColumn) {
    clickCell(2, 2);
    EXPECT_EQ(tools(), forms::DatePicker);
    EXPECT_EQ(shared().dateTarget, 3);
    expectUnderEditor(forms::DatePicker);
    EXPECT_TRUE(tx2().isEnabled()); // a date can be typed as well
    EXPECT_EQ(QApplication::focusWidget(), &tx2());
    EXPECT_FALSE(rig.loaded(forms::DatePicker)->isModal());
}

TEST_F(CellClickTest, OpensTheCalculatorUnderTheAmountColumnAndClosesTheEditorToKeys) {
    clickCell(2, 5);
    EXPECT_EQ(tools(), forms::Calculator);
    EXPECT_EQ(shared().calcTarget, 1);
    expectUnderEditor(forms::Calculator);
    EXPECT_FALSE(tx2().isEnabled());
    EXPECT_TRUE(tx2().isVisible());
    EXPECT_EQ(tx2().Text(), u"2.5");
    EXPECT_FALSE(rig.loaded(forms::Calculator)->isModal());
}

TEST_F(CellClickTest, LetsNoKeyReachTheAmountColumn) {
    clickCell(2, 5);
    rig.type(tx2(), u"9"_s);
    rig.press(tx2(), Qt::Key_Backspace);
    enter();
    escape();
    EXPECT_EQ(tx2().Text(), u"2.5");
    EXPECT_EQ(ms2().TextMatrix(2, 5), u"2.5");
    EXPECT_EQ(current(), u"2,5");
    EXPECT_TRUE(tx2().Visible());
}

TEST_F(CellClickTest, ClosesTheToolsOnEveryOtherColumn) {
    for (const int col : {1, 3, 4, 6, 7}) {
        clickCell(1, 2);
        clickCell(1, col);
        EXPECT_EQ(tools(), u"none");
        clickCell(1, 5);
        clickCell(1, col);
        EXPECT_EQ(tools(), u"none");
        EXPECT_TRUE(tx2().isEnabled());
        EXPECT_EQ(QApplication::focusWidget(), &tx2());
    }
}

TEST_F(CellClickTest, ChangesOneToolForTheOtherBetweenTheirColumns) {
    clickCell(1, 2);
    clickCell(1, 5);
    EXPECT_EQ(tools(), forms::Calculator);
    clickCell(1, 2);
    EXPECT_EQ(tools(), forms::DatePicker);
    EXPECT_TRUE(tx2().isEnabled());
}

TEST_F(CellClickTest, MovesAnOpenToolUnderTheNextCellOfItsColumn) {
    clickCell(1, 5);
    Form* calculator = rig.loaded(forms::Calculator);
    rig.type(*calculator, u"12"_s);
    clickCell(3, 5);
    EXPECT_EQ(rig.loaded(forms::Calculator), calculator);
    expectUnderEditor(forms::Calculator);
    EXPECT_EQ(rig.at(calculator::Display).Text(), u"12");
}

TEST_F(CellClickTest, DoesNothingWhileTheGridShowsStatistics) {
    for (const auto& view : {income::ByItem, income::ByPerson}) {
        choose(view);
        ms2().setUsable(true);
        clickCell(1, 1);
        EXPECT_FALSE(tx2().Visible());
        clickCell(1, 2);
        EXPECT_EQ(tools(), u"none");
    }
}

TEST_F(CellClickTest, BringsAClosedDatePickerBackByAClickInTheEditor) {
    clickCell(1, 2);
    rig.loaded(forms::DatePicker)->close();
    EXPECT_EQ(tools(), u"none");
    shared().dateTarget = 1;
    rig.click(tx2());
    EXPECT_EQ(tools(), forms::DatePicker);
    EXPECT_EQ(shared().dateTarget, 3);
    expectUnderEditor(forms::DatePicker);
}

TEST_F(CellClickTest, BringsTheCalculatorBackByAClickInTheEditorWhenItStandsOnTheAmount) {
    clickCell(1, 4);
    ms2().setCol(5); // as the arrow keys of the grid do
    rig.click(tx2());
    EXPECT_EQ(tools(), forms::Calculator);
    EXPECT_EQ(shared().calcTarget, 1);
    EXPECT_FALSE(tx2().isEnabled());
}

TEST_F(CellClickTest, ClosesTheCalculatorByAClickInTheEditorOnAnotherColumn) {
    clickCell(1, 5);
    ms2().setCol(4);
    tx2().setUsable(true);
    rig.click(tx2());
    EXPECT_EQ(tools(), u"none");
    EXPECT_TRUE(tx2().isEnabled());
}

TEST_F(CellClickTest, TakesAPressOnTheCaptionsForNothing) {
    clickCell(2, 3);
    const QPoint caption = ms2().cellRect(0, 4).center();
    QTest::mouseClick(QApplication::widgetAt(ms2().mapToGlobal(caption)), Qt::LeftButton);
    QTest::mouseClick(ms2().viewport(), Qt::LeftButton, {}, QPoint(50, ms2().viewport()->height() - 5));
    EXPECT_EQ(current(), u"2,3");
    expectEditorOver(2, 3);
}

} // namespace
} // namespace qinghe::testing
