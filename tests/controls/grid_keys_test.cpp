#include "controls/grid_keys.h"

#include <gtest/gtest.h>
#include <utility>

namespace qinghe {
namespace {

using Place = std::pair<int, int>;

/// Where a key leads from a cell of a list of 20 rows and 4 columns that shows 5 rows a page; {0, 0}: nowhere.
Place after(int key, Place from, Qt::KeyboardModifiers modifiers = {}) {
    const QKeyEvent event(QEvent::KeyPress, key, modifiers);
    const auto cell = cellAfterKey(event, {from.first, from.second}, {20, 4}, 5);
    return cell ? Place(cell->row, cell->col) : Place(0, 0);
}

TEST(GridKeys, ArrowsGoToTheNextCell) {
    EXPECT_EQ(after(Qt::Key_Up, {3, 2}), Place(2, 2));
    EXPECT_EQ(after(Qt::Key_Down, {3, 2}), Place(4, 2));
    EXPECT_EQ(after(Qt::Key_Left, {3, 2}), Place(3, 1));
    EXPECT_EQ(after(Qt::Key_Right, {3, 2}), Place(3, 3));
}

TEST(GridKeys, PageKeysHomeAndEnd) {
    EXPECT_EQ(after(Qt::Key_PageUp, {12, 2}), Place(7, 2));
    EXPECT_EQ(after(Qt::Key_PageDown, {12, 2}), Place(17, 2));
    EXPECT_EQ(after(Qt::Key_Home, {12, 3}), Place(12, 1));
    EXPECT_EQ(after(Qt::Key_End, {12, 3}), Place(12, 4));
    EXPECT_EQ(after(Qt::Key_Home, {12, 3}, Qt::ControlModifier), Place(1, 1));
    EXPECT_EQ(after(Qt::Key_End, {12, 3}, Qt::ControlModifier), Place(20, 4));
}

TEST(GridKeys, NoKeyLeadsOutOfTheDataCells) {
    EXPECT_EQ(after(Qt::Key_Up, {1, 1}), Place(1, 1));
    EXPECT_EQ(after(Qt::Key_Left, {1, 1}), Place(1, 1));
    EXPECT_EQ(after(Qt::Key_Down, {20, 4}), Place(20, 4));
    EXPECT_EQ(after(Qt::Key_Right, {20, 4}), Place(20, 4));
    EXPECT_EQ(after(Qt::Key_PageUp, {3, 4}), Place(1, 4));
    EXPECT_EQ(after(Qt::Key_PageDown, {18, 4}), Place(20, 4));
    EXPECT_EQ(after(Qt::Key_Up, {0, 0}), Place(1, 1));
}

TEST(GridKeys, OtherKeysAreNoneOfTheGrids) {
    EXPECT_EQ(after(Qt::Key_Return, {3, 2}), Place(0, 0));
    EXPECT_EQ(after(Qt::Key_A, {3, 2}), Place(0, 0));
    EXPECT_EQ(after(Qt::Key_Tab, {3, 2}), Place(0, 0));
}

} // namespace
} // namespace qinghe
