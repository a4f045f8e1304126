#include "qt_printing.h"
#include "runtime/runtime_error.h"
#include "runtime/value.h"

#include <gtest/gtest.h>
#include <type_traits>

namespace qinghe {

using namespace Qt::StringLiterals;
namespace {

const DateValue Day{QDate(2024, 5, 3), {}};
const Value Binary(QByteArray("\x00\xff", 2));

template<typename Action>
void expectMismatch(Action action, const QString& atFault) {
    try {
        action();
        ADD_FAILURE() << "no error for " << atFault.toStdString();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), RuntimeError::TypeMismatch);
        EXPECT_TRUE(error.text().contains(atFault)) << error.what();
    }
}

TEST(Value, IsNullUntilItIsGivenSomething) {
    EXPECT_TRUE(Value().isNull());
    EXPECT_FALSE(Value(u"").isNull());
    EXPECT_FALSE(Value(0).isNull());
    EXPECT_FALSE(Value(false).isNull());
}

TEST(Value, HasATextForEveryKindButBinary) {
    struct {
        Value value;
        QStringView text;
    } const table[] = {
        {Value(), u""},
        {Value(u"早餐"), u"早餐"},
        {Value(0.5), u"0.5"},
        {Value(1250.0), u"1250"},
        {Value(1e15), u"1E+15"},
        {Value(7), u"7"},
        {Value(true), u"True"},
        {Value(false), u"False"},
        {Value(Day), u"2024-5-3"},
        {Value(qint64(1) << 60), u"1152921504606846976"},
        {Value(DateValue{Day.day, QTime(8, 5, 9)}), u"2024-5-3 8:05:09"},
    };
    for (const auto& [value, text] : table)
        EXPECT_EQ(value.text(), text);
    expectMismatch([] { Binary.text(); }, u"二进制"_s);
}

TEST(Value, ReadsAsANumber) {
    EXPECT_EQ(Value(0.5).number(), 0.5);
    EXPECT_EQ(Value(-7).number(), -7);
    EXPECT_EQ(Value(u" 1,250.5 ").number(), 1250.5);
    EXPECT_EQ(Value(true).number(), -1);
    EXPECT_EQ(Value(false).number(), 0);
}

TEST(Value, IsNoNumberWhenItIsNullOrAnyOtherText) {
    expectMismatch([] { Value().number(); }, u"空值"_s);
    expectMismatch([] { Value(u"12元").number(); }, u"12元"_s);
    expectMismatch([] { Value(u"").number(); }, u"“”"_s);
    expectMismatch([] { Value(Day).number(); }, u"2024-5-3"_s);
    expectMismatch([] { Binary.number(); }, u"二进制数据"_s);
}

TEST(Value, IsTrueForTrueAndEveryNumberButZero) {
    for (const Value& value :
         {Value(true), Value(1), Value(-1), Value(0.5), Value(u"True"), Value(u"true"), Value(u"-1")})
        EXPECT_TRUE(value.truth()) << value.text().toStdString();
    for (const Value& value : {Value(), Value(false), Value(0), Value(0.0), Value(u"False"), Value(u"0")})
        EXPECT_FALSE(value.truth()) << value.text().toStdString();
}

TEST(Value, IsNeitherTrueNorFalseForOtherTextsAndKinds) {
    expectMismatch([] { Value(u"是").truth(); }, u"是"_s);
    expectMismatch([] { Value(u"").truth(); }, u"“”"_s);
    expectMismatch([] { Value(Day).truth(); }, u"2024-5-3"_s);
    expectMismatch([] { Binary.truth(); }, u"二进制数据"_s);
}

TEST(Value, GivesTheBytesOfABinaryValue) {
    EXPECT_EQ(Binary.bytes(), QByteArray("\x00\xff", 2));
    EXPECT_EQ(Value().bytes(), QByteArray());
    expectMismatch([] { Value(u"字").bytes(); }, u"字"_s);
    expectMismatch([] { Value(1).bytes(); }, u"1"_s);
}

TEST(Value, HoldsTextUnlessNullOrEmpty) {
    EXPECT_FALSE(Value().holdsText());
    EXPECT_FALSE(Value(u"").holdsText());
    for (const Value& value : {Value(u" "), Value(0), Value(false), Value(0.0), Value(Day)})
        EXPECT_TRUE(value.holdsText()) << value.text().toStdString();
}

TEST(Value, EqualsAValueOfTheSameKindAndContent) {
    EXPECT_EQ(Value(1), Value(qint64(1)));
    EXPECT_NE(Value(1), Value(1.0));
    EXPECT_NE(Value(), Value(u""));
    EXPECT_EQ(Value(Day), Value(Day));
}

TEST(Value, TakesNoPointerForABoolean) {
    EXPECT_FALSE((std::is_constructible_v<Value, const char*>));
    EXPECT_FALSE((std::is_constructible_v<Value, const void*>));
    EXPECT_EQ(Value(u"字").text(), u"字");
}

} // namespace
} // namespace qinghe
