#include "ledger/accounts_rig.h"
#include "runtime/runtime_error.h"

// The walk along an account's row: Enter leaves column after column, and the balance follows. Amounts come from the
// real calculator, or from the keyboard where Enter has opened the box.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class AccountWalkTest : public AccountsTest {
protected:
    /// Puts an amount into a column by a click and the calculator, and leaves both with its Enter.
    void leave(int col, const QString& keys) {
        clickCell(1, col);
        calculateAndWalkOn(keys);
    }
    void openOn(const QString& amounts) {
        storeAccount(amounts);
        open();
    }
};

TEST_F(AccountWalkTest, FillsARowFromItsNameToItsRemark) {
    open();
    fillCell(1, 1, u"工资卡"_s);
    EXPECT_EQ(current(), u"1,2");
    EXPECT_EQ(tools(), forms::Calculator); // the starting amount asks for the calculator by Enter too
    EXPECT_EQ(shared().calcTarget, 3);
    EXPECT_FALSE(box().isEnabled());
    calculate(u"1000"_s);
    EXPECT_EQ(balance(), u"");
    enter();
    EXPECT_EQ(balance(), u"1000"); // the text as it stands
    const std::array<std::pair<QString, QString>, 6> steps{{{u"200"_s, u" 1200"_s},
                                                            {u"50"_s, u" 1150"_s},
                                                            {u"30"_s, u" 1180"_s},
                                                            {u"80.5"_s, u" 1099.5"_s},
                                                            {u"0.5"_s, u" 1100"_s},
                                                            {u"1200"_s, u"-100"_s}}};
    int col = 3;
    for (const auto& [amount, expected] : steps) {
        EXPECT_EQ(current(), u"1,%1"_s.arg(col++));
        EXPECT_EQ(tools(), u"none");
        EXPECT_TRUE(box().isEnabled());
        write(amount);
        enter();
        EXPECT_EQ(balance(), expected);
    }
    EXPECT_EQ(current(), u"1,%1"_s.arg(BalanceColumn));
    EXPECT_EQ(box().Text(), u"-100");
    EXPECT_FALSE(box().isEnabled());
    fillCell(1, remarkColumn(), u"每月"_s);
    const QString walked = u"工资卡|1000|200|50|30|80.5|0.5|1200|-100|"_s;
    EXPECT_TRUE(row(1).startsWith(walked) && row(1).endsWith(u"|每月"_s));
    fillGaps(1);
    press(save());
    EXPECT_EQ(stored(u"账户名称,起始金额,收入,支出,借入,借出,转入,转出,余额,备注信息,区别"_s),
              QStringList{walked + u"每月|1"_s});
}

TEST_F(AccountWalkTest, TakesEveryAmountThroughTheCalculator) {
    openOn(u"0,0,0,0,0,0,0,0"_s);
    const std::array<std::pair<int, QString>, 7> steps{{{2, u"100"_s},
                                                        {3, u" 110"_s},
                                                        {4, u" 100"_s},
                                                        {5, u" 110"_s},
                                                        {6, u" 100"_s},
                                                        {7, u" 110"_s},
                                                        {8, u" 100"_s}}};
    for (const auto& [col, expected] : steps) {
        leave(col, col == 2 ? u"100"_s : u"10"_s);
        EXPECT_EQ(balance(), expected) << col;
        EXPECT_EQ(current(), u"1,%1"_s.arg(col + 1));
    }
}

TEST_F(AccountWalkTest, OpensTheBoxByTheHandBackAndGivesItTheKeyboard) {
    openOn(u"5,0,0,0,0,0,0,5"_s);
    clickCell(1, 2);
    EXPECT_FALSE(box().isEnabled());
    calculate(u"5"_s); // an equal amount does so too
    EXPECT_TRUE(box().isEnabled());
    EXPECT_EQ(rig.mainWindow().focusWidget(), &box());
    EXPECT_EQ(grid().TextMatrix(1, 2), u"5");
}

TEST_F(AccountWalkTest, WritesSeventyWithABlankAndStandsOnTheClosedBalance) {
    openOn(u"0,0,0,0,0,0,0,100"_s);
    leave(8, u"30"_s);
    EXPECT_EQ(balance(), u" 70");
    EXPECT_EQ(current(), u"1,%1"_s.arg(BalanceColumn));
    EXPECT_EQ(box().Text(), u" 70");
    EXPECT_FALSE(box().isEnabled());
}

TEST_F(AccountWalkTest, CountsAColumnTwiceThatIsLeftTwice) {
    openOn(u"0,0,0,0,0,0,0,100"_s);
    leave(3, u"25"_s);
    EXPECT_EQ(balance(), u" 125");
    leave(3, u"25"_s);
    EXPECT_EQ(balance(), u" 150");
}

TEST_F(AccountWalkTest, StartsAfreshWhenTheStartingAmountIsLeft) {
    openOn(u"0,9,0,0,0,0,0,100"_s);
    leave(2, u"40"_s);
    EXPECT_EQ(balance(), u"40");
    enter(); // over the income that stands there
    EXPECT_EQ(balance(), u" 49");
}

TEST_F(AccountWalkTest, CopiesAStartingAmountThatIsNoNumber) {
    openOn(u"0,0,0,0,0,0,0,100"_s);
    clickCell(1, 2);
    calculate(u"12"_s); // which opens the box
    write(u"12+"_s);
    enter();
    EXPECT_EQ(balance(), u"12+");
}

TEST_F(AccountWalkTest, CountsABalanceWithoutALeadingNumberAsNothing) {
    openOn(u"0,0,0,0,0,0,0,100"_s);
    grid().setTextMatrix(1, BalanceColumn, u"约一百"_s);
    leave(4, u"30"_s);
    EXPECT_EQ(balance(), u"-30");
}

TEST_F(AccountWalkTest, CountsAnAmountWithoutALeadingNumberAsNothing) {
    openOn(u"0,0,0,0,0,0,0,100"_s);
    leave(3, u"1"_s);
    write(u"很多"_s); // into the expense
    enter();
    EXPECT_EQ(balance(), u" 101");
    EXPECT_EQ(grid().TextMatrix(1, 4), u"很多");
}

TEST_F(AccountWalkTest, LeavesTheBalanceAloneBehindNameBalanceAndRemark) {
    openOn(u"1,2,3,4,5,6,7,100"_s);
    fillCell(1, 1, u"改名"_s);
    EXPECT_EQ(balance(), u"100");
    clickCell(1, BalanceColumn);
    enter();
    EXPECT_EQ(current(), u"1,%1"_s.arg(BalanceColumn + 1));
    EXPECT_EQ(balance(), u"100");
    clickCell(1, remarkColumn());
    enter();
    EXPECT_EQ(balance(), u"100");
    EXPECT_FALSE(box().Visible());
}

TEST_F(AccountWalkTest, WorksOutTheRowItIsIn) {
    storeAccount(u"0,0,0,0,0,0,0,100"_s);
    storeAccount(u"0,0,0,0,0,0,0,200"_s);
    open();
    clickCell(2, 3);
    calculate(u"1"_s);
    enter();
    EXPECT_EQ(balance(1), u"100");
    EXPECT_EQ(balance(2), u" 201");
}

TEST_F(AccountWalkTest, TakesNothingFromAClickOnAnotherColumn) {
    openOn(u"0,0,0,0,0,0,0,100"_s);
    clickCell(1, 3);
    calculate(u"25"_s);
    clickCell(1, 5); // leaves the column without Enter
    EXPECT_EQ(balance(), u"100");
}

TEST_F(AccountWalkTest, StopsAtABalanceBeyondADouble) {
    openOn(u"0,1.7e308,0,0,0,0,0,1.7e308"_s);
    clickCell(1, 3);
    box().setUsable(true);
    enter();
    expectError(RuntimeError::Overflow);
    EXPECT_EQ(balance(), u"1.7E+308");
}

} // namespace
} // namespace qinghe::testing
