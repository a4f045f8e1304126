#include "controls/cell_editor.h"
#include "controls/controls.h"
#include "controls/ms_flex_grid.h"
#include "look/colours.h"
#include "look/grid_painter.h"
#include "rendering.h"

#include <QApplication>
#include <QScrollBar>
#include <QStyleOption>
#include <QTest>
#include <QToolTip>

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

constexpr int TextCol = 1, WideAmountCol = 2, NarrowAmountCol = 3;
constexpr double GridLeft = 120, GridTop = 840;

/// A grid on a white ground: a text column and two amount columns, one of them narrow.
struct Grids : ::testing::Test {
    Grids() : grid(&ground, u"ms2"_s), editor(&ground, u"tx2"_s) {
        setGround(ground, Qt::white);
        ground.resize(500, 300);
        grid.place(GridLeft, GridTop, 6000, 3000);
        grid.setCols(4);
        grid.setRows(6);
        grid.setAmountColumns({WideAmountCol, NarrowAmountCol});
        const double widths[] = {300, 1150, 1150, 847};
        for (int col = 0; col < 4; ++col)
            grid.setColWidth(col, widths[col]);
        editor.setRole(Role::CellEditor);
        editor.setShown(false);
        grid.setRow(1);
        QApplication::processEvents();
    }

    QImage cellPicture(int row, int col, double ratio) {
        const QRect cell = grid.cellRect(row, col).translated(grid.pos());
        const QRect inner = cell.adjusted(2, 2, -2, -2);
        return rendered(ground, ratio)
            .copy(QRectF(QPointF(inner.topLeft()) * ratio, QSizeF(inner.size()) * ratio).toRect());
    }
    void layEditor(int row, int col) {
        grid.setRow(row);
        grid.setCol(col);
        editor.place(GridLeft + grid.ColPos(col), GridTop + grid.RowPos(row), grid.ColWidth(col), grid.RowHeight(row));
        editor.setBoxText(grid.TextMatrix(row, col));
        editor.setShown(true);
        editor.raise();
    }

    /// Pixels by which the text of the open box is wider than its room.
    int endsCut() {
        rendered(ground); // the type follows the text when it is painted
        QStyleOptionFrame option;
        option.initFrom(&editor);
        const int room = editor.style()->subElementRect(QStyle::SE_LineEditContents, &option, &editor).width() - 4;
        return std::max(0, qRound(QFontMetricsF(editor.font()).horizontalAdvance(editor.text())) + 1 - room);
    }

    QWidget ground;
    MSFlexGrid grid;
    TextBox editor;
};

bool samePictures(const QImage& one, const QImage& other, int tolerance) {
    if (one.size() != other.size())
        return false;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x)
            if (!isNear(one.pixelColor(x, y), other.pixelColor(x, y), tolerance))
                return false;
    return true;
}

TEST_F(Grids, TheEditorsTextStandsWhereTheCellsTextStood) {
    grid.setTextMatrix(3, TextCol, u"工资 Ag"_s);
    grid.setTextMatrix(3, WideAmountCol, u"1286.4"_s);
    for (const QString& amount : {u"860.5"_s, u"1234567.89"_s})
        for (const double ratio : {1.0, 1.5, 2.0})
            for (const int col : {TextCol, WideAmountCol, NarrowAmountCol}) {
                grid.setTextMatrix(3, NarrowAmountCol, amount);
                editor.setShown(false);
                grid.setRow(1); // row 3 is white then, as the editor is
                const QImage cell = cellPicture(3, col, ratio);
                ASSERT_FALSE(extent(cell, isDarkInk).isNull());
                layEditor(3, col);
                EXPECT_TRUE(samePictures(cell, cellPicture(3, col, ratio), 2)) << ratio << ' ' << col;
            }
}

TEST_F(Grids, AnEditorForAmountsThatIsDisabledKeepsItsInk) {
    grid.setTextMatrix(3, WideAmountCol, u"1286.4"_s);
    layEditor(3, WideAmountCol);
    editor.setEnabled(false);
    EXPECT_FALSE(extent(cellPicture(3, WideAmountCol, 1), isDarkInk).isNull());
    EXPECT_TRUE(isNear(cellPicture(3, WideAmountCol, 1).pixelColor(1, 1), colour::EditorOff));
}

TEST_F(Grids, AmountsStandOnTheRightAndWordsOnTheLeft) {
    for (const int col : {TextCol, WideAmountCol, NarrowAmountCol})
        grid.setTextMatrix(3, col, u"8"_s);
    const auto ink = [&](int col) { return extent(cellPicture(3, col, 1), isDarkInk); };
    EXPECT_LT(ink(TextCol).right(), 20);
    EXPECT_GT(ink(WideAmountCol).left(), 50);
    EXPECT_NEAR(cellPicture(3, WideAmountCol, 1).width() - 1 - ink(WideAmountCol).right(), 10, 2.5);
    EXPECT_NEAR(cellPicture(3, NarrowAmountCol, 1).width() - 1 - ink(NarrowAmountCol).right(), 4, 2.5);
}

TEST_F(Grids, AnAmountThatDoesNotFitIsNeverACutNumber) {
    const QString amount = u"12345678901234567890.85"_s;
    for (const int col : {WideAmountCol, NarrowAmountCol}) {
        grid.setTextMatrix(3, col, amount);
        const QImage shown = cellPicture(3, col, 1);
        bool elided = false;
        for (int kept = 1; kept < amount.size() && !elided; ++kept) {
            grid.setTextMatrix(3, col, amount.left(kept) + QChar(0x2026));
            elided = cellPicture(3, col, 1) == shown;
        }
        EXPECT_TRUE(elided) << col;
    }
}

TEST_F(Grids, AmountsAndDatesOfAnyUsualLengthAreWholeInTheCellAndInTheBox) {
    for (const QString& figures : {u"1234567.89"_s, u"-1234567.89"_s, u" 12345678.9"_s, u"2024-12-31"_s,
                                   u"2024年12月31日"_s, u"2024-12-31 20:36:08"_s})
        for (const int col : {TextCol, WideAmountCol, NarrowAmountCol}) {
            layEditor(1, col); // a box that opens over another cell
            grid.setTextMatrix(3, col, figures);
            EXPECT_NE(grid.fit(3, col), CellFit::Cut) << figures.toStdString() << ' ' << col;
            layEditor(3, col);
            EXPECT_EQ(endsCut(), 0) << figures.toStdString() << ' ' << col;
        }
}

TEST_F(Grids, AnAmountInTypeThatIsHardToReadIsToldByATip) {
    const auto told = [this](const QString& amount) {
        QToolTip::hideText();
        grid.setTextMatrix(3, NarrowAmountCol, amount);
        ground.show();
        grid.hints.tell(3, NarrowAmountCol, {});
        return QToolTip::text();
    };
    EXPECT_EQ(told(u"1234567.89"_s), QString());
    EXPECT_EQ(grid.fit(3, NarrowAmountCol), CellFit::Whole);
    EXPECT_TRUE(told(u"-40451851483.73"_s).contains(u"-40451851483.73"_s));
    EXPECT_EQ(grid.fit(3, NarrowAmountCol), CellFit::Tiny);
}

TEST_F(Grids, TheTypeOfTheBoxFollowsWhatIsTyped) {
    layEditor(3, NarrowAmountCol);
    ground.show();
    const double usual = editor.font().pointSizeF();
    QTest::keyClicks(&editor, u"1234567.89"_s);
    QApplication::processEvents();
    EXPECT_LT(editor.font().pointSizeF() * editor.font().stretch(), usual * 100);
    QTest::keyClick(&editor, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(&editor, u"12"_s);
    QApplication::processEvents();
    EXPECT_EQ(editor.font().pointSizeF(), usual);
}

TEST_F(Grids, WordsKeepTheirSizeAndAreCut) {
    grid.setTextMatrix(3, TextCol, u"给外婆的药和路费"_s);
    EXPECT_EQ(grid.fit(3, TextCol), CellFit::Cut);
    layEditor(3, TextCol);
    const QFont before = editor.font();
    editor.setBoxText(u"药"_s);
    layEditor(4, TextCol);
    EXPECT_EQ(editor.font(), before);
}

TEST_F(Grids, TheCurrentCellAndRowAreMarked) {
    grid.setRow(3);
    grid.setCol(TextCol);
    const auto band = [&](int row, int col) { return cellPicture(row, col, 1).pixelColor(3, 3); };
    EXPECT_TRUE(isNear(band(3, TextCol), colour::LeafSel));
    EXPECT_TRUE(isNear(band(3, WideAmountCol), colour::CurrentRow));
    EXPECT_TRUE(isNear(band(2, TextCol), colour::LeafMist));
    EXPECT_TRUE(isNear(band(5, TextCol), Qt::white));
}

TEST_F(Grids, ADisabledGridShowsNoMarks) {
    grid.setRow(3);
    grid.setEnabled(false);
    EXPECT_TRUE(isNear(cellPicture(3, TextCol, 1).pixelColor(3, 3), Qt::white));
    EXPECT_TRUE(isNear(cellPicture(3, WideAmountCol, 1).pixelColor(3, 3), Qt::white));
}

TEST_F(Grids, ATrianglePointsAtTheCurrentRow) {
    grid.setRow(3);
    const auto mark = [&](int row) {
        return extent(cellPicture(row, 0, 1), [](const QColor& c) { return isNear(c, colour::LeafDeep, 30); });
    };
    EXPECT_FALSE(mark(3).isNull());
    EXPECT_TRUE(mark(2).isNull());
}

TEST_F(Grids, RulesGoOnBelowTheLastRow) {
    const QImage image = rendered(ground);
    const int left = grid.x() + 200;
    for (int row = 6; row < 9; ++row)
        EXPECT_TRUE(isNear(pixelAt(image, left, grid.y() + 20 * (row + 1) - 1), colour::PaperRule)) << row;
    EXPECT_TRUE(isNear(pixelAt(image, left, grid.y() + 20 * 5 - 1), colour::Line));
    EXPECT_TRUE(isNear(pixelAt(image, grid.x() + 390, grid.y() + 20 * 5 - 1), colour::Line)) << "lines reach the edge";
}

TEST_F(Grids, AReportIsReadInFullInkThoughItIsDisabled) {
    grid.setRow(5);
    grid.setTextMatrix(3, TextCol, u"工资"_s);
    QApplication::processEvents();
    const auto isInk = [](const QColor& c) { return isNear(c, colour::Ink, 24); };
    EXPECT_FALSE(extent(cellPicture(3, TextCol, 2), isInk).isNull());
    grid.setEnabled(false);
    EXPECT_TRUE(extent(cellPicture(3, TextCol, 2), isInk).isNull());
    grid.setRole(Role::Report);
    EXPECT_FALSE(extent(cellPicture(3, TextCol, 2), isInk).isNull());
}

TEST_F(Grids, CornersAreRoundAlsoBesideAScrollBar) {
    setGround(ground, Qt::red);
    grid.setRows(100);
    ground.show();
    QApplication::processEvents();
    ASSERT_TRUE(grid.verticalScrollBar()->isVisible());
    grid.clearFocus();
    const QImage image = rendered(ground);
    const QRect box = grid.geometry();
    for (const QPoint& corner : {box.topLeft(), box.topRight(), box.bottomLeft(), box.bottomRight()})
        EXPECT_GT(image.pixelColor(corner).red(), image.pixelColor(corner).green() + 120)
            << corner.x() << ' ' << corner.y();
    EXPECT_TRUE(isNear(image.pixelColor(box.right(), box.center().y()), colour::GridEdge));
    grid.setFocus();
    ASSERT_TRUE(grid.hasFocus());
    EXPECT_TRUE(isNear(rendered(ground).pixelColor(box.right(), box.center().y()), colour::LeafDeep));
}

TEST_F(Grids, ABoxThatDiffersFromItsCellHasAnAmberEdgeAndTheSignOfEnter) {
    CellEditor box(&ground, u"tx3"_s, grid);
    const auto isAmber = [](const QColor& colour) { return isNear(colour, colour::Amber, 8); };
    for (const int col : {TextCol, WideAmountCol}) {
        grid.setCol(col);
        box.lay();
        box.setShown(true);
        EXPECT_TRUE(extent(rendered(ground), isAmber).isNull());
        box.setText(u"12"_s);
        const QImage picture = rendered(ground).copy(box.geometry());
        EXPECT_TRUE(isNear(picture.pixelColor(0, 10), colour::Amber));
        const QRect sign = extent(picture.copy(3, 3, picture.width() - 6, picture.height() - 6), isAmber);
        EXPECT_FALSE(sign.isNull());
        EXPECT_EQ(sign.left() < picture.width() / 2, col == WideAmountCol); // never where the text is
    }
}

TEST_F(Grids, ACellThatWillBeRefusedIsAmberAlsoUnderItsBox) {
    CellEditor box(&ground, u"tx3"_s, grid);
    const auto isAmber = [](const QColor& colour) { return isNear(colour, colour::Amber, 8); };
    grid.setTextMatrix(3, TextCol, u"明天"_s);
    EXPECT_TRUE(extent(rendered(ground), isAmber).isNull());
    grid.objection = [](int row, int) { return row == 3 ? u"不是日期"_s : QString(); };
    const QRect cell = grid.cellRect(3, TextCol).translated(grid.pos());
    EXPECT_TRUE(cell.contains(extent(rendered(ground).copy(cell), isAmber).translated(cell.topLeft())));
    EXPECT_FALSE(extent(rendered(ground).copy(cell), isAmber).isNull());
    grid.setRow(3);
    grid.setCol(TextCol);
    box.lay();
    box.setShown(true);
    const QImage picture = rendered(ground).copy(box.geometry());
    EXPECT_TRUE(isNear(picture.pixelColor(0, 10), colour::Amber));
    EXPECT_TRUE(isNear(picture.pixelColor(picture.width() - 6, 10), colour::AmberPale));
}

} // namespace
} // namespace qinghe::testing
