#include "controls/ms_flex_grid.h"
#include "window_fixture.h"

#include <QScrollBar>

namespace qinghe::testing {
namespace {

/// A grid with room to spare below its four rows and beside its three columns.
class GridMouse : public WindowTest {
protected:
    void SetUp() override {
        WindowTest::SetUp();
        handlers::enter([this] {
            grid.setRows(5);
            grid.setCols(4);
            grid.setColWidth(0, 300);
        });
        grid.Click = [this] { note(u"cell %1,%2"_s.arg(grid.Row()).arg(grid.Col())); };
        turnLoop();
        noted();
    }
    QPoint cell(int row, int col) { return grid.cellRect(row, col).center(); }

    Frame& frame = put<Frame>(form, u"Frame2"_s, {0, 0, 6000, 4500});
    MSFlexGrid& grid = put<MSFlexGrid>(frame, u"ms2"_s, {150, 300, 5700, 3900});
};

TEST_F(GridMouse, AClickMakesTheCellCurrentAndIsThenTold) {
    pointer::click(grid, cell(3, 2));
    EXPECT_EQ(noted(), QStringList{u"cell 3,2"_s});
    pointer::click(grid, cell(3, 2));
    EXPECT_EQ(noted(), QStringList{u"cell 3,2"_s});
}

TEST_F(GridMouse, AReleaseOnAnotherCellIsNoClick) {
    pointer::press(grid, cell(2, 2));
    pointer::release(grid, cell(3, 2));
    EXPECT_EQ(noted(), QStringList{});
    EXPECT_EQ(grid.Row(), 1);
}

TEST_F(GridMouse, CaptionsMarkersAndEmptySpaceSelectNothingAndBelongToTheGrid) {
    const QPoint caption = cell(1, 2) - QPoint(0, 20), marker = cell(2, 1) - QPoint(cell(2, 1).x() - 5, 0);
    const QPoint corner(5, 5), below(cell(4, 1) + QPoint(0, 60)), beside(cell(1, 3) + QPoint(120, 0));
    for (const QPoint& at : {caption, marker, corner, below, beside}) {
        pointer::click(grid, at);
        EXPECT_EQ(noted(), QStringList{}) << at.x() << ',' << at.y();
    }
    EXPECT_EQ(grid.Row(), 1);
    EXPECT_EQ(grid.Col(), 1);
}

TEST_F(GridMouse, TheSecondPressOfADoubleClickIsSwallowed) {
    pointer::doubleClick(grid, cell(2, 3));
    EXPECT_EQ(noted(), QStringList{u"cell 2,3"_s});
}

TEST_F(GridMouse, TheSecondPressDoesNotSelectInAnEditorLaidOverTheCell) {
    auto& editor = put<TextBox>(frame, u"tx2"_s, {});
    editor.setShown(false);
    grid.Click = [&] {
        editor.place(grid.Left() + grid.ColPos(grid.Col()), grid.Top() + grid.RowPos(grid.Row()), 960, 300);
        editor.setBoxText(u"一二三"_s);
        editor.setShown(true);
        editor.raise();
    };
    pointer::doubleClick(grid, cell(2, 2));
    EXPECT_EQ(editor.selectedText(), QString());
}

TEST_F(GridMouse, OnlyTheLeftButtonSelects) {
    QTest::mouseClick(form.windowHandle(), Qt::RightButton, {}, grid.mapTo(&form, cell(3, 2)));
    EXPECT_EQ(noted(), QStringList{});
    EXPECT_EQ(grid.Row(), 1);
}

TEST_F(GridMouse, ADisabledGridHandsItsClickToItsPage) {
    grid.setUsable(false);
    EXPECT_FALSE(grid.marksCurrent());
    pointer::click(grid, cell(3, 2));
    EXPECT_EQ(noted(), QStringList{u"Frame2"_s});
    EXPECT_EQ(grid.Row(), 1);
}

TEST_F(GridMouse, TheClickFindsItsCellInAScrolledGrid) {
    handlers::enter([this] { grid.setRows(200); });
    grid.ensureVisible(150, 1);
    pointer::click(grid, cell(148, 2));
    EXPECT_EQ(noted(), QStringList{u"cell 148,2"_s});
}

TEST_F(GridMouse, MovesAreToldAndDoNotReachThePage) {
    grid.MouseMove = [this] { note(u"grid"_s); };
    frame.MouseMove = [this] { note(u"frame"_s); };
    pointer::move(grid, cell(2, 2));
    EXPECT_EQ(noted(), QStringList{u"grid"_s});
}

TEST_F(GridMouse, KeysMoveTheCurrentCellAndStopAtTheEdges) {
    const auto at = [this] { return QPoint(grid.Row(), grid.Col()); };
    grid.takeFocus();
    QTest::keyClick(&grid, Qt::Key_Down);
    QTest::keyClick(&grid, Qt::Key_Right);
    EXPECT_EQ(at(), QPoint(2, 2));
    QTest::keyClick(&grid, Qt::Key_End, Qt::ControlModifier);
    QTest::keyClick(&grid, Qt::Key_Down);
    QTest::keyClick(&grid, Qt::Key_Right);
    EXPECT_EQ(at(), QPoint(4, 3));
    QTest::keyClick(&grid, Qt::Key_Home);
    EXPECT_EQ(at(), QPoint(4, 1));
    QTest::keyClick(&grid, Qt::Key_PageUp);
    QTest::keyClick(&grid, Qt::Key_Left);
    EXPECT_EQ(at(), QPoint(1, 1));
    EXPECT_EQ(noted(), QStringList{});
}

TEST_F(GridMouse, ItsKeysLeaveTheCellUnderAControlThatCoversItAlone) {
    auto& cover = put<TextBox>(frame, u"tx2"_s, {300, 600, 960, 300});
    cover.setUsable(false);
    grid.setCover(&cover);
    grid.setRow(2);
    grid.setCol(2);
    grid.takeFocus();
    for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right, Qt::Key_Home, Qt::Key_End,
                              Qt::Key_PageUp, Qt::Key_PageDown})
        for (const Qt::KeyboardModifier modifier : {Qt::NoModifier, Qt::ControlModifier}) {
            QTest::keyClick(&grid, key, modifier);
            EXPECT_EQ(QPoint(grid.Row(), grid.Col()), QPoint(2, 2)) << key;
        }
    cover.setShown(false);
    QTest::keyClick(&grid, Qt::Key_Down);
    EXPECT_EQ(grid.Row(), 3);
}

TEST_F(GridMouse, NothingCanBeTypedIntoIt) {
    grid.takeFocus();
    QTest::keyClicks(&grid, u"12"_s);
    QTest::keyClick(&grid, Qt::Key_F2);
    EXPECT_EQ(grid.Text(), QString());
    EXPECT_EQ(grid.viewport()->findChild<QLineEdit*>(), nullptr);
}

} // namespace
} // namespace qinghe::testing
