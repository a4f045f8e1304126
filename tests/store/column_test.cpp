#include "store/column.h"
#include "store/store_fixture.h"

#include <limits>

using namespace Qt::StringLiterals;

namespace qinghe {
namespace {

Column column(ColumnKind kind) {
    return {u"某栏"_s, kind};
}

QString textOf(ColumnKind kind, const Value& value) {
    return converted(column(kind), value).text();
}

int refusal(ColumnKind kind, const Value& value, const QString& named) {
    return errorOf([&] { converted(column(kind), value); }, named);
}

TEST(ColumnKinds, DeclareThemselvesInTheFileAndAreReadBack) {
    for (const ColumnKind kind : {ColumnKind::Text, ColumnKind::Number, ColumnKind::Integer, ColumnKind::Boolean,
                                  ColumnKind::Date, ColumnKind::Binary})
        EXPECT_EQ(kindOfDeclaredType(declaredType(kind)), kind);
    EXPECT_EQ(kindOfDeclaredType(u"date"_s), ColumnKind::Date);
    EXPECT_EQ(errorOf([] { kindOfDeclaredType(u"VARCHAR(20)"_s); }, u"VARCHAR(20)"_s), RuntimeError::StoreFailure);
}

TEST(ColumnKinds, AllTakeNull) {
    for (int kind = 0; kind <= static_cast<int>(ColumnKind::Binary); ++kind)
        EXPECT_TRUE(converted(column(static_cast<ColumnKind>(kind)), Value()).isNull());
}

TEST(DateColumn, TakesThePickersTextAndTheUsualForms) {
    for (const auto& text : {u"2024-5-3"_s, u"2024-05-03"_s, u"2024/5/3"_s, u"2024.5.3"_s, u"2024年5月3日"_s})
        EXPECT_EQ(textOf(ColumnKind::Date, text), u"2024-5-3"_s) << text;
}

TEST(DateColumn, ReadsAMonthAloneAsItsFirstDay) {
    EXPECT_EQ(textOf(ColumnKind::Date, u"2024-5"_s), u"2024-5-1"_s);
}

TEST(DateColumn, TakesADayWithoutItsYearAsOneOfThisYear) {
    const auto in2026 = [] { return 2026; };
    for (const auto& text : {u"5-3"_s, u"5月3日"_s, u"５月３号"_s})
        EXPECT_EQ(converted(column(ColumnKind::Date), text, in2026).text(), u"2026-5-3"_s) << text;
    EXPECT_EQ(textOf(ColumnKind::Date, u"24-5-3"_s), u"2024-5-3"_s);
    EXPECT_EQ(refusal(ColumnKind::Date, u"5-3"_s, u"“5-3”"_s), RuntimeError::TypeMismatch) << "without a year";
}

TEST(DateColumn, TakesNoNumberForADay) {
    const auto in2026 = [] { return 2026; };
    for (const Value& number : {Value(5.3), Value(20240503), Value(20240503.0)})
        EXPECT_EQ(errorOf([&] { converted(column(ColumnKind::Date), number, in2026); }, u"某栏"_s),
                  RuntimeError::TypeMismatch)
            << number.text();
}

TEST(DateColumn, KeepsATimeOfDayButNotMidnight) {
    EXPECT_EQ(textOf(ColumnKind::Date, u"2024-5-3 8:05:09"_s), u"2024-5-3 8:05:09"_s);
    EXPECT_EQ(textOf(ColumnKind::Date, u"2024-5-3 0:00:00"_s), u"2024-5-3"_s);
    EXPECT_EQ(textOf(ColumnKind::Date, DateValue{QDate(2024, 5, 3), QTime(0, 0)}), u"2024-5-3"_s);
    EXPECT_EQ(textOf(ColumnKind::Date, DateValue{QDate(2024, 5, 3), QTime(0, 0, 1)}), u"2024-5-3 0:00:01"_s);
}

TEST(DateColumn, RefusesWhatIsNoDateAndNamesIt) {
    for (const auto& text : {u"2024-13-1"_s, u"2024-2-30"_s, u"2024-5-"_s, u"昨天"_s, u"5"_s})
        EXPECT_EQ(refusal(ColumnKind::Date, text, u'“' + text + u'”'), RuntimeError::TypeMismatch);
    EXPECT_EQ(refusal(ColumnKind::Date, u"", u"某栏"_s), RuntimeError::TypeMismatch);
    EXPECT_EQ(refusal(ColumnKind::Date, 5.0, u"某栏"_s), RuntimeError::TypeMismatch);
    EXPECT_EQ(refusal(ColumnKind::Date, DateValue{}, u"某栏"_s), RuntimeError::TypeMismatch);
    EXPECT_EQ(refusal(ColumnKind::Date, QByteArray("x"), u"二进制"_s), RuntimeError::TypeMismatch);
}

TEST(NumberColumn, TakesTheFullConversion) {
    EXPECT_EQ(textOf(ColumnKind::Number, u" -1,250.50 "_s), u"-1250.5"_s);
    EXPECT_EQ(textOf(ColumnKind::Number, u"1E3"_s), u"1000"_s);
    EXPECT_EQ(textOf(ColumnKind::Number, 7), u"7"_s);
    EXPECT_EQ(textOf(ColumnKind::Number, true), u"-1"_s);
}

TEST(NumberColumn, RefusesWhatIsNoNumberAndNamesIt) {
    for (const auto& text : {u"12元"_s, u"0-3"_s, u"12+"_s, u"1.2.3"_s})
        EXPECT_EQ(refusal(ColumnKind::Number, text, u'“' + text + u'”'), RuntimeError::TypeMismatch);
    EXPECT_EQ(refusal(ColumnKind::Number, u"", u"某栏"_s), RuntimeError::TypeMismatch);
    EXPECT_EQ(refusal(ColumnKind::Number, std::numeric_limits<double>::infinity(), u"某栏"_s),
              RuntimeError::TypeMismatch);
    EXPECT_EQ(refusal(ColumnKind::Number, std::numeric_limits<double>::quiet_NaN(), u"某栏"_s),
              RuntimeError::TypeMismatch);
}

TEST(IntegerColumn, RoundsHalfToEvenAndOverflowsAt32Bits) {
    EXPECT_EQ(textOf(ColumnKind::Integer, 2.5), u"2"_s);
    EXPECT_EQ(textOf(ColumnKind::Integer, 3.5), u"4"_s);
    EXPECT_EQ(textOf(ColumnKind::Integer, u"-0.5"_s), u"0"_s);
    EXPECT_EQ(textOf(ColumnKind::Integer, 2147483647), u"2147483647"_s);
    EXPECT_EQ(refusal(ColumnKind::Integer, 2147483648.0, u"某栏"_s), RuntimeError::Overflow);
    EXPECT_EQ(refusal(ColumnKind::Integer, -2147483649.0, u"某栏"_s), RuntimeError::Overflow);
    EXPECT_EQ(refusal(ColumnKind::Integer, u"一"_s, u"“一”"_s), RuntimeError::TypeMismatch);
}

TEST(BooleanColumn, TakesTruthValues) {
    EXPECT_EQ(textOf(ColumnKind::Boolean, true), u"True"_s);
    EXPECT_EQ(textOf(ColumnKind::Boolean, 0), u"False"_s);
    EXPECT_EQ(textOf(ColumnKind::Boolean, u"True"_s), u"True"_s);
    EXPECT_EQ(refusal(ColumnKind::Boolean, u"也许"_s, u"“也许”"_s), RuntimeError::TypeMismatch);
}

TEST(TextColumn, TakesTheTextFormOfAnythingButBytes) {
    EXPECT_EQ(textOf(ColumnKind::Text, u""), QString());
    EXPECT_FALSE(converted(column(ColumnKind::Text), u"").isNull());
    EXPECT_EQ(textOf(ColumnKind::Text, 0.5), u"0.5"_s);
    EXPECT_EQ(textOf(ColumnKind::Text, DateValue{QDate(2024, 5, 3), {}}), u"2024-5-3"_s);
    EXPECT_EQ(refusal(ColumnKind::Text, QByteArray("x"), u"某栏"_s), RuntimeError::TypeMismatch);
}

TEST(BinaryColumn, TakesBytesAlone) {
    EXPECT_EQ(converted(column(ColumnKind::Binary), QByteArray("a\0b", 3)).bytes(), QByteArray("a\0b", 3));
    EXPECT_EQ(refusal(ColumnKind::Binary, u"文字"_s, u"某栏"_s), RuntimeError::TypeMismatch);
}

TEST(Refusals, AreToldForTheValuesThatAConversionThrowsFor) {
    EXPECT_EQ(qinghe::refusal(column(ColumnKind::Date), u"2024-11-31"), u"不是日期"_s);
    EXPECT_EQ(qinghe::refusal(column(ColumnKind::Number), u"12+"), u"不是数字"_s);
    EXPECT_EQ(qinghe::refusal(column(ColumnKind::Integer), u"一"), u"不是整数"_s);
    EXPECT_EQ(qinghe::refusal(column(ColumnKind::Date), u"2024-11-30"), QString());
    EXPECT_EQ(qinghe::refusal(column(ColumnKind::Date), u"5-3"), u"不是日期"_s);
    EXPECT_EQ(qinghe::refusal(column(ColumnKind::Date), u"5-3", [] { return 2024; }), QString());
    EXPECT_EQ(qinghe::refusal(column(ColumnKind::Text), u"什么都行"), QString());
}

} // namespace
} // namespace qinghe
