#include "qt_printing.h"
#include "runtime/number_text.h"
#include "runtime/runtime_error.h"

#include <gtest/gtest.h>
#include <iomanip>
#include <random>
#include <sstream>

using namespace Qt::StringLiterals;

namespace qinghe {
namespace {

struct DoubleText {
    double value;
    QStringView text;
};

struct SingleText {
    float value;
    QStringView text;
};

struct TextDouble {
    QStringView text;
    double value;
};

TEST(NumberText, ShowsADoubleInItsShortestPlainForm) {
    const DoubleText table[] = {
        {0, u"0"},
        {-0.0, u"0"},
        {1, u"1"},
        {-1, u"-1"},
        {1250.5, u"1250.5"},
        {0.5, u"0.5"},
        {-0.5, u"-0.5"},
        {100, u"100"},
        {0.1, u"0.1"},
        {0.1 + 0.2, u"0.3"},
        {1e14, u"100000000000000"},
        {2.345, u"2.345"},
        {-30, u"-30"},
        {1234567.89, u"1234567.89"},
    };
    for (const auto& [value, text] : table)
        EXPECT_EQ(numberText(value), text);
}

TEST(NumberText, KeepsFifteenDigitsOfADouble) {
    const DoubleText table[] = {
        {1.0 / 3, u"0.333333333333333"},         {2.0 / 3, u"0.666666666666667"},
        {123456789012.345, u"123456789012.345"}, {999999999999999, u"999999999999999"},
        {-999999999999999, u"-999999999999999"}, {1234567890123456, u"1.23456789012346E+15"},
    };
    for (const auto& [value, text] : table)
        EXPECT_EQ(numberText(value), text);
}

TEST(NumberText, WritesAmountsAsTheFifteenDigitsOfTheirValue) {
    std::mt19937_64 random(7);
    for (int i = 0; i < 20'000; ++i) {
        const auto hundredths = static_cast<double>(random() % 10'000'000'000'000'000ULL >> random() % 50);
        for (const double value : {hundredths / 100, -hundredths / 100, hundredths / 100 + 1e-9, hundredths / 1000}) {
            std::ostringstream wanted;
            wanted << std::setprecision(15) << std::uppercase << value;
            ASSERT_EQ(numberText(value).toStdString(), value == 0 ? "0" : wanted.str());
        }
    }
}

TEST(NumberText, TurnsScientificFromSixteenPlacesOnAndBelowFourZeros) {
    const DoubleText table[] = {
        {1e15, u"1E+15"},   {-1e15, u"-1E+15"},      {1.5e20, u"1.5E+20"},
        {1e100, u"1E+100"}, {0.0001, u"0.0001"},     {0.00001, u"1E-05"},
        {1e-7, u"1E-07"},   {-2.5e-10, u"-2.5E-10"}, {9999999999999999.0, u"1E+16"},
    };
    for (const auto& [value, text] : table)
        EXPECT_EQ(numberText(value), text);
}

TEST(NumberText, KeepsSevenDigitsOfASingle) {
    const SingleText table[] = {
        {0.0F, u"0"},
        {0.1F, u"0.1"},
        {0.5F, u"0.5"},
        {1.0F / 3, u"0.3333333"},
        {3.0F, u"3"},
        {1234567.0F, u"1234567"},
        {1234567.89F, u"1234568"},
        {9999999.0F, u"9999999"},
        {1e7F, u"1E+07"},
        {-1e7F, u"-1E+07"},
        {12345678.0F, u"1.234568E+07"},
        {0.0001F, u"0.0001"},
        {0.00001F, u"1E-05"},
    };
    for (const auto& [value, text] : table)
        EXPECT_EQ(numberText(value), text);
}

TEST(PointNumberText, LeavesOutTheZeroBeforeThePoint) {
    const DoubleText table[] = {
        {0.5, u".5"},    {-0.5, u"-.5"},    {0, u"0"},          {1.5, u"1.5"},
        {10.5, u"10.5"}, {-10.5, u"-10.5"}, {0.0001, u".0001"}, {1e-7, u"1E-07"},
    };
    for (const auto& [value, text] : table)
        EXPECT_EQ(pointNumberText(value), text);
    EXPECT_EQ(pointNumberText(0.1F), u".1");
    EXPECT_EQ(pointNumberText(-0.25F), u"-.25");
}

TEST(SpacedNumberText, PutsABlankBeforeWhatIsNotNegative) {
    const DoubleText table[] = {
        {1250.5, u" 1250.5"}, {-30, u"-30"}, {0.5, u" .5"},     {-0.5, u"-.5"},
        {0, u" 0"},           {-0.0, u" 0"}, {1e15, u" 1E+15"},
    };
    for (const auto& [value, text] : table)
        EXPECT_EQ(spacedNumberText(value), text);
}

TEST(LeadingNumber, ReadsATextAsFarAsItIsANumber) {
    const TextDouble table[] = {
        {u"12", 12},    {u"12元", 12}, {u"1.2.3", 1.2}, {u"0-3", 0},   {u"00", 0},  {u"1,250.5", 1},
        {u"5.", 5},     {u".5", 0.5},  {u".5.", 0.5},   {u"0.5", 0.5}, {u"-3", -3}, {u"+3", 3},
        {u"-.5", -0.5}, {u"3+4", 3},   {u"3-", 3},      {u"--3", 0},   {u"1x2", 1}, {u"007", 7},
    };
    for (const auto& [text, value] : table)
        EXPECT_EQ(leadingNumber(text.toString()), value) << text;
}

TEST(LeadingNumber, IsZeroForATextWithNoNumberAtItsHead) {
    for (const QString& text :
         {u""_s, u" "_s, u"元12"_s, u"."_s, u"-"_s, u"+."_s, u"E5"_s, u"１２"_s, u"¥5"_s, u"nan"_s, u"inf"_s, u"#5"_s})
        EXPECT_EQ(leadingNumber(text), 0) << text.toStdString();
}

TEST(LeadingNumber, SkipsBlanksTabsAndLineFeedsAnywhere) {
    const TextDouble table[] = {
        {u"  12", 12},   {u"1 2 3", 123}, {u"- 5", -5},         {u"1 . 5", 1.5},
        {u"\t1\n2", 12}, {u"1 E 2", 100}, {u" 1250.5", 1250.5},
    };
    for (const auto& [text, value] : table)
        EXPECT_EQ(leadingNumber(text.toString()), value) << text;
}

TEST(LeadingNumber, ReadsAnExponentOnlyWhenItHasDigits) {
    const TextDouble table[] = {
        {u"1E3", 1000},   {u"1e3", 1000}, {u"1D3", 1000},         {u"1d-2", 0.01},  {u"2.5E+2元", 250},
        {u"1E", 1},       {u"1E+", 1},    {u"3days", 3},          {u"1E+15", 1e15}, {u"1E3.5", 1000},
        {u"1E3E3", 1000}, {u"1E-400", 0}, {u"1E-99999999999", 0}, {u"0E999", 0},
    };
    for (const auto& [text, value] : table)
        EXPECT_EQ(leadingNumber(text.toString()), value) << text;
}

TEST(LeadingNumber, OverflowsBeyondTheRangeOfADouble) {
    EXPECT_EQ(leadingNumber(u"1E308"_s), 1e308);
    for (const QString& text :
         {u"1E309"_s, u"-1E309"_s, u"1E99999999999"_s, QString(400, u'9'), QString(400, u'9') + u"E-9"_s}) {
        try {
            leadingNumber(text);
            ADD_FAILURE() << text.toStdString();
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.number(), RuntimeError::Overflow);
            EXPECT_TRUE(error.text().contains(text.left(40)));
        }
    }
}

TEST(LeadingNumber, IsZeroForANumberTooSmallForADouble) {
    const QString tiny = u"0."_s + QString(400, u'0') + u"1"_s;
    for (const QString& text : {tiny, u'-' + tiny, tiny + u"E"_s, tiny + u"E+2"_s, u"1E-400"_s})
        EXPECT_EQ(leadingNumber(text), 0) << text.toStdString();
    EXPECT_EQ(leadingNumber(tiny + u"E+402"_s), 10);
}

TEST(LeadingNumber, ReadsBackWhatEveryTextFormWrites) {
    for (const double value : {0.0, 0.5, -0.5, 1250.5, -30.0, 1e15, 2.5e-10, 123456789.25}) {
        EXPECT_EQ(leadingNumber(numberText(value)), value);
        EXPECT_EQ(leadingNumber(pointNumberText(value)), value);
        EXPECT_EQ(leadingNumber(spacedNumberText(value)), value);
    }
}

TEST(FullNumber, TakesEveryWayToWriteAnAmount) {
    const TextDouble table[] = {
        {u"12", 12},
        {u" 12 ", 12},
        {u"\t12\r\n", 12},
        {u"1,250.5", 1250.5},
        {u"1,234,567", 1234567},
        {u"-5", -5},
        {u"+5", 5},
        {u"- 5", -5},
        {u"5.", 5},
        {u".5", 0.5},
        {u"-.5", -0.5},
        {u"1E3", 1000},
        {u"1.5e-3", 0.0015},
        {u"1D2", 100},
        {u"¥12", 12},
        {u"￥1,250.50", 1250.5},
        {u"-¥12", -12},
        {u"¥-12", -12},
        {u"¥ 12", 12},
        {u"00", 0},
        {u" 1250.5", 1250.5},
        {u"1E-400", 0},
    };
    for (const auto& [text, value] : table)
        EXPECT_EQ(fullNumber(text.toString()), value) << text;
}

TEST(FullNumber, ReadsPlainDigitsAsTheMachineDoes) {
    std::mt19937_64 random(11);
    for (int i = 0; i < 20'000; ++i) {
        const QString text = numberText(static_cast<double>(random() % 1'000'000'000'000ULL) / 1000 - 3e8);
        ASSERT_EQ(fullNumber(text), text.toDouble()) << text.toStdString();
    }
    for (const QStringView none : {u"-", u".", u"-.", u"1-", u"1..2", u"1.2.3", u"٣"})
        EXPECT_EQ(fullNumber(none.toString()), std::nullopt) << none.toString().toStdString();
    EXPECT_EQ(fullNumber(u"5."_s), 5);
    EXPECT_EQ(fullNumber(u"-.5"_s), -.5);
    EXPECT_EQ(fullNumber(QString(40, u'1')), 1.1111111111111112e39);
}

TEST(FullNumber, RefusesATextThatIsNoNumberAsAWhole) {
    for (const QString& text :
         {u""_s,     u" "_s,    u"12元"_s,     u"1.2.3"_s, u"0-3"_s, u"12+"_s,  u"12-"_s,   u"-"_s,  u"."_s,
          u"¥"_s,    u"--5"_s,  u"-¥-5"_s,     u"¥¥5"_s,   u"1 2"_s, u",5"_s,   u"1.2,3"_s, u"1E"_s, u"E5"_s,
          u"１２"_s, u"True"_s, u"2024-5-3"_s, u"inf"_s,   u"nan"_s, u"0x10"_s, u"1E309"_s, u"12a"_s}) {
        EXPECT_EQ(fullNumber(text), std::nullopt) << text.toStdString();
        EXPECT_FALSE(isNumeric(text)) << text.toStdString();
    }
    EXPECT_TRUE(isNumeric(u"12"_s));
}

} // namespace
} // namespace qinghe
