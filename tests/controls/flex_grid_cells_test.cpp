#include "controls/ms_flex_grid.h"
#include "window_fixture.h"

namespace qinghe::testing {
namespace {

constexpr int OutOfRange = RuntimeError::SubscriptOutOfRange;

class GridCells : public ::testing::Test {
protected:
    /// Five rows and four columns, each cell holding its place: "r3c2".
    void fill() {
        grid.setRows(5);
        grid.setCols(4);
        for (int row = 0; row < 5; ++row)
            for (int col = 0; col < 4; ++col)
                grid.setTextMatrix(row, col, u"r%1c%2"_s.arg(row).arg(col));
    }
    MSFlexGrid grid{nullptr, u"ms2"_s};
};

TEST_F(GridCells, AFreshGridHasTwoRowsAndTwoColumnsAndStandsOnItsOneCell) {
    EXPECT_EQ(grid.Rows(), 2);
    EXPECT_EQ(grid.Cols(), 2);
    EXPECT_EQ(grid.Row(), 1);
    EXPECT_EQ(grid.Col(), 1);
    EXPECT_EQ(grid.Text(), QString());
}

TEST_F(GridCells, TextIsThatOfTheCurrentCell) {
    fill();
    grid.setRow(3);
    grid.setCol(2);
    EXPECT_EQ(grid.Text(), u"r3c2"_s);
    grid.setText(u"午饭"_s);
    EXPECT_EQ(grid.TextMatrix(3, 2), u"午饭"_s);
    EXPECT_EQ(grid.TextMatrix(2, 2), u"r2c2"_s);
}

TEST_F(GridCells, CaptionsAndMarkersAreRowAndColumnZero) {
    fill();
    grid.setRow(0);
    grid.setCol(0);
    EXPECT_EQ(grid.Text(), u"r0c0"_s);
}

TEST_F(GridCells, ARowOrColumnOutOfRangeIsTheSubscriptError) {
    fill();
    for (const int row : {-1, 5, 32767}) {
        EXPECT_EQ(errorOf([&] { grid.setRow(row); }), OutOfRange) << row;
        EXPECT_EQ(errorOf([&] { grid.TextMatrix(row, 1); }), OutOfRange) << row;
        EXPECT_EQ(errorOf([&] { grid.setTextMatrix(row, 1, {}); }), OutOfRange) << row;
        EXPECT_EQ(errorOf([&] { grid.RowPos(row); }), OutOfRange) << row;
        EXPECT_EQ(errorOf([&] { grid.RowHeight(row); }), OutOfRange) << row;
        EXPECT_EQ(errorOf([&] { grid.setRowHeight(row, 300); }), OutOfRange) << row;
        EXPECT_EQ(errorOf([&] { grid.RemoveItem(row); }), OutOfRange) << row;
        EXPECT_EQ(errorOf([&] { grid.cellRect(row, 1); }), OutOfRange) << row;
    }
    for (const int col : {-1, 4}) {
        EXPECT_EQ(errorOf([&] { grid.setCol(col); }), OutOfRange) << col;
        EXPECT_EQ(errorOf([&] { grid.TextMatrix(1, col); }), OutOfRange) << col;
        EXPECT_EQ(errorOf([&] { grid.setTextMatrix(1, col, {}); }), OutOfRange) << col;
        EXPECT_EQ(errorOf([&] { grid.ColPos(col); }), OutOfRange) << col;
        EXPECT_EQ(errorOf([&] { grid.ColWidth(col); }), OutOfRange) << col;
        EXPECT_EQ(errorOf([&] { grid.setColWidth(col, 300); }), OutOfRange) << col;
    }
    EXPECT_EQ(grid.Row(), 1);
    EXPECT_EQ(grid.Col(), 1);
}

TEST_F(GridCells, AGridCannotLoseAllItsRowsOrColumns) {
    EXPECT_EQ(errorOf([this] { grid.setRows(0); }), OutOfRange);
    EXPECT_EQ(errorOf([this] { grid.setRows(-3); }), OutOfRange);
    EXPECT_EQ(errorOf([this] { grid.setCols(0); }), OutOfRange);
    EXPECT_EQ(grid.Rows(), 2);
}

TEST_F(GridCells, ShrinkingDropsCellsAndRegrownOnesAreBlank) {
    fill();
    grid.setRows(2);
    grid.setRows(5);
    EXPECT_EQ(grid.TextMatrix(1, 2), u"r1c2"_s);
    EXPECT_EQ(grid.TextMatrix(2, 2), QString());
    EXPECT_EQ(grid.TextMatrix(4, 3), QString());
    grid.setCols(2);
    grid.setCols(4);
    EXPECT_EQ(grid.TextMatrix(1, 1), u"r1c1"_s);
    EXPECT_EQ(grid.TextMatrix(1, 2), QString());
    EXPECT_EQ(grid.TextMatrix(0, 1), u"r0c1"_s);
}

TEST_F(GridCells, ShrinkingTakesTheCurrentCellAlong) {
    fill();
    grid.setRow(4);
    grid.setCol(3);
    grid.setRows(3);
    grid.setCols(2);
    EXPECT_EQ(grid.Row(), 2);
    EXPECT_EQ(grid.Col(), 1);
    EXPECT_EQ(grid.Text(), u"r2c1"_s);
}

TEST_F(GridCells, GrowingKeepsWhatIsThere) {
    fill();
    grid.setCols(6);
    grid.setRows(9);
    EXPECT_EQ(grid.TextMatrix(4, 3), u"r4c3"_s);
    EXPECT_EQ(grid.TextMatrix(4, 5), QString());
    EXPECT_EQ(grid.TextMatrix(8, 1), QString());
}

TEST_F(GridCells, RemoveItemTakesARowOutAndTheOthersMoveUp) {
    fill();
    grid.setRow(4);
    grid.RemoveItem(2);
    EXPECT_EQ(grid.Rows(), 4);
    EXPECT_EQ(grid.TextMatrix(1, 1), u"r1c1"_s);
    EXPECT_EQ(grid.TextMatrix(2, 1), u"r3c1"_s);
    EXPECT_EQ(grid.TextMatrix(3, 3), u"r4c3"_s);
    EXPECT_EQ(grid.Row(), 3);
}

TEST_F(GridCells, TheLastDataRowAndTheCaptionsCannotBeRemoved) {
    EXPECT_NE(errorOf([this] { grid.RemoveItem(1); }), 0);
    fill();
    EXPECT_NE(errorOf([this] { grid.RemoveItem(0); }), 0);
    EXPECT_EQ(grid.Rows(), 5);
}

TEST_F(GridCells, EveryRowIsThreeHundredTwipsHigh) {
    fill();
    EXPECT_EQ(grid.RowHeight(0), 300);
    EXPECT_EQ(grid.RowHeight(4), 300);
    EXPECT_EQ(errorOf([this] { grid.setRowHeight(1, 300); }), 0);
    EXPECT_NE(errorOf([this] { grid.setRowHeight(1, 450); }), 0);
}

TEST_F(GridCells, ARefusedPlaceIsToldInChineseWithItsNumber) {
    try {
        grid.setRow(7);
        FAIL();
    } catch (const RuntimeError& error) {
        EXPECT_TRUE(error.text().contains(u"表格"_s)) << error.what();
        EXPECT_TRUE(error.text().contains(u'7')) << error.what();
    }
}

TEST_F(GridCells, EverythingIsReachedFromOutsideByName) {
    fill();
    QObject& outside = grid;
    EXPECT_EQ(outside.objectName(), u"ms2"_s);
    EXPECT_EQ(outside.property("Rows").toInt(), 5);
    EXPECT_EQ(outside.property("Cols").toInt(), 4);
    EXPECT_TRUE(outside.setProperty("Row", 2));
    EXPECT_TRUE(outside.setProperty("Col", 3));
    EXPECT_EQ(outside.property("Text").toString(), u"r2c3"_s);
    EXPECT_TRUE(outside.setProperty("Text", u"外面"_s));
    QString text;
    double width = 0, height = 0;
    QRect rect;
    EXPECT_TRUE(
        QMetaObject::invokeMethod(&outside, "TextMatrix", Q_RETURN_ARG(QString, text), Q_ARG(int, 2), Q_ARG(int, 3)));
    EXPECT_TRUE(QMetaObject::invokeMethod(&outside, "ColWidth", Q_RETURN_ARG(double, width), Q_ARG(int, 1)));
    EXPECT_TRUE(QMetaObject::invokeMethod(&outside, "RowHeight", Q_RETURN_ARG(double, height), Q_ARG(int, 1)));
    EXPECT_TRUE(
        QMetaObject::invokeMethod(&outside, "cellRect", Q_RETURN_ARG(QRect, rect), Q_ARG(int, 2), Q_ARG(int, 3)));
    EXPECT_TRUE(QMetaObject::invokeMethod(&outside, "ensureVisible", Q_ARG(int, 4), Q_ARG(int, 1)));
    EXPECT_EQ(text, u"外面"_s);
    EXPECT_EQ(width, grid.ColWidth(1));
    EXPECT_EQ(height, 300);
    EXPECT_EQ(rect, grid.cellRect(2, 3));
}

} // namespace
} // namespace qinghe::testing
