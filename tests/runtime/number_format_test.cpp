#include "qt_printing.h"
#include "runtime/number_format.h"
#include "runtime/runtime_error.h"

#include <gtest/gtest.h>
#include <limits>

namespace qinghe {

using namespace Qt::StringLiterals;
namespace {

struct Formatted {
    double value;
    QStringView text;
};

template<std::size_t N>
void expectFormatted(const Formatted (&table)[N], const QString& pattern) {
    for (const auto& [value, text] : table)
        EXPECT_EQ(formatNumber(value, pattern), text) << value;
}

TEST(FormatNumber, ShowsTwoPlacesAndNoZeroBeforeThePoint) {
    const Formatted table[] = {
        {0, u".00"},          {0.5, u".50"},          {-0.5, u"-.50"}, {1, u"1.00"},           {10, u"10.00"},
        {1234.5, u"1234.50"}, {-1234.5, u"-1234.50"}, {0.07, u".07"},  {100000, u"100000.00"},
    };
    expectFormatted(table, u"##.00"_s);
}

TEST(FormatNumber, RoundsHalfAwayFromZeroOnTheDecimalText) {
    const Formatted table[] = {
        {2.345, u"2.35"},    {-2.345, u"-2.35"}, {1.005, u"1.01"}, {2.675, u"2.68"},  {0.125, u".13"},
        {0.005, u".01"},     {0.004999, u".00"}, {0.994, u".99"},  {0.995, u"1.00"},  {9.995, u"10.00"},
        {99.995, u"100.00"}, {2.3449, u"2.34"},  {8.345, u"8.35"}, {-0.005, u"-.01"},
    };
    expectFormatted(table, u"##.00"_s);
}

TEST(FormatNumber, HasNoSignForWhatRoundsToNothing) {
    const Formatted table[] = {{-0.001, u".00"}, {-0.0049, u".00"}, {-0.0, u".00"}, {1e-300, u".00"}};
    expectFormatted(table, u"##.00"_s);
}

TEST(FormatNumber, ShowsASinglesOwnValue) {
    EXPECT_EQ(formatNumber(double(1234567.89F), u"##.00"_s), u"1234567.88");
    EXPECT_EQ(formatNumber(double(0.1F), u"##.00"_s), u".10");
}

TEST(FormatNumber, FillsLargeNumbersWithZerosBehindFifteenDigits) {
    const Formatted table[] = {
        {1e20, u"100000000000000000000.00"},
        {123456789012.345, u"123456789012.35"},
        {999999999999999, u"999999999999999.00"},
        {1234567890123456, u"1234567890123460.00"},
    };
    expectFormatted(table, u"##.00"_s);
}

TEST(FormatNumber, WritesAVeryLargeNumberOutAndSaysWhereASumIsBeyondAll) {
    EXPECT_EQ(formatNumber(1e300, u"##.00"_s), u'1' + QString(300, u'0') + u".00"_s);
    EXPECT_EQ(formatNumber(std::numeric_limits<double>::infinity(), u"##.00元"_s), u"溢出"_s);
    EXPECT_EQ(formatNumber(-std::numeric_limits<double>::infinity(), u"##.00"_s), u"溢出"_s);
}

TEST(FormatNumber, KeepsTheTextBehindThePattern) {
    const Formatted table[] = {{0.5, u".50元"}, {0, u".00元"}, {1250.5, u"1250.50元"}, {-3, u"-3.00元"}};
    expectFormatted(table, u"##.00元"_s);
    EXPECT_EQ(formatNumber(1, u"##.00 元#0"_s), u"1.00 元#0");
}

TEST(FormatNumber, PutsAZeroWhereThePatternDemandsOne) {
    const Formatted table[] = {{0, u"0.00元"}, {0.5, u"0.50元"}, {-0.5, u"-0.50元"}, {12, u"12.00元"}};
    expectFormatted(table, u"0.00元"_s);
    EXPECT_EQ(formatNumber(7, u"000"_s), u"007");
    EXPECT_EQ(formatNumber(7, u"#00"_s), u"07");
    EXPECT_EQ(formatNumber(7, u"0#"_s), u"07");
    EXPECT_EQ(formatNumber(2.5, u"0"_s), u"3");
}

TEST(FormatNumber, LeavesOutOptionalPlacesBehindThePoint) {
    EXPECT_EQ(formatNumber(2.5, u"0.0##"_s), u"2.5");
    EXPECT_EQ(formatNumber(2, u"0.0##"_s), u"2.0");
    EXPECT_EQ(formatNumber(2.3456, u"0.0##"_s), u"2.346");
}

} // namespace
} // namespace qinghe
