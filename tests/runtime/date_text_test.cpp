#include "qt_printing.h"
#include "runtime/date_text.h"

#include <gtest/gtest.h>

namespace qinghe {

using namespace Qt::StringLiterals;
namespace {

const QDate ThirdOfMay(2024, 5, 3);

TEST(DateText, WritesDaysAndTimesWithoutPadding) {
    EXPECT_EQ(dateText(ThirdOfMay), u"2024-5-3");
    EXPECT_EQ(dateText(QDate(2006, 10, 31)), u"2006-10-31");
    EXPECT_EQ(dateText(QDate(100, 1, 1)), u"100-1-1");
    EXPECT_EQ(timeText(QTime(8, 5, 9)), u"8:05:09");
    EXPECT_EQ(timeText(QTime(0, 0)), u"0:00:00");
    EXPECT_EQ(timeText(QTime(23, 59, 59)), u"23:59:59");
}

TEST(DateValue, HasATextAndAnIsoForm) {
    const DateValue day{ThirdOfMay, {}};
    EXPECT_EQ(day.text(), u"2024-5-3");
    EXPECT_EQ(day.iso(), u"2024-05-03");
    const DateValue moment{ThirdOfMay, QTime(8, 5, 9)};
    EXPECT_EQ(moment.text(), u"2024-5-3 8:05:09");
    EXPECT_EQ(moment.iso(), u"2024-05-03 08:05:09");
    EXPECT_EQ((DateValue{QDate(100, 1, 1), {}}).iso(), u"0100-01-01");
    EXPECT_NE(day, moment);
    EXPECT_EQ(moment, (DateValue{ThirdOfMay, QTime(8, 5, 9)}));
}

TEST(DateValue, TellsMidnightFromNoTime) {
    const DateValue midnight{ThirdOfMay, QTime(0, 0)};
    EXPECT_EQ(midnight.text(), u"2024-5-3 0:00:00");
    EXPECT_EQ(midnight.iso(), u"2024-05-03 00:00:00");
}

TEST(ParseDate, ReadsTheUsualFormsOfADay) {
    for (const QString& text : {u"2024-5-3"_s, u"2024/5/3"_s, u"2024.5.3"_s, u"2024年5月3日"_s, u"2024-05-03"_s,
                                u"2024-5-03"_s, u"2024年05月03日"_s, u"  2024-5-3 "_s, u"\t2024/05/03\n"_s})
        EXPECT_EQ(parseDate(text), (DateValue{ThirdOfMay, {}})) << text.toStdString();
}

TEST(ParseDate, ReadsAMonthAloneAsItsFirstDay) {
    for (const QString& text : {u"2024-5"_s, u"2024/05"_s, u"2024年5月"_s, u" 2024-5 "_s})
        EXPECT_EQ(parseDate(text), (DateValue{QDate(2024, 5, 1), {}})) << text.toStdString();
}

TEST(ParseDate, ReadsATimeBehindOneBlank) {
    const DateValue exact{ThirdOfMay, QTime(8, 5, 9)};
    for (const QString& text :
         {u"2024-5-3 8:05:09"_s, u"2024-05-03 08:05:09"_s, u"2024年5月3日 8:5:9"_s, u" 2024/5/3 08:05:09 "_s})
        EXPECT_EQ(parseDate(text), exact) << text.toStdString();
    EXPECT_EQ(parseDate(u"2024-5-3 8:05"_s), (DateValue{ThirdOfMay, QTime(8, 5)}));
    EXPECT_EQ(parseDate(u"2024-5-3 0:00"_s), (DateValue{ThirdOfMay, QTime(0, 0)}));
    EXPECT_EQ(parseDate(u"2024-5-3 23:59:59"_s), (DateValue{ThirdOfMay, QTime(23, 59, 59)}));
}

TEST(ParseDate, KnowsLeapYearsAndTheEdgesOfTheRange) {
    for (const QString& text : {u"2024-2-29"_s, u"2000-2-29"_s, u"1900-2-28"_s, u"100-1-1"_s, u"9999-12-31"_s})
        EXPECT_TRUE(parseDate(text)) << text.toStdString();
    for (const QString& text :
         {u"2023-2-29"_s, u"1900-2-29"_s, u"0099-12-31"_s, u"099-12-31"_s, u"10000-1-1"_s, u"00991231"_s})
        EXPECT_FALSE(parseDate(text)) << text.toStdString();
}

TEST(ParseDate, RefusesWhatIsNoDate) {
    for (const QString& text :
         {u""_s,           u" "_s,          u"2024"_s,       u"2024-"_s,       u"2024-5-"_s,   u"2024-13-1"_s,
          u"2024-0-1"_s,   u"2024-5-0"_s,   u"2024-5-32"_s,  u"2024-4-31"_s,   u"2024-5/3"_s,  u"2024-5-3-"_s,
          u"2024-5-3日"_s, u"2024年5"_s,    u"2024年5月3"_s, u"2024年5月日"_s, u"2024年5-3"_s, u"2024 -5-3"_s,
          u"2024-5-003"_s, u"2024-005-3"_s, u"-2024-5-3"_s,  u"5-3"_s,         u"5-3-2024"_s,  u"2024053"_s,
          u"12"_s,         u"明天"_s,       u"2024-5-3x"_s,  u"x2024-5-3"_s})
        EXPECT_FALSE(parseDate(text)) << text.toStdString();
}

int in2026() {
    return 2026;
}

TEST(ParseDate, ReadsYearsOfTwoDigits) {
    for (const QString& text : {u"24-5-3"_s, u"24/5/3"_s, u"24.05.03"_s, u"24年5月3日"_s, u"24年5月3号"_s})
        EXPECT_EQ(parseDate(text), (DateValue{ThirdOfMay, {}})) << text.toStdString();
    const std::pair<QString, int> years[]{{u"00"_s, 2000}, {u"29"_s, 2029}, {u"30"_s, 1930}, {u"99"_s, 1999}};
    for (const auto& [digits, year] : years)
        EXPECT_EQ(parseDate(digits + u"-12-31"_s), (DateValue{QDate(year, 12, 31), {}})) << year;
}

TEST(ParseDate, ReadsADayWithoutAYearAsOneOfThisYear) {
    for (const QString& text : {u"5-3"_s, u"05-03"_s, u"5/3"_s, u"5.3"_s, u"5月3日"_s, u"5月3号"_s, u"05月03日"_s})
        EXPECT_EQ(parseDate(text, in2026), (DateValue{QDate(2026, 5, 3), {}})) << text.toStdString();
    EXPECT_EQ(parseDate(u"12-31 8:05"_s, in2026), (DateValue{QDate(2026, 12, 31), QTime(8, 5)}));
    EXPECT_FALSE(parseDate(u"2-29"_s, in2026));
    EXPECT_EQ(parseDate(u"2-29"_s, [] { return 2024; }), (DateValue{QDate(2024, 2, 29), {}}));
}

TEST(ParseDate, AsksForTheYearOnlyWhereNoneStands) {
    int asked = 0;
    const auto year = [&asked] { return ++asked, 2026; };
    for (const QString& text : {u"2024-5-3"_s, u"24-5-3"_s, u"20240503"_s, u"2024年5月"_s})
        EXPECT_TRUE(parseDate(text, year)) << text.toStdString();
    EXPECT_EQ(asked, 0);
    parseDate(u"5-3"_s, year);
    EXPECT_EQ(asked, 1);
    for (const QString& text : {u"5-3"_s, u"5月3日"_s})
        EXPECT_FALSE(parseDate(text)) << "nobody tells the year";
}

TEST(ParseDate, ReadsEightDigitsInARow) {
    EXPECT_EQ(parseDate(u"20240503"_s), (DateValue{ThirdOfMay, {}}));
    EXPECT_EQ(parseDate(u"20240503 8:05:09"_s), (DateValue{ThirdOfMay, QTime(8, 5, 9)}));
    for (const QString& text : {u"20241301"_s, u"20240532"_s, u"240503"_s, u"202405030"_s, u"20240503-"_s})
        EXPECT_FALSE(parseDate(text, in2026)) << text.toStdString();
}

TEST(ParseDate, ReadsFullWidthDigitsAndMarks) {
    for (const QString& text :
         {u"２０２４-5-3"_s, u"２０２４－５－３"_s, u"２０２４／０５／０３"_s, u"２０２４．５．３"_s, u"2024。5。3"_s,
          u"2024.5。3"_s, u"２４－５－３"_s, u"２０２４０５０３"_s, u"２０２４年５月３号"_s, u"　2024-5-3　"_s})
        EXPECT_EQ(parseDate(text), (DateValue{ThirdOfMay, {}})) << text.toStdString();
    EXPECT_EQ(parseDate(u"２０２４－５－３　８：０５：０９"_s), (DateValue{ThirdOfMay, QTime(8, 5, 9)}));
    EXPECT_EQ(parseDate(u"５－３"_s, in2026), (DateValue{QDate(2026, 5, 3), {}}));
}

TEST(ParseDate, RefusesWhatIsNoDayOfThisYearOrAYearOfTwoDigits) {
    for (const QString& text :
         {u"24-13-1"_s,   u"5-32"_s,      u"24-5"_s,    u"2-30"_s,  u"24年5月"_s,  u"24-5-"_s,   u"5-"_s,
          u"5月"_s,       u"5月3"_s,      u"5月3日-"_s, u"5-3-"_s,  u"5/3-4"_s,    u"4-24-5"_s,  u"5-3-2024"_s,
          u"2024月3日"_s, u"2024-2-30"_s, u"12元"_s,    u"1.250"_s, u"13.5"_s,     u"0.5"_s,     u"5日"_s,
          u"-5-3"_s,      u"5--3"_s,      u"5"_s,       u"5.3元"_s, u"５－３２"_s, u"3.14.15"_s, u"号"_s})
        EXPECT_FALSE(parseDate(text, in2026)) << text.toStdString();
}

TEST(ParseDate, RefusesWhatIsNoTime) {
    for (const QString& text :
         {u"2024-5-3 24:00"_s, u"2024-5-3 24:00:00"_s, u"2024-5-3 8:60"_s, u"2024-5-3 8:05:60"_s, u"2024-5-3 8"_s,
          u"2024-5-3 8:"_s, u"2024-5-3 8:05:"_s, u"2024-5-3  8:05"_s, u"2024-5-3T8:05"_s, u"2024-5 8:05"_s,
          u"2024年5月 8:05"_s, u"8:05"_s, u"2024-5-3 8:05 x"_s, u"2024-5-3 -1:05"_s})
        EXPECT_FALSE(parseDate(text)) << text.toStdString();
}

TEST(ParseIsoDate, ReadsItsOwnSpellingAlone) {
    EXPECT_EQ(parseIsoDate(u"2024-05-03"_s), (DateValue{ThirdOfMay, {}}));
    EXPECT_EQ(parseIsoDate(u"2024-05-03 08:05:09"_s), (DateValue{ThirdOfMay, QTime(8, 5, 9)}));
    EXPECT_EQ(parseIsoDate(u"2024-05-03 00:00:00"_s), (DateValue{ThirdOfMay, QTime(0, 0)}));
    for (const QString& text : {u""_s,
                                u"2024-5-3"_s,
                                u"2024/05/03"_s,
                                u" 2024-05-03"_s,
                                u"2024-05"_s,
                                u"2024-05-03 8:05:09"_s,
                                u"2024-05-03 08:05"_s,
                                u"2024-05-03T08:05:09"_s,
                                u"2024-13-01"_s,
                                u"20240503"_s,
                                u"2024-05-03 "_s,
                                u"24-05-03"_s,
                                u"05-03"_s,
                                u"2024-05-03 24:00:00"_s,
                                u"2024-05-03 08:05:09 "_s,
                                u"2024-05-03 08:05:0x"_s,
                                u"２０２４-05-03"_s,
                                u"2024－05－03"_s,
                                u"2024-05-03　08:05:09"_s,
                                u"0099-05-03"_s})
        EXPECT_FALSE(parseIsoDate(text)) << text.toStdString();
}

TEST(TextOfIsoDay, AgreesWithTheLongWayRound) {
    for (QDate day(1999, 12, 1); day < QDate(2001, 4, 1); day = day.addDays(1)) {
        const DateValue value{day, {}};
        ASSERT_EQ(textOfIsoDay(value.iso().toUtf8()), value.text());
    }
    EXPECT_EQ(textOfIsoDay("0100-01-01"), u"100-1-1"_s);
    for (const char* other : {"2024-02-30", "2024-13-01", "2024-00-10", "0099-01-01", "2024-5-3", "2024-05-03 08:05:09",
                              "2024/05/03", "2024-05-0x", "", "今天"})
        EXPECT_EQ(textOfIsoDay(other), std::nullopt) << other;
}

TEST(ParseDate, ReadsBackBothFormsOfEveryDayOfFourYears) {
    for (QDate day(2023, 1, 1); day.year() < 2027; day = day.addDays(1)) {
        const DateValue value{day, QTime(day.day() % 24, day.month(), day.year() % 60)};
        EXPECT_EQ(parseDate(value.text()), value);
        EXPECT_EQ(parseIsoDate(value.iso()), value);
        EXPECT_EQ(parseDate(dateText(day)), (DateValue{day, {}}));
    }
}

} // namespace
} // namespace qinghe
