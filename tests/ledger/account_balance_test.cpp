#include "ledger/account_balance.h"
#include "qt_printing.h"
#include "runtime/runtime_error.h"
#include "store/tables.h"

#include <gtest/gtest.h>

// The arithmetic of an account's row, without the row.

namespace qinghe {
namespace {

using namespace Qt::StringLiterals;
constexpr QStringView Name = columns::AccountName, Start = columns::OpeningAmount, Income = columns::Received,
                      Expense = columns::Spent, Borrowed = columns::Borrowed, Lent = columns::Lent,
                      TransferIn = columns::MovedIn, TransferOut = columns::MovedOut, Balance = columns::Balance,
                      Note = columns::AccountNote;

QString after(QStringView column, const QString& text, const QString& balance) {
    return balanceAfterLeaving(column, text, balance).value_or(u"untouched"_s);
}

TEST(AccountBalance, BeginsWithTheStartingAmountAsItStands) {
    for (const QString& text : {u"100"_s, u""_s, u" 1,000.50元"_s, u"没有"_s})
        EXPECT_EQ(after(Start, text, u"77"_s), text);
}

TEST(AccountBalance, GrowsByWhatComesInAndShrinksByWhatGoesOut) {
    for (const QStringView in : {Income, Borrowed, TransferIn})
        EXPECT_EQ(after(in, u"30"_s, u"100"_s), u" 130");
    for (const QStringView out : {Expense, Lent, TransferOut})
        EXPECT_EQ(after(out, u"30"_s, u"100"_s), u" 70");
}

TEST(AccountBalance, IsNotTouchedByNameBalanceAndRemark) {
    for (const QStringView other : {Name, Balance, Note})
        EXPECT_EQ(balanceAfterLeaving(other, u"30"_s, u"100"_s), std::nullopt);
}

TEST(AccountBalance, HasABlankBeforeWhatIsNotNegative) {
    EXPECT_EQ(after(Income, u"0.5"_s, u"1250"_s), u" 1250.5");
    EXPECT_EQ(after(Expense, u"30"_s, u"0"_s), u"-30");
    EXPECT_EQ(after(Expense, u"5"_s, u"5"_s), u" 0");
    EXPECT_EQ(after(Income, u".25"_s, u".25"_s), u" .5");
    EXPECT_EQ(after(Expense, u"0.5"_s, u"0"_s), u"-.5");
}

TEST(AccountBalance, ReadsTextsAsFarAsTheyAreNumbers) {
    EXPECT_EQ(after(Income, u"12元"_s, u" 70"_s), u" 82");
    EXPECT_EQ(after(Income, u"  1 2"_s, u"-30"_s), u"-18");
    EXPECT_EQ(after(Income, u"1,000"_s, u"0"_s), u" 1");
    EXPECT_EQ(after(Income, u"1e3"_s, u"0"_s), u" 1000");
}

TEST(AccountBalance, CountsATextWithoutALeadingNumberAsNothing) {
    EXPECT_EQ(after(Income, u"约5"_s, u"7"_s), u" 7");
    EXPECT_EQ(after(Income, u""_s, u"7"_s), u" 7");
    EXPECT_EQ(after(Income, u"5"_s, u"不详"_s), u" 5");
    EXPECT_EQ(after(Expense, u""_s, u""_s), u" 0");
}

TEST(AccountBalance, IsADoubleWithoutRounding) {
    EXPECT_EQ(after(Income, u"0.125"_s, u"16777217"_s), u" 16777217.125"); // more than a single holds
    EXPECT_EQ(after(Income, u"0.001"_s, u"0"_s), u" .001");
    EXPECT_EQ(after(Income, u"0.2"_s, u"0.1"_s), u" .3");
}

TEST(AccountBalance, RefusesWhatIsBeyondADouble) {
    EXPECT_EQ(after(Income, u"1e300"_s, u"0"_s), u" 1E+300");
    EXPECT_THROW(balanceAfterLeaving(Income, u"1.7e308"_s, u"1.7e308"_s), RuntimeError);
    EXPECT_THROW(balanceAfterLeaving(Lent, u"1e400"_s, u"0"_s), RuntimeError);
}

} // namespace
} // namespace qinghe
