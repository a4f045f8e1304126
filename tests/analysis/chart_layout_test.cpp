#include "analysis/chart_layout.h"
#include "analysis/even_ruler.h"
#include "qt_printing.h"

#include <gtest/gtest.h>

// Where things stand in a chart, with words that are all of the same width.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class ChartLayoutTest : public ::testing::Test {
protected:
    ChartLayout lay(const std::vector<double>& values, const QString& name = u"现金"_s) {
        matrix = {};
        for (size_t i = 0; i < values.size(); ++i)
            matrix.rows << name;
        matrix.values = {values};
        return ChartLayout(matrix, Size, {value, label});
    }
    static constexpr QSizeF Size{721, 289};
    EvenRuler value{6}, label{13};
    ChartMatrix matrix;
};

TEST_F(ChartLayoutTest, SharesThePlotOutAmongFewRows) {
    const ChartLayout layout = lay(std::vector<double>(8, 1000));
    EXPECT_EQ(layout.plot(), QRectF(57, 26, 652, 229));
    EXPECT_DOUBLE_EQ(layout.pitch(), 652 / 8.0);
    EXPECT_DOUBLE_EQ(layout.columnWidth(), 0.56 * 652 / 8);
    EXPECT_EQ(layout.longestScroll(), 0);
    EXPECT_TRUE(layout.strip().isEmpty());
}

TEST_F(ChartLayoutTest, MakesNoColumnWiderThanFortySixPixels) {
    const ChartLayout layout = lay({1000});
    EXPECT_DOUBLE_EQ(layout.columnWidth(), 46);
    EXPECT_DOUBLE_EQ(layout.middle(0, 0), 57 + 652 / 2.0);
}

TEST_F(ChartLayoutTest, ScrollsWhereTheWidestValueNeedsMoreThanItsShare) {
    // "50086.35" and ten pixels: 58 a row.
    std::vector<double> values(20, 1);
    values[7] = 50086.35;
    const ChartLayout layout = lay(values);
    EXPECT_DOUBLE_EQ(layout.pitch(), 58);
    EXPECT_EQ(layout.longestScroll(), 20 * 58 - 652);
    EXPECT_EQ(layout.strip(), QRectF(57, 278, 652, 9));
    EXPECT_DOUBLE_EQ(layout.plot().bottom(), 289 - 46);
}

TEST_F(ChartLayoutTest, GivesANegativeValueItsSignsRoom) {
    std::vector<double> values(20, 1);
    values[7] = -50086.35;
    EXPECT_DOUBLE_EQ(lay(values).pitch(), 64);
}

TEST_F(ChartLayoutTest, GivesValuesWithExponentsTheirRoom) {
    std::vector<double> values(20, 1e20);
    values[7] = 1.23456789012345e19; // "1.23456789012345E+19" is longer than the highest
    EXPECT_DOUBLE_EQ(lay(values).pitch(), 20 * 6 + 10);
}

TEST_F(ChartLayoutTest, MakesRoomForASecondLineWhenALabelBreaks) {
    EXPECT_DOUBLE_EQ(lay(std::vector<double>(8, 1), u"六个字的名称"_s).plot().bottom(), 289 - 34 - 16);
    EXPECT_DOUBLE_EQ(lay(std::vector<double>(8, 1), u"五个字呢"_s).plot().bottom(), 289 - 34);
}

TEST_F(ChartLayoutTest, GivesWideAxisNumbersTheirRoom) {
    EXPECT_DOUBLE_EQ(lay({1e14}).plot().left(), 15 * 6 + 7);
}

TEST_F(ChartLayoutTest, HangsANegativeValuesTextAboveTheLabels) {
    for (const double lowest : {-1.0, -9.99, -9.999, -10.0, -57.0, -99.99, -1e15}) {
        const ChartLayout layout = lay({50, lowest, 20});
        EXPECT_LE(layout.valueBox(1, 0).bottom(), layout.plot().bottom() + 0.1) << lowest;
        EXPECT_GT(layout.valueBox(1, 0).top(), layout.y(lowest)) << lowest;
    }
}

TEST_F(ChartLayoutTest, WritesValuesWithTwoDecimals) {
    const ChartLayout layout =
        lay({1286.4, -0.125, 0, 1e15, 2.5e20, ChartMatrix::NoValue, std::numeric_limits<double>::infinity()});
    EXPECT_EQ(layout.valueText(0), u"1286.40");
    EXPECT_EQ(layout.valueText(1), u"-0.13");
    EXPECT_EQ(layout.valueText(2), u"0.00");
    EXPECT_EQ(layout.valueText(3), u"1E+15");
    EXPECT_EQ(layout.valueText(4), u"2.5E+20");
    EXPECT_EQ(layout.valueText(5), u"");
    EXPECT_EQ(layout.valueText(6), u"溢出");
}

TEST_F(ChartLayoutTest, KnowsTheRowsInView) {
    const ChartLayout layout = lay(std::vector<double>(300, 50086.35));
    EXPECT_EQ(layout.rowsInView(0).first, 0);
    EXPECT_EQ(layout.rowsInView(0).behindLast, 12); // 11 whole ones and a piece
    EXPECT_EQ(layout.rowsInView(59).first, 1);
    EXPECT_EQ(layout.rowsInView(layout.longestScroll()).behindLast, 300);
    EXPECT_EQ(layout.rowAt(58, 0), 0);
    EXPECT_EQ(layout.rowAt(58, 580), 10);
    EXPECT_EQ(layout.rowAt(20, 0), -1);
    EXPECT_EQ(layout.rowAt(715, 0), -1);
}

TEST_F(ChartLayoutTest, StandsItsColumnsOnNothing) {
    const ChartLayout layout = lay({30, -20});
    EXPECT_DOUBLE_EQ(layout.y(layout.scale().high()), layout.plot().top());
    EXPECT_DOUBLE_EQ(layout.y(layout.scale().low()), layout.plot().bottom());
    EXPECT_LT(layout.y(30), layout.y(0));
    EXPECT_GT(layout.y(-20), layout.y(0));
}

TEST_F(ChartLayoutTest, TakesNoRowsAtAll) {
    const ChartLayout layout = lay({});
    EXPECT_EQ(layout.rowsInView(0).behindLast, 0);
    EXPECT_EQ(layout.longestScroll(), 0);
    EXPECT_EQ(layout.rowAt(100, 0), -1);
}

TEST_F(ChartLayoutTest, LaysAllMonthsSideBySideAndNamesTheirYears) {
    matrix = {};
    matrix.values = {std::vector<double>(120, 14000)};
    for (int i = 0; i < 120; ++i) {
        matrix.rows << u"月"_s;
        matrix.years << QString::number(2014 + (i + 11) / 12); // the first one has a single month
    }
    const ChartLayout layout(matrix, Size, {value, label}, ChartLayout::Span::Whole);
    EXPECT_DOUBLE_EQ(layout.pitch(), 652 / 120.0);
    EXPECT_EQ(layout.longestScroll(), 0);
    EXPECT_FALSE(layout.writesValues());
    EXPECT_EQ(layout.valueText(0), u"14000.00"); // for whoever points at it
    EXPECT_EQ(layout.label(0).lines, QStringList());
    const std::vector<ChartLayout::Year> years = layout.years();
    ASSERT_EQ(years.size(), 11u);
    EXPECT_EQ(years.front().words, u""); // has no room beside the next one
    double free = layout.plot().left();
    for (const ChartLayout::Year& year : years) {
        if (year.words.isEmpty())
            continue;
        EXPECT_GE(year.box.left(), free) << year.words.toStdString();
        EXPECT_LE(year.box.right(), layout.plot().right());
        free = year.box.right();
    }
    EXPECT_EQ(years[1].words, u"2015");
    EXPECT_EQ(years.back().words, u"2024");
    EXPECT_DOUBLE_EQ(years[1].start, 57 + 652 / 120.0);
}

TEST_F(ChartLayoutTest, KeepsTheLabelsOfMonthsThatAreNotShownWhole) {
    lay({1, 2});
    matrix.years = {u"2024"_s, u"2024"_s};
    const ChartLayout layout(matrix, Size, {value, label});
    EXPECT_TRUE(layout.years().empty());
    EXPECT_FALSE(layout.label(0).lines.isEmpty());
}

} // namespace
} // namespace qinghe::testing
