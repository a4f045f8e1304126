#include "ledger/income_rig.h"

// A value that a column cannot hold stops the save after the table was emptied: the rows written so far stay, the rest
// of the old table is gone, and the program ends with the error.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

constexpr int TypeMismatch = 13, Overflow = 6;
constexpr int MostRows = 32767; ///< as far as the save's counter goes

class SaveFailureTest : public IncomeTest {
protected:
    /// Saves five rows the third of which holds a bad text, and looks what is left.
    void expectStoppedBy(int col, const QString& bad) {
        rig.sql(u"delete from srb"_s);
        openWith(5);
        ms2().setTextMatrix(3, col, bad);
        rig.click(save());
        ASSERT_EQ(rig.messages->errors.size(), 1u) << bad.toStdString();
        EXPECT_EQ(rig.messages->errors.front().first, TypeMismatch);
        EXPECT_TRUE(rig.messages->errors.front().second.contains(bad))
            << rig.messages->errors.front().second.toStdString();
        EXPECT_EQ(rig.exitCode(), 1);
        EXPECT_TRUE(rig.messages->shown.empty()); // no word of success
        EXPECT_EQ(rig.sql(u"select 编号, 区别 from srb order by rowid"_s), (QStringList{u"1|1"_s, u"2|2"_s}));
    }
};

TEST_F(SaveFailureTest, StopsAtAnAmountWithItsUnit) {
    expectStoppedBy(5, u"12元"_s);
}

TEST_F(SaveFailureTest, StopsAtAnAmountOfTwoPoints) {
    expectStoppedBy(5, u"1.2.3"_s);
}

TEST_F(SaveFailureTest, StopsAtAnUnfinishedCalculation) {
    expectStoppedBy(5, u"12+"_s);
}

TEST_F(SaveFailureTest, StopsAtANegativeResultBehindItsZero) {
    expectStoppedBy(5, u"0-3"_s);
}

TEST_F(SaveFailureTest, StopsAtADateThatDoesNotExist) {
    expectStoppedBy(2, u"2024-13-1"_s);
}

TEST_F(SaveFailureTest, StopsAtADateWithoutADay) {
    expectStoppedBy(2, u"2024-5-"_s);
}

TEST_F(SaveFailureTest, KeepsTheRowsInTheStoreForTheNextStart) {
    expectStoppedBy(5, u"无"_s);
    rig.stop();
    rig.signIn();
    open();
    EXPECT_EQ(rows().size(), 2);
    EXPECT_EQ(total(), u"当前收入总额为：4.00元 ");
}

TEST_F(SaveFailureTest, OverflowsAfterTheLargestCount) {
    store(MostRows);
    open();
    ASSERT_EQ(ms2().Rows() - 1, MostRows);
    rig.click(add());
    for (int col = 1; col <= 6; ++col)
        ms2().setTextMatrix(MostRows + 1, col, ms2().TextMatrix(1, col));
    rig.click(save());
    ASSERT_EQ(rig.messages->errors.size(), 1u);
    EXPECT_EQ(rig.messages->errors.front().first, Overflow);
    EXPECT_EQ(rig.exitCode(), 1);
    EXPECT_EQ(rig.sql(u"select count(*), min(区别), max(区别) from srb"_s), QStringList{u"32767|1|32767"_s});
}

TEST_F(SaveFailureTest, SavesTheLargestCount) {
    store(MostRows);
    open();
    rig.click(save());
    EXPECT_EQ(rig.lastMessage(), SaveDone);
    EXPECT_EQ(rig.sql(u"select count(*), max(区别) from srb"_s), QStringList{u"32767|32767"_s});
}

} // namespace
} // namespace qinghe::testing
