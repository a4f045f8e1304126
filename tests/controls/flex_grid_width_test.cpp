#include "controls/ms_flex_grid.h"
#include "window_fixture.h"

#include <QScrollBar>

// Columns that share the width of their list, and a list that grows beyond its height.

namespace qinghe::testing {
namespace {

constexpr double Width = 5700;

class GridWidth : public WindowTest {
protected:
    /// Three columns, which with the marker column are `total` twips wide.
    void lay(double total, int rows) {
        handlers::enter([this, total, rows] {
            grid.setCols(4);
            grid.setColWidth(0, 300);
            for (int col = 1; col < 4; ++col)
                grid.setColWidth(col, (total - 300) / 3);
            grid.setRows(rows);
        });
        turnLoop();
    }
    bool movesSideways() { return grid.horizontalScrollBar()->maximum() > 0; }
    void expectWhole(int rows) {
        EXPECT_FALSE(movesSideways());
        EXPECT_FALSE(grid.horizontalScrollBar()->isVisible());
        EXPECT_EQ(grid.cellRect(rows - 1, 3).right(), grid.cellRoom().right());
        grid.ensureVisible(rows - 1, 1);
        EXPECT_TRUE(grid.cellRoom().contains(grid.cellRect(rows - 1, 3)));
        EXPECT_EQ(grid.ColPos(1), 300);
    }

    Frame& frame = put<Frame>(form, u"Frame2"_s, {0, 0, 6000, 4500});
    MSFlexGrid& grid = put<MSFlexGrid>(frame, u"ms2"_s, {150, 300, Width, 2400});
};

TEST_F(GridWidth, TheLastColumnGivesWayToTheUprightBar) {
    lay(Width - 90, 41);
    EXPECT_TRUE(grid.verticalScrollBar()->isVisible());
    expectWhole(41);
    EXPECT_EQ(grid.ColWidth(3), (Width - 390) / 3);
}

TEST_F(GridWidth, TheLastColumnHasItsOwnWidthWithoutTheBar) {
    lay(Width - 90, 41);
    lay(Width - 90, 3);
    EXPECT_FALSE(grid.verticalScrollBar()->isVisible());
    EXPECT_EQ(grid.cellRect(1, 3).width(), 118);
    EXPECT_EQ(grid.ColPos(3) + grid.ColWidth(3), Width - 90);
}

TEST_F(GridWidth, AlsoColumnsThatReachALittleBeyondTheListEndWithIt) {
    for (const int rows : {3, 41}) {
        lay(Width + 135, rows);
        expectWhole(rows);
    }
}

TEST_F(GridWidth, AListFollowsItsOwnHeight) {
    lay(Width - 90, 6);
    EXPECT_EQ(grid.cellRect(1, 3).width(), 118);
    handlers::enter([this] { grid.place(150, 300, Width, 900); });
    turnLoop();
    expectWhole(6);
    handlers::enter([this] { grid.place(150, 300, Width, 2400); });
    turnLoop();
    EXPECT_EQ(grid.cellRect(1, 3).width(), 118);
}

TEST_F(GridWidth, MuchWiderColumnsMoveSidewaysAndKeepTheirWidth) {
    lay(Width + 3000, 41);
    EXPECT_TRUE(movesSideways());
    EXPECT_EQ(grid.cellRect(1, 3).width(), 187);
}

} // namespace
} // namespace qinghe::testing
