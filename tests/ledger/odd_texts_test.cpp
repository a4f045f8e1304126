#include "ledger/ledger_lists.h"
#include "support/page_rig.h"

// Texts that are no mistakes, only unusual: every list stores them and shows them again.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class OddTextsTest : public EveryListTest {
protected:
    OddTextsTest() { openWith(1); }

    /// Saves a text in a cell of the first row and gives what is there after a restart.
    QString readBack(int col, const QString& text) {
        grid().setTextMatrix(1, col, text);
        press(save());
        EXPECT_EQ(rig.lastMessage(), SaveDone) << text.left(20).toStdString();
        restart();
        return grid().TextMatrix(1, col);
    }
};

class OddDatesTest : public OddTextsTest {};

INSTANTIATE_TEST_SUITE_P(Of, OddTextsTest, ::testing::ValuesIn(LedgerLists), listName);
INSTANTIATE_TEST_SUITE_P(Of, OddDatesTest, ::testing::ValuesIn(DatedLists), listName);

TEST_P(OddTextsTest, KeepANameOfTenThousandCharacters) {
    const QString name = u"户名"_s.repeated(5000);
    EXPECT_EQ(readBack(list.text, name), name);
}

TEST_P(OddTextsTest, KeepQuotesOfBothKinds) {
    EXPECT_EQ(readBack(list.text, u"小王's \"家\"; drop table srb"_s), u"小王's \"家\"; drop table srb");
}

TEST_P(OddTextsTest, KeepBlanksAroundAText) {
    EXPECT_EQ(readBack(list.text, u" 甲 "_s), u" 甲 ");
}

TEST_P(OddTextsTest, ReadAMillionWithMarksAndWithout) {
    EXPECT_EQ(readBack(list.amount, u"1000000"_s), u"1000000");
    EXPECT_EQ(readBack(list.amount, u"1,000,000"_s), u"1000000");
}

TEST_P(OddTextsTest, StoreAVeryLargeAmountAsItIs) {
    grid().setTextMatrix(1, list.amount, u"1e300"_s);
    press(save());
    EXPECT_EQ(rig.messages->shown, std::vector{SaveDone});
    EXPECT_EQ(stored().front().split('|'_L1).at(list.amount - 1), u"1.0e+300");
}

TEST_P(OddTextsTest, ReadTheBlankBeforeANumberAndTheZeroLeftOutOfIt) {
    EXPECT_EQ(readBack(list.amount, u" .5"_s), u"0.5");
    EXPECT_EQ(readBack(list.amount, u"-30"_s), u"-30");
}

TEST_P(OddDatesTest, ReadTheUsualWaysOfWritingOne) {
    EXPECT_EQ(readBack(list.date, u"2024年7月9日"_s), u"2024-7-9");
    EXPECT_EQ(readBack(list.date, u"2024/07/09"_s), u"2024-7-9");
}

} // namespace
} // namespace qinghe::testing
