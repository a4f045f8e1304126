#include "controls/grid_columns.h"

#include <gtest/gtest.h>

namespace qinghe {
namespace {

GridColumns columnsOf(const std::vector<double>& widths) {
    GridColumns columns;
    columns.resize(static_cast<int>(widths.size()));
    for (std::size_t col = 0; col < widths.size(); ++col)
        columns.setWidth(static_cast<int>(col), widths[col]);
    return columns;
}

TEST(GridColumns, BeginWithAMarkerAndOneColumnOfTheUsualWidth) {
    const GridColumns columns;
    EXPECT_EQ(columns.width(1), 960);
    EXPECT_EQ(columns.left(2), 1920);
}

TEST(GridColumns, ColumnsThatComeAnewHaveTheUsualWidthAndOthersKeepTheirs) {
    GridColumns columns = columnsOf({300, 1200});
    columns.resize(3);
    EXPECT_EQ(columns.width(1), 1200);
    EXPECT_EQ(columns.width(2), 960);
    EXPECT_EQ(columns.left(3), 2460);
}

TEST(GridColumns, NeighboursMeetOnWholePixels) {
    const GridColumns columns = columnsOf({308, 308, 308});
    EXPECT_EQ(columns.pixels(0), 21);
    EXPECT_EQ(columns.pixels(1), 20);
    EXPECT_EQ(columns.pixels(2), 21);
}

TEST(GridColumns, TheLastGivesWayByAQuarterAtMost) {
    const GridColumns columns = columnsOf({300, 1500, 1500}); // 20, 100 and 100 pixels
    EXPECT_EQ(columns.lastPixels(400), 100);
    EXPECT_EQ(columns.lastPixels(220), 100);
    EXPECT_EQ(columns.lastPixels(205), 85);
    EXPECT_EQ(columns.lastPixels(195), 75);
    EXPECT_EQ(columns.lastPixels(194), 100);
}

} // namespace
} // namespace qinghe
