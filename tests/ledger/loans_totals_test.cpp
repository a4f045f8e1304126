#include "ledger/loans_rig.h"

// What stands under the lists of loans: one sum for the borrowed, three for the lent, and only the options write it.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class LoansTotalsTest : public LoansTest {};

TEST_F(LoansTotalsTest, AddUpTheBorrowedAmountAlone) {
    storeLoan(Borrowed, u"1000,400.5,599.5"_s);
    storeLoan(Borrowed, u"0.25,0,0.25"_s);
    open();
    chooseBorrowed();
    EXPECT_EQ(total(), u"当前借入总额为：1000.25元 ");
}

TEST_F(LoansTotalsTest, AddUpWhatWasLentPaidBackAndIsLeft) {
    storeLoan(Lent, u"1000,400.5,599.5"_s);
    storeLoan(Lent, u"0.25,0,7"_s); // what is left is added as it was written
    open();
    EXPECT_EQ(total(), u"当前借出总额为：1000.25元 ，已还金额为：400.50 元，目前余额为606.50 元");
}

TEST_F(LoansTotalsTest, HaveNoZeroBeforeThePoint) {
    storeLoan(Borrowed, u"0.5,0,0"_s);
    storeLoan(Lent, u"0.5,0,-0.5"_s);
    open();
    EXPECT_EQ(total(), u"当前借出总额为：.50元 ，已还金额为：.00 元，目前余额为-.50 元");
    chooseBorrowed();
    EXPECT_EQ(total(), u"当前借入总额为：.50元 ");
}

TEST_F(LoansTotalsTest, SpeakOfLentMoneyOverAnEmptyTableOnBothLists) {
    open();
    EXPECT_EQ(total(), u"当前借出总额为：0.00元");
    storeLoan(Lent, u"5,0,5"_s);
    chooseBorrowed();
    EXPECT_EQ(total(), u"当前借出总额为：0.00元");
}

TEST_F(LoansTotalsTest, AreEmptyWhereNoAmountWasStored) {
    storeLoan(Lent, u"100,null,null"_s);
    open();
    EXPECT_EQ(total(), u"当前借出总额为：100.00元 ，已还金额为： 元，目前余额为 元");
}

TEST_F(LoansTotalsTest, AreThoseOfAnEmptyTableWhenTheFirstSumIsMissing) {
    storeLoan(Lent, u"null,4,5"_s);
    storeLoan(Borrowed, u"null,4,5"_s);
    open();
    EXPECT_EQ(total(), u"当前借出总额为：0.00元");
    chooseBorrowed();
    EXPECT_EQ(total(), u"当前借出总额为：0.00元");
}

TEST_F(LoansTotalsTest, StayWhenTheLabelFindsItsOptionSet) {
    openWith(1);
    const QString before = total();
    storeLoan(Lent, u"7,0,7"_s);
    clickLabel();
    EXPECT_EQ(rows().size(), 2);
    EXPECT_EQ(total(), before);
    chooseBorrowed();
    clickLabel(); // which sets the option anew
    EXPECT_EQ(total(), u"当前借出总额为：107.00元 ，已还金额为：1.00 元，目前余额为97.00 元");
}

TEST_F(LoansTotalsTest, StayWhenThePictureFindsItsOptionSet) {
    storeLoan(Borrowed, u"7,0,7"_s);
    clickImage();
    EXPECT_EQ(total(), u"当前借入总额为：7.00元 ");
    storeLoan(Borrowed, u"8,0,8"_s);
    clickImage();
    EXPECT_EQ(rows().size(), 2);
    EXPECT_EQ(total(), u"当前借入总额为：7.00元 ");
}

TEST_F(LoansTotalsTest, StayThroughADeletionAndASave) {
    openWith(3);
    const QString before = total();
    clickCell(3, 1);
    press(remove());
    EXPECT_EQ(total(), before);
    press(save());
    EXPECT_EQ(rig.lastMessage(), SaveDone);
    EXPECT_EQ(total(), before);
    EXPECT_EQ(stored().size(), 2);
}

TEST_F(LoansTotalsTest, LeaveTheDataControlOnTheBareTable) {
    open();
    EXPECT_EQ(adodc1().recordset().fieldCount(), 9);
    chooseBorrowed();
    EXPECT_EQ(adodc1().recordset().fieldCount(), 9);
    EXPECT_EQ(adodc1().recordSource(), u"jrb");
    EXPECT_TRUE(adodc1().connectionString().endsWith(' '_L1));
}

TEST_F(LoansTotalsTest, WriteAVeryLargeSumOut) {
    storeLoan(Lent, u"1e300,0,0"_s);
    open();
    EXPECT_EQ(total(), u"当前借出总额为：1"_s + QString(300, u'0') + u".00元 ，已还金额为：.00 元，目前余额为.00 元"_s);
}

TEST_F(LoansTotalsTest, SayWhichSumIsBeyondAllNumbers) {
    storeLoan(Lent, u"1e308,1,1e308"_s);
    storeLoan(Lent, u"1e308,1,1e308"_s);
    open();
    EXPECT_EQ(total(), u"当前借出总额为：溢出元 ，已还金额为：2.00 元，目前余额为溢出 元");
}

} // namespace
} // namespace qinghe::testing
