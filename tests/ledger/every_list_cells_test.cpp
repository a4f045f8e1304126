#include "controls/cell_editor.h"
#include "ledger/ledger_lists.h"
#include "support/page_rig.h"

#include <QApplication>

// What the cells of every list have in common: how a text gets in, and how the editor closes.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class EveryListCellsTest : public EveryListTest {
protected:
    EveryListCellsTest() { openWith(2); }

    CellEditor& box() { return static_cast<CellEditor&>(EveryListTest::box()); }
    QString textOf(int row) { return grid().TextMatrix(row, list.text); }
};

INSTANTIATE_TEST_SUITE_P(Of, EveryListCellsTest, ::testing::ValuesIn(LedgerLists), listName);

TEST_P(EveryListCellsTest, ShowTheWholeTableButItsLastField) {
    EXPECT_EQ(grid().Rows(), 3);
    EXPECT_EQ(row(1), list.firstRow.toString());
    EXPECT_EQ(stored().front().count('|'_L1), grid().Cols() - 1); // a field more than the grid has data columns
}

TEST_P(EveryListCellsTest, AreCoveredExactlyByTheEditorWhereverTheyAre) {
    for (int number = 1; number <= 2; ++number)
        for (int col = 1; col <= lastColumn(); ++col) {
            clickCell(number, col);
            expectEditorOver(number, col);
            EXPECT_EQ(box().Text(), grid().TextMatrix(number, col));
        }
}

TEST_P(EveryListCellsTest, AreOfferedWithTheirTextSelected) {
    clickCell(1, list.text);
    EXPECT_EQ(box().selectedText(), textOf(1));
    rig.type(box(), u"改"_s);
    EXPECT_EQ(box().Text(), u"改"_s);
    clickCell(2, list.text);
    enter();
    if (box().isEnabled()) {
        EXPECT_EQ(box().selectedText(), grid().Text());
    }
    clickCell(1, list.amount);
    EXPECT_EQ(box().selectedText(), QString()); // no key reaches it
}

TEST_P(EveryListCellsTest, DifferFromTheirBoxUntilEnterOrEsc) {
    clickCell(1, list.text);
    EXPECT_FALSE(box().differsFromCell());
    write(u"改过"_s);
    EXPECT_TRUE(box().differsFromCell());
    enter();
    EXPECT_FALSE(box().differsFromCell());
    clickCell(1, list.text);
    write(u"不要"_s);
    escape();
    EXPECT_FALSE(box().differsFromCell());
}

TEST_P(EveryListCellsTest, StayAsTheyWereOnEsc) {
    clickCell(1, list.text);
    const QString before = textOf(1);
    write(u"改过"_s);
    escape();
    EXPECT_EQ(textOf(1), before);
    EXPECT_FALSE(box().Visible());
    EXPECT_EQ(current(), u"1,%1"_s.arg(list.text));
    EXPECT_EQ(QApplication::focusWidget(), &grid());
}

TEST_P(EveryListCellsTest, LoseWhatEnterDidNotConfirmWhenAnotherOneIsClicked) {
    clickCell(1, list.text);
    const QString before = textOf(1);
    write(u"改过"_s);
    clickCell(2, list.text);
    EXPECT_EQ(textOf(1), before);
    EXPECT_EQ(box().Text(), textOf(2));
}

TEST_P(EveryListCellsTest, FollowOneAnotherFromTheLastColumnToTheFirstOfTheNextRow) {
    fillCell(1, lastColumn(), u"新备注"_s);
    EXPECT_EQ(grid().TextMatrix(1, lastColumn()), u"新备注");
    EXPECT_EQ(current(), u"2,1");
    EXPECT_TRUE(box().Visible());
    EXPECT_EQ(box().Text(), grid().TextMatrix(2, 1));
    EXPECT_EQ(tools(), list.date == 1 && list.enterPicksDate ? forms::DatePicker : u"none"_s);
    EXPECT_EQ(QApplication::focusWidget(), &box());
    expectEditorOver(2, 1);
}

TEST_P(EveryListCellsTest, EndWithTheLastOneWhichEnterClosesAndStaysOn) {
    fillCell(2, lastColumn(), u"末"_s);
    EXPECT_EQ(grid().TextMatrix(2, lastColumn()), u"末");
    EXPECT_EQ(current(), u"2,%1"_s.arg(lastColumn()));
    EXPECT_FALSE(box().Visible());
    EXPECT_EQ(grid().Rows(), 3);
    EXPECT_EQ(QApplication::focusWidget(), &grid());
}

TEST_P(EveryListCellsTest, TakeNoKeyInAnAmountThatWasClicked) {
    clickCell(2, list.amount);
    EXPECT_EQ(tools(), forms::Calculator);
    expectUnderEditor(forms::Calculator);
    const QString before = box().Text();
    rig.type(box(), u"9"_s);
    enter();
    escape();
    EXPECT_EQ(box().Text(), before);
    EXPECT_EQ(current(), u"2,%1"_s.arg(list.amount));
    EXPECT_TRUE(box().Visible());
    EXPECT_FALSE(box().isEnabled());
}

TEST_P(EveryListCellsTest, TakeAnAmountFromTheCalculator) {
    clickCell(2, list.amount);
    calculate(u"12.5*4"_s);
    EXPECT_EQ(grid().TextMatrix(2, list.amount), u" 50"); // the product has a blank in front
    EXPECT_EQ(tools(), u"none");
}

TEST_P(EveryListCellsTest, KeepAnAmountThatTheCalculatorWasOnlyShown) {
    clickCell(2, list.amount);
    const QString before = box().Text();
    rig.press(*rig.loaded(forms::Calculator), Qt::Key_Return);
    EXPECT_EQ(grid().TextMatrix(2, list.amount), before);
}

TEST_P(EveryListCellsTest, CloseTheToolsWhenATextIsClicked) {
    clickCell(1, list.amount);
    clickCell(1, list.text);
    EXPECT_EQ(tools(), u"none");
    EXPECT_TRUE(box().isEnabled());
    if (list.date == 0)
        return;
    clickCell(1, list.date);
    EXPECT_EQ(tools(), forms::DatePicker);
    clickCell(1, list.text);
    EXPECT_EQ(tools(), u"none");
}

TEST_P(EveryListCellsTest, AreCommittedByAClickOnTheForm) {
    clickCell(1, list.text);
    write(u"未按回车"_s);
    clickForm();
    EXPECT_EQ(textOf(1), u"未按回车");
    EXPECT_FALSE(box().Visible());
}

TEST_P(EveryListCellsTest, AreLeftAloneByAClickOnTheFrameWhichClosesEditorAndTools) {
    clickCell(1, list.text);
    const QString before = textOf(1);
    write(u"未按回车"_s);
    clickFrame();
    EXPECT_EQ(textOf(1), before);
    EXPECT_FALSE(box().Visible());
    for (const int col : {list.amount, list.date}) {
        if (col == 0)
            continue;
        clickCell(1, col);
        clickFrame();
        EXPECT_EQ(tools(), u"none");
    }
}

TEST_P(EveryListCellsTest, LoseEditorAndToolsWhenTheirPageIsOpenedAgain) {
    clickCell(1, list.amount);
    press(rig.at(list.label));
    EXPECT_EQ(tools(), u"none");
    EXPECT_FALSE(box().Visible());
}

} // namespace
} // namespace qinghe::testing
