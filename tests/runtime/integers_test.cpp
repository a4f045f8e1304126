#include "qt_printing.h"
#include "runtime/integers.h"
#include "runtime/runtime_error.h"

#include <gtest/gtest.h>
#include <limits>

namespace qinghe {

using namespace Qt::StringLiterals;
namespace {

template<typename Action>
void expectOverflow(Action action) {
    try {
        action();
        ADD_FAILURE() << "no error";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), RuntimeError::Overflow);
    }
}

TEST(Int16, IsZeroUntilItIsGivenAValue) {
    EXPECT_EQ(Int16(), 0);
}

TEST(Int16, HoldsItsWholeRange) {
    EXPECT_EQ(Int16(32767), 32767);
    EXPECT_EQ(Int16(-32768), -32768);
}

TEST(Int16, OverflowsBeyondItsRange) {
    for (const long long value :
         {32768LL, -32769LL, 65536LL, std::numeric_limits<long long>::max(), std::numeric_limits<long long>::min()})
        expectOverflow([value] { Int16 number(value); });
}

TEST(Int16, CountsUpToTheEndAndKeepsItsValueWhenItOverflows) {
    Int16 counter(32766);
    EXPECT_EQ(++counter, 32767);
    expectOverflow([&counter] { ++counter; });
    EXPECT_EQ(counter, 32767);
    counter += -32767;
    EXPECT_EQ(counter, 0);
    expectOverflow([&counter] { counter += -32769; });
    EXPECT_EQ(counter, 0);
}

TEST(Int16, NamesTheNumberThatDidNotFit) {
    try {
        Int16 number(40000);
        ADD_FAILURE() << "no error";
    } catch (const RuntimeError& error) {
        EXPECT_TRUE(error.text().contains(u"40000")) << error.what();
    }
}

TEST(RoundedInt16, RoundsHalfToEven) {
    struct {
        double value;
        int rounded;
    } const table[] = {{0.5, 0},   {1.5, 2},         {2.5, 2},         {3.5, 4},           {-0.5, 0},
                       {-1.5, -2}, {-2.5, -2},       {0.49, 0},        {0.51, 1},          {2.4, 2},
                       {-2.6, -3}, {32767.4, 32767}, {32766.5, 32766}, {-32768.5, -32768}, {1e-9, 0}};
    for (const auto& [value, rounded] : table)
        EXPECT_EQ(roundedInt16(value), rounded) << value;
}

TEST(RoundedInt16, OverflowsBeyondItsRange) {
    for (const double value : {32767.5, -32768.6, 1e300, -1e300, std::numeric_limits<double>::infinity(),
                               std::numeric_limits<double>::quiet_NaN()})
        expectOverflow([value] { roundedInt16(value); });
}

TEST(RuntimeError, CarriesItsNumberAndItsTextInUtf8) {
    const RuntimeError error(RuntimeError::DivisionByZero, u"除数为零"_s);
    EXPECT_EQ(error.number(), 11);
    EXPECT_EQ(error.text(), u"除数为零");
    EXPECT_STREQ(error.what(), "除数为零");
}

} // namespace
} // namespace qinghe
