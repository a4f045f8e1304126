#include "qt_printing.h"
#include "runtime/months.h"

#include <gtest/gtest.h>

namespace qinghe {
namespace {

using namespace Qt::StringLiterals;

TEST(Months, LastMonthIsTheMonthBeforeBehindAZeroWithoutFurtherCare) {
    EXPECT_EQ(months::lastMonth({2024, 6, 18}), u"2024-05"_s);
    EXPECT_EQ(months::lastMonth({2024, 1, 31}), u"2024-00"_s);
    EXPECT_EQ(months::lastMonth({2024, 2, 1}), u"2024-01"_s);
    EXPECT_EQ(months::lastMonth({2024, 10, 1}), u"2024-09"_s);
    EXPECT_EQ(months::lastMonth({2024, 11, 1}), u"2024-010"_s);
    EXPECT_EQ(months::lastMonth({2024, 12, 1}), u"2024-011"_s);
}

TEST(Months, ThisMonthHasNoLeadingZero) {
    EXPECT_EQ(months::thisMonth({2024, 1, 31}), u"2024-1"_s);
    EXPECT_EQ(months::thisMonth({2024, 6, 18}), u"2024-6"_s);
    EXPECT_EQ(months::thisMonth({2024, 10, 1}), u"2024-10"_s);
    EXPECT_EQ(months::thisMonth({2024, 12, 31}), u"2024-12"_s);
}

TEST(Months, OfADayAreItsFirstSevenCharacters) {
    EXPECT_EQ(months::ofDay(u"2024-5-3"_s), u"2024-5-"_s);
    EXPECT_EQ(months::ofDay(u"2024-10-31"_s), u"2024-10"_s);
    EXPECT_EQ(months::ofDay(u""_s), u""_s);
}

TEST(Months, StandInTheCalendarsOrderWhateverTheOrderOfTheirTexts) {
    const QStringList keys{u""_s, u"999-12-"_s, u"2023-12"_s, u"2024-1-"_s, u"2024-9-"_s, u"2024-10"_s, u"2024-12"_s};
    for (qsizetype i = 1; i < keys.size(); ++i)
        EXPECT_LT(months::inCalendar(keys[i - 1]), months::inCalendar(keys[i])) << keys[i].toStdString();
}

} // namespace
} // namespace qinghe
