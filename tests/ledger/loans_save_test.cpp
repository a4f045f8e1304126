#include "ledger/loans_rig.h"

// Deleting and saving loans: the first row is blanked and never taken out, a save works on the table that the page
// loaded last.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class LoansSaveTest : public LoansTest {
protected:
    QStringList names(const GridList& which = Lent) { return stored(which, u"账户, 区别"_s); }
    /// Saves under a new name in the first row and tells where the name arrived.
    void expectSavedInto(const GridList& which) {
        grid().setTextMatrix(1, 1, u"改过"_s);
        press(save());
        EXPECT_EQ(rig.lastMessage(), SaveDone);
        for (const GridList& each : {Lent, Borrowed})
            EXPECT_EQ(names(each).front() == u"改过|1", each == which);
    }
};

TEST_F(LoansSaveTest, BlanksTheFirstRowAlsoWhenMoreFollowAndIsThenRefused) {
    openWith(3);
    clickCell(1, 1);
    press(remove());
    EXPECT_EQ(rows().size(), 3);
    EXPECT_EQ(row(1), blankRow());
    EXPECT_EQ(names(), (QStringList{u"户2|2"_s, u"户3|3"_s}));
    press(save());
    EXPECT_EQ(rig.lastMessage(), SaveRefused);
    EXPECT_EQ(names().size(), 2);
}

TEST_F(LoansSaveTest, IsOneRecordOffAfterTheFirstRowWasBlanked) {
    openWith(3);
    clickCell(1, 1);
    press(remove());
    clickCell(2, 1); // shows the first record left, and is the second row
    press(remove());
    EXPECT_EQ(names(), QStringList{u"户2|2"_s});
    EXPECT_EQ(rows(), (QStringList{blankRow(), u"户3|2024-5-3|100|3|90|甲|乙|备3"_s}));
}

TEST_F(LoansSaveTest, TakesEveryOtherRowOutDownToTheFirst) {
    openWith(3);
    clickCell(3, 1);
    press(remove());
    clickCell(2, 1);
    press(remove());
    EXPECT_EQ(rows(), QStringList{u"户1|2024-5-1|100|1|90|甲|乙|备1"_s});
    EXPECT_EQ(names(), QStringList{u"户1|1"_s});
}

TEST_F(LoansSaveTest, DeletesFromTheTableOfTheOptionThatIsSet) {
    store(Borrowed, 2);
    openWith(2);
    chooseBorrowed();
    clickCell(2, 1);
    press(remove());
    EXPECT_EQ(names(Borrowed), QStringList{u"户1|1"_s});
    EXPECT_EQ(names().size(), 2);
    chooseLent();
    clickCell(2, 1);
    press(remove());
    EXPECT_EQ(names(), QStringList{u"户1|1"_s});
}

TEST_F(LoansSaveTest, RequiresTheBalanceToo) {
    openWith(2);
    grid().setTextMatrix(2, 5, {});
    press(save());
    EXPECT_EQ(rig.messages->shown, std::vector{SaveRefused});
}

TEST_F(LoansSaveTest, LeavesTheCurrentRowWhereItIsRefusedOrNot) {
    openWith(3);
    grid().setTextMatrix(3, 5, {});
    clickCell(1, 2);
    press(save());
    EXPECT_EQ(rig.lastMessage(), SaveRefused);
    EXPECT_EQ(current(), u"1,2");
    EXPECT_EQ(tools(), u"none");
    grid().setTextMatrix(3, 5, u"90"_s);
    clickCell(2, 6);
    press(save());
    EXPECT_EQ(rig.lastMessage(), SaveDone);
    EXPECT_EQ(current(), u"2,6");
}

TEST_F(LoansSaveTest, GoesIntoTheListThatWasOpenedLast) {
    store(Borrowed, 2);
    openWith(2);
    expectSavedInto(Lent);
    rig.sql(u"update jcb set 账户 = '户1'"_s);
    chooseBorrowed();
    expectSavedInto(Borrowed);
    rig.sql(u"update jrb set 账户 = '户1'"_s);
    clickLabel();
    expectSavedInto(Lent);
    rig.sql(u"update jcb set 账户 = '户1'"_s);
    clickImage();
    expectSavedInto(Borrowed);
}

TEST_F(LoansSaveTest, GoesIntoTheListOfAnOptionAfterTheWindowWasMinimised) {
    store(Borrowed, 2);
    openWith(2);
    chooseBorrowed();
    for (const int state : {1, 0}) {
        rig.mainWindow().setWindowState(state);
        rig.settle();
    }
    expectSavedInto(Borrowed);
}

TEST_F(LoansSaveTest, GoesIntoTheListThatThePageLoadedWhateverTheControlHoldsMeanwhile) {
    store(Borrowed, 2);
    openWith(3);
    fillCell(1, list.text, u"改过"_s);
    handlers::enter([this] { adodc1().open(u"jrb"_s); });
    press(save());
    EXPECT_EQ(names(Borrowed).size(), 2);
    EXPECT_EQ(names().front(), u"改过|1"_s);
    EXPECT_EQ(adodc1().recordSource(), u"jrb"); // it names no table of its own
}

TEST_F(LoansSaveTest, LooksAtTheTableAnewWhenItHasEmptiedIt) {
    openWith(2);
    rig.sql(u"insert into jcb values('外','2024-05-09',1,1,1,'甲','乙','',9)"_s); // came in behind the page's back
    press(save());
    EXPECT_EQ(adodc1().recordset().recordCount(), 3);
    EXPECT_EQ(names(), (QStringList{u"外|9"_s, u"户1|1"_s, u"户2|2"_s}));
}

} // namespace
} // namespace qinghe::testing
