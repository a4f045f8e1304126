#include "ledger/income_rig.h"

#include <QScrollBar>

// The editor follows its cell when the grid scrolls, and is out of sight while the cell is.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class EditorScrollTest : public IncomeTest {
protected:
    EditorScrollTest() { openWith(40); }

    void scrollTo(int firstRow) {
        ms2().verticalScrollBar()->setValue(firstRow - 1);
        rig.settle();
    }
    bool inSight() { return rig.at(income::Page).childAt(tx2().geometry().center()) == &tx2(); }
};

TEST_F(EditorScrollTest, FollowsItsCell) {
    ms2().ensureVisible(1, 1);
    clickCell(5, 3);
    for (const int first : {2, 4, 5, 3, 1}) {
        scrollTo(first);
        EXPECT_EQ(ms2().RowPos(5), (5 - first + 1) * 300);
        expectEditorOver(5, 3);
        EXPECT_TRUE(inSight());
    }
}

TEST_F(EditorScrollTest, IsOutOfSightAboveAndBelowTheList) {
    scrollTo(10);
    clickCell(12, 3);
    scrollTo(12);
    EXPECT_TRUE(inSight());
    scrollTo(13); // would lie over the captions
    EXPECT_FALSE(inSight());
    scrollTo(26);
    EXPECT_FALSE(inSight());
    scrollTo(9);
    EXPECT_TRUE(inSight());
    clickCell(9, 3);
    scrollTo(1);
    EXPECT_TRUE(inSight());
    clickCell(12, 3);
    scrollTo(26);
    clickCell(38, 3);
    scrollTo(1); // far below
    EXPECT_FALSE(inSight());
    EXPECT_TRUE(tx2().Visible());
}

TEST_F(EditorScrollTest, KeepsItsTextAndCellWhileItIsOutOfSight) {
    scrollTo(1);
    clickCell(2, 3);
    write(u"写着"_s);
    scrollTo(20);
    scrollTo(1);
    EXPECT_EQ(tx2().Text(), u"写着");
    enter();
    EXPECT_EQ(ms2().TextMatrix(2, 3), u"写着");
}

TEST_F(EditorScrollTest, ComesIntoSightWithTheCellThatEnterMovesTo) {
    scrollTo(1);
    clickCell(1, 7);
    for (int row = 1; row < 40; ++row) {
        enter();
        ASSERT_EQ(current(), u"%1,1"_s.arg(row + 1));
        rig.settle();
        expectEditorOver(row + 1, 1);
        ASSERT_TRUE(inSight());
        ms2().setCol(7);
    }
}

TEST_F(EditorScrollTest, LiesOverTheLastRowAfterAnAddAndAClick) {
    rig.click(add());
    rig.settle();
    EXPECT_EQ(ms2().Row(), 41);
    EXPECT_GT(ms2().RowPos(41), 0);
    EXPECT_LT(ms2().RowPos(41), 4815);
    clickCell(41, 1);
    expectEditorOver(41, 1);
    EXPECT_TRUE(inSight());
}

TEST_F(EditorScrollTest, CountsTheRowsOfALongListFromItsScroll) {
    ms2().setRow(40);
    rig.settle();
    clickCell(40, 6);
    EXPECT_EQ(tx2().Text(), u"账户40");
    expectEditorOver(40, 6);
}

} // namespace
} // namespace qinghe::testing
