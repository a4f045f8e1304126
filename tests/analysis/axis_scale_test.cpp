#include "analysis/axis_scale.h"
#include "qt_printing.h"

#include <QStringList>

#include <gtest/gtest.h>

// The round numbers beside a chart.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

QString lines(double lowest, double highest) {
    const AxisScale scale(lowest, highest);
    QStringList texts;
    for (int i = 0; i < scale.lineCount(); ++i)
        texts << scale.text(i);
    return texts.join(u' ');
}

TEST(AxisScaleTest, HasRoundStepsFromNothingToTheHighestValue) {
    EXPECT_EQ(lines(0, 1286.4), u"0 250 500 750 1000 1250 1500");
    EXPECT_EQ(lines(0, 58), u"0 10 20 30 40 50 60");
    EXPECT_EQ(lines(0, 1200), u"0 200 400 600 800 1000 1200");
    EXPECT_EQ(lines(0, 2900), u"0 500 1000 1500 2000 2500 3000");
}

TEST(AxisScaleTest, GoesBelowNothingForNegativeValues) {
    EXPECT_EQ(lines(-2310.5, 50086.35), u"-10000 0 10000 20000 30000 40000 50000 60000");
    EXPECT_EQ(lines(-58, -3), u"-60 -50 -40 -30 -20 -10 0");
}

TEST(AxisScaleTest, ShowsSomethingWhenAllValuesAreNothing) {
    EXPECT_EQ(lines(0, 0), u"0 20 40 60 80 100");
}

TEST(AxisScaleTest, WritesAllNumbersWithTheSameDecimals) {
    EXPECT_EQ(lines(0, 1.2), u"0.0 0.2 0.4 0.6 0.8 1.0 1.2");
    EXPECT_EQ(lines(0, 14), u"0.0 2.5 5.0 7.5 10.0 12.5 15.0");
}

TEST(AxisScaleTest, StepsNoFinerThanACent) {
    EXPECT_EQ(lines(0, 0.01), u"0.00 0.01");
    EXPECT_EQ(lines(0, 1e-300), u"0.00 0.01");
}

TEST(AxisScaleTest, TakesAsManyDigitsAsGridsShow) {
    EXPECT_EQ(lines(0, 1e15), u"0 200000000000000 400000000000000 600000000000000 800000000000000 1E+15");
    EXPECT_EQ(lines(0, 6e20), u"0 1E+20 2E+20 3E+20 4E+20 5E+20 6E+20");
}

TEST(AxisScaleTest, KeepsEveryValueBetweenItsEnds) {
    for (double highest = 0.013; highest < 1e17; highest *= 1.37)
        for (const double lowest : {0.0, -highest / 50, -highest, -highest * 30}) {
            const AxisScale scale(lowest, highest);
            EXPECT_LE(scale.low(), lowest);
            EXPECT_GE(scale.high(), highest * (1 - 1e-9));
            EXPECT_GE(scale.lineCount(), 2) << lowest << " to " << highest;
            EXPECT_LE(scale.lineCount(), 8) << lowest << " to " << highest;
        }
}

TEST(AxisScaleTest, TellsHowFarUpAValueStands) {
    const AxisScale scale(-10, 40);
    EXPECT_DOUBLE_EQ(scale.share(scale.low()), 0);
    EXPECT_DOUBLE_EQ(scale.share(scale.high()), 1);
    EXPECT_DOUBLE_EQ(scale.share(0), 0.2);
}

TEST(AxisScaleTest, EndsAtSomePointHoweverFarValuesLie) {
    const AxisScale scale(-1e308, 1.7e308);
    EXPECT_LE(scale.lineCount(), 8);
    EXPECT_GE(scale.share(1.7e308), 0.9);
    EXPECT_LE(scale.share(1.7e308), 1);
    EXPECT_GE(scale.share(-1e308), 0);
}

TEST(AxisScaleTest, TakesALineBelowWhenAsked) {
    AxisScale scale(-10, 40);
    scale.addLineBelow();
    EXPECT_EQ(scale.text(0), u"-20");
    EXPECT_EQ(scale.text(1), u"-10");
    EXPECT_EQ(scale.high(), 40);
}

} // namespace
} // namespace qinghe::testing
