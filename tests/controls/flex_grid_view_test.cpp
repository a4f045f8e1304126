#include "controls/ms_flex_grid.h"
#include "window_fixture.h"

#include <QHelpEvent>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTextDocument>
#include <QToolTip>

namespace qinghe::testing {
namespace {

/// A grid on a page, 8 rows high and 380 pixels wide, with forty rows of ten columns to scroll.
class GridView : public WindowTest {
protected:
    void SetUp() override {
        WindowTest::SetUp();
        handlers::enter([this] {
            grid.setRows(41);
            grid.setCols(11);
            grid.setColWidth(0, 300);
            grid.setTextMatrix(0, 3, u"备注"_s);
            grid.setTextMatrix(2, 3, u"午饭"_s);
        });
        turnLoop();
    }

    Frame& frame = put<Frame>(form, u"Frame2"_s, {0, 0, 6000, 4500});
    MSFlexGrid& grid = put<MSFlexGrid>(frame, u"ms2"_s, {150, 300, 5700, 2400});
};

TEST_F(GridView, ManyWritesInAHandlerAreOneResetOfTheView) {
    QSignalSpy resets(grid.model(), &QAbstractItemModel::modelReset);
    handlers::enter([this, &resets] {
        grid.setRows(2);
        for (int row = 1; row <= 500; ++row) {
            grid.setRows(row + 1);
            grid.setRow(row);
            for (int col = 1; col < grid.Cols(); ++col)
                grid.setTextMatrix(row, col, u"%1"_s.arg(row));
        }
        EXPECT_EQ(resets.count(), 0);
    });
    EXPECT_EQ(resets.count(), 1);
    EXPECT_EQ(grid.model()->rowCount(), 500);
}

TEST_F(GridView, TextsAloneNeedNoResetAndAreSeen) {
    QSignalSpy resets(grid.model(), &QAbstractItemModel::modelReset);
    handlers::enter([this] { grid.setTextMatrix(4, 1, u"晚饭"_s); });
    EXPECT_EQ(resets.count(), 0);
    EXPECT_EQ(grid.model()->index(3, 0).data().toString(), u"晚饭"_s);
    EXPECT_EQ(grid.model()->headerData(2, Qt::Horizontal).toString(), u"备注"_s);
}

TEST_F(GridView, TheViewIsBroughtUpToDateBeforeABox) {
    handlers::enter([this] {
        grid.setRows(4);
        handlers::boundary();
        EXPECT_EQ(grid.model()->rowCount(), 3);
    });
}

TEST_F(GridView, WritesFromOutsideAHandlerAreSeenWithTheNextTurn) {
    grid.setProperty("Rows", 4);
    turnLoop();
    EXPECT_EQ(grid.model()->rowCount(), 3);
}

TEST_F(GridView, AGridThatGoesWithAnUpdateDueDoesNoHarm) {
    auto* doomed = new MSFlexGrid(&frame, u"ms9"_s);
    handlers::enter([doomed] {
        doomed->setRows(9);
        delete doomed;
    });
    EXPECT_FALSE(handlers::ending());
}

TEST_F(GridView, ColumnsFollowEachOtherFromTheMarkerColumnOn) {
    grid.setColWidth(1, 1150);
    grid.setColWidth(2, 3900);
    EXPECT_EQ(grid.ColPos(0), 0);
    EXPECT_EQ(grid.ColPos(1), 300);
    EXPECT_EQ(grid.ColPos(2), 1450);
    EXPECT_EQ(grid.ColPos(3), 5350);
    EXPECT_EQ(grid.RowPos(0), 0);
    EXPECT_EQ(grid.RowPos(1), 300);
    EXPECT_EQ(grid.RowPos(5), 1500);
}

TEST_F(GridView, PlacesFollowTheScroll) {
    grid.ensureVisible(40, 10);
    const int pixels = grid.horizontalScrollBar()->value();
    ASSERT_GT(grid.verticalScrollBar()->value(), 0);
    ASSERT_GT(pixels, 0);
    EXPECT_EQ(grid.RowPos(40), 300 + grid.rowViewportPosition(39) * 15.0);
    EXPECT_EQ(grid.RowPos(40) - grid.RowPos(38), 600);
    EXPECT_LE(grid.RowPos(1), 0);
    EXPECT_EQ(grid.ColPos(1), 300 - pixels * 15.0);
    EXPECT_EQ(grid.RowPos(0), 0);
    EXPECT_EQ(grid.ColPos(0), 0);
}

TEST_F(GridView, ACellsPlaceIsWhereTheViewShowsIt) {
    grid.ensureVisible(20, 4);
    const QRect seen = grid.visualRect(grid.model()->index(19, 3)).translated(grid.viewport()->pos());
    EXPECT_EQ(grid.cellRect(20, 4), seen);
    EXPECT_TRUE(grid.cellRoom().contains(seen));
}

TEST_F(GridView, SettingTheRowScrollsItIntoViewAtTheEndOfTheHandler) {
    handlers::enter([this] {
        grid.setRow(35);
        grid.setCol(1);
    });
    EXPECT_TRUE(grid.cellRoom().contains(grid.cellRect(35, 1)));
    handlers::enter([this] { grid.setRow(1); });
    EXPECT_EQ(grid.verticalScrollBar()->value(), 0);
}

TEST_F(GridView, TheScrollStaysWhenRowsAreAddedBelow) {
    grid.verticalScrollBar()->setValue(12);
    handlers::enter([this] { grid.setRows(60); });
    EXPECT_EQ(grid.verticalScrollBar()->value(), 12);
}

TEST_F(GridView, TellsWhenItsCellsHaveMoved) {
    QSignalSpy moved(&grid, &MSFlexGrid::scrolled);
    grid.verticalScrollBar()->setValue(5);
    EXPECT_GE(moved.count(), 1);
}

TEST_F(GridView, PlacesAreThoseOfTheCellsAlsoAtTheEndOfAListThatIsNoWholeNumberOfRowsHigh) {
    handlers::enter([this] { grid.place(150, 300, 5700, 2415); });
    turnLoop();
    for (const int top : {0, 12, grid.verticalScrollBar()->maximum()}) {
        grid.verticalScrollBar()->setValue(top);
        const int row = top + 3;
        const QRect seen = grid.visualRect(grid.model()->index(row - 1, 2)).translated(grid.viewport()->pos());
        EXPECT_EQ(grid.cellRect(row, 3).top(), seen.top()) << top;
        EXPECT_EQ(grid.cellRect(row, 3).bottom(), seen.bottom()) << top;
    }
}

TEST_F(GridView, ATextThatDoesNotFitIsToldWholeAndAsItStands) {
    const QString text = u"<b>周末</b>的菜 & 水果，还有给外婆的药和路费"_s;
    handlers::enter([&] {
        grid.setTextMatrix(1, 1, text);
        grid.setTextMatrix(1, 2, u"盐 & 油，酱油，醋，还有米和面，都买两份"_s);
    });
    for (const int col : {1, 2}) {
        const QPoint at = grid.visualRect(grid.model()->index(0, col - 1)).center();
        QHelpEvent help(QEvent::ToolTip, at, grid.viewport()->mapToGlobal(at));
        QCoreApplication::sendEvent(grid.viewport(), &help);
        const QString tip = QToolTip::text();
        QTextDocument shown;
        if (Qt::mightBeRichText(tip))
            shown.setHtml(tip);
        else
            shown.setPlainText(tip);
        EXPECT_EQ(shown.toPlainText(), grid.TextMatrix(1, col));
    }
    QToolTip::hideText();
}

TEST_F(GridView, TakesTheKeyboardOnlyWhileItsPageIsOnView) {
    grid.takeFocus();
    EXPECT_TRUE(grid.hasFocus());
    auto& box = put<TextBox>(form, u"tx2"_s, {0, 0, 300, 300});
    box.raise();
    box.takeFocus();
    frame.setShown(false);
    grid.takeFocus();
    EXPECT_TRUE(box.hasFocus());
}

} // namespace
} // namespace qinghe::testing
