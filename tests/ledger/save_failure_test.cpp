#include "ledger/ledger_lists.h"
#include "support/page_rig.h"

// A value that a column cannot hold stops the save after the table was emptied: the rows written so far stay, the rest
// of the old table is gone, and the program ends with the error.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

constexpr int TypeMismatch = 13, Overflow = 6;
constexpr int MostRows = 32767; ///< as far as the save's counter goes

class SaveFailureTest : public EveryListTest {
protected:
    /// Saves five rows the third of which holds a bad text, and looks what is left.
    void expectStoppedBy(int col, const QString& bad) {
        openWith(5);
        grid().setTextMatrix(3, col, bad);
        // The mark says it beforehand, of this cell alone.
        for (int row = 1; row <= 5; ++row)
            for (int other = 1; other <= lastColumn(); ++other)
                EXPECT_EQ(!grid().objectionTo(row, other).isEmpty(), row == 3 && other == col) << row << ',' << other;
        EXPECT_EQ(grid().objectionTo(3, col),
                  col == list.date ? u"不是日期，保存会在这里中断"_s : u"不是数字，保存会在这里中断"_s);
        press(save());
        expectError(TypeMismatch);
        EXPECT_TRUE(rig.messages->errors.front().second.contains(bad));
        EXPECT_TRUE(rig.messages->shown.empty()); // no word of success
        EXPECT_EQ(stored(u"区别"_s), (QStringList{u"1"_s, u"2"_s}));
        EXPECT_TRUE(rig.messages->lastWords.startsWith(u"保存没有完成：这一页原有 5 条，已写回 2 条。"_s));
        const QString rescued = rescuedText();
        for (int number = 1; number <= 5; ++number)
            EXPECT_TRUE(rescued.contains(u'\n' + QString::number(number) + u'\t' + row(number).replace(u'|', u'\t')));
    }
};

class SaveDateFailureTest : public SaveFailureTest {};
class LongTextFailureTest : public SaveFailureTest {};

INSTANTIATE_TEST_SUITE_P(Of, SaveFailureTest, ::testing::ValuesIn(LedgerLists), listName);
INSTANTIATE_TEST_SUITE_P(Of, LongTextFailureTest, ::testing::Values(Budget), listName);
INSTANTIATE_TEST_SUITE_P(Of, SaveDateFailureTest, ::testing::ValuesIn(DatedLists), listName);

TEST_P(SaveFailureTest, StopsAtAnAmountWithItsUnit) {
    expectStoppedBy(list.amount, u"12元"_s);
}

TEST_P(SaveFailureTest, StopsAtAnAmountInWords) {
    expectStoppedBy(list.amount, u"一百"_s);
}

TEST_P(SaveFailureTest, StopsAtAnAmountOfTwoPoints) {
    expectStoppedBy(list.amount, u"1.2.3"_s);
}

TEST_P(SaveFailureTest, StopsAtAnUnfinishedCalculation) {
    expectStoppedBy(list.amount, u"12+"_s);
}

TEST_P(SaveFailureTest, StopsAtANegativeResultBehindItsZero) {
    expectStoppedBy(list.amount, u"0-3"_s);
}

TEST_P(SaveFailureTest, StopsAtAnAmountBeyondADouble) {
    expectStoppedBy(list.amount, u"1e400"_s);
}

TEST_P(LongTextFailureTest, QuotesOfALongTextItsHeadAndKeepsAllOfItInTheRescuedTexts) {
    openWith(1);
    const QString text(1'000'000, u'长');
    grid().setTextMatrix(1, list.date, text);
    press(save());
    expectError(TypeMismatch, QString(40, u'长') + u"…（共 1000000 个字）"_s);
    EXPECT_LT(rig.messages->errors.front().second.size(), 200);
    EXPECT_TRUE(rescuedText().contains(text));
}

TEST_P(SaveDateFailureTest, StopsAtATextThatIsNoDate) {
    expectStoppedBy(list.date, u"明天"_s);
}

TEST_P(SaveDateFailureTest, StopsAtADateThatDoesNotExist) {
    expectStoppedBy(list.date, u"2024-13-1"_s);
}

TEST_P(SaveDateFailureTest, StopsAtADateWithoutADay) {
    expectStoppedBy(list.date, u"2024-5-"_s);
}

TEST_P(SaveFailureTest, KeepsTheRowsInTheStoreForTheNextStart) {
    expectStoppedBy(list.amount, u"无"_s);
    restart();
    EXPECT_EQ(grid().Rows(), 3);
    EXPECT_EQ(row(1), list.firstRow.toString());
}

class SaveCounterTest : public PageTest {
protected:
    SaveCounterTest() : PageTest(Income) {}
};

TEST_F(SaveCounterTest, OverflowsAfterTheLargestCount) {
    store(MostRows);
    open();
    ASSERT_EQ(grid().Rows() - 1, MostRows);
    rig.click(add());
    for (int col = 1; col <= 6; ++col)
        grid().setTextMatrix(MostRows + 1, col, grid().TextMatrix(1, col));
    rig.click(save());
    expectError(Overflow);
    EXPECT_EQ(rig.sql(u"select count(*), min(区别), max(区别) from srb"_s), QStringList{u"32767|1|32767"_s});
}

TEST_F(SaveCounterTest, SavesTheLargestCount) {
    store(MostRows);
    open();
    rig.click(save());
    EXPECT_EQ(rig.lastMessage(), SaveDone);
    EXPECT_EQ(rig.sql(u"select count(*), max(区别) from srb"_s), QStringList{u"32767|32767"_s});
}

} // namespace
} // namespace qinghe::testing
