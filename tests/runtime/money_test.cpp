#include "qt_printing.h"
#include "runtime/money.h"
#include "runtime/runtime_error.h"

#include <gtest/gtest.h>
#include <limits>

namespace qinghe {
namespace {

using namespace Qt::StringLiterals;

TEST(Money, HasTwoPlacesAndNoZeroBeforeThePoint) {
    EXPECT_EQ(money::amount(12.5), u"12.50"_s);
    EXPECT_EQ(money::amount(0.5), u".50"_s);
    EXPECT_EQ(money::yuan(12.5), u"12.50元"_s);
    EXPECT_EQ(money::yuan(Value(-3)), u"-3.00元"_s);
}

TEST(Money, OfNoValueHasNoText) {
    EXPECT_EQ(money::amount({}), u""_s);
    EXPECT_EQ(money::yuan({}), u""_s);
}

TEST(Money, ThatIsToldWholeHasAZeroBeforeThePoint) {
    EXPECT_EQ(money::fullYuan(0.5), u"0.50元"_s);
    EXPECT_EQ(money::none(), u"0.00元"_s);
}

TEST(Money, OfALedgerIsKeptAsASingle) {
    EXPECT_EQ(money::singleTotal(0.1), 0.1f);
    EXPECT_EQ(money::singleTotal(16777217), 16777216.0f);
    for (const double tooMuch : {1e39, -1e39, std::numeric_limits<double>::infinity()})
        EXPECT_EQ(money::fullYuan(money::singleTotal(tooMuch)), u"溢出"_s);
}

} // namespace
} // namespace qinghe
