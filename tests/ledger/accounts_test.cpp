#include "ledger/accounts_rig.h"
#include "runtime/runtime_error.h"

#include <QApplication>

// The page of savings accounts: its opening, its cells, its buttons.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

TEST_F(AccountsTest, OpensWithItsCaptionsAndWidths) {
    openWith(1);
    EXPECT_EQ(row(0), list.captions);
    EXPECT_EQ(grid().Cols(), 11);
    EXPECT_EQ(grid().ColWidth(0), 300);
    EXPECT_EQ(grid().ColWidth(1), 1377);
    for (int col = 2; col <= 9; ++col)
        EXPECT_EQ(grid().ColWidth(col), 847);
    EXPECT_EQ(grid().ColWidth(10), 2754);
    EXPECT_EQ(grid().Left(), 120);
    EXPECT_EQ(grid().Top(), 840);
    EXPECT_EQ(grid().Width(), 11415);
    EXPECT_EQ(grid().Height(), 4815);
}

TEST_F(AccountsTest, BringsItsFrameForwardAndMarksItsLabel) {
    open();
    EXPECT_TRUE(frame().isVisible());
    EXPECT_EQ(frame().Caption(), u"账户");
    EXPECT_EQ(frame().Left(), 120);
    EXPECT_EQ(frame().Top(), 1680);
    EXPECT_EQ(frame().Width(), 11655);
    EXPECT_EQ(frame().Height(), 6255);
    EXPECT_EQ(rig.mainWindow().navigation().currentPage, 6);
    EXPECT_EQ(rig.at(pages::Accounts).ForeColor(), 255u);
    EXPECT_EQ(rig.at(pages::Desktop).ForeColor(), 0u);
    EXPECT_EQ(adodc1().recordSource(), u"zhb");
    EXPECT_EQ(adodc1().connectionString(), shared().connection());
}

TEST_F(AccountsTest, KeepsTheOldFirstRowOverAnEmptyTableWithoutAMessage) {
    openWith(2);
    rig.sql(u"delete from zhb"_s);
    open();
    EXPECT_EQ(rows(), QStringList{list.firstRow.toString()});
    EXPECT_TRUE(rig.messages->shown.empty());
}

TEST_F(AccountsTest, WritesAnEmptyTextToTheRowNumberOfTheLoanList) {
    store(Lent, 3);
    open(Lent);
    rig.clickCell(rig.at(loans::Grid), 1, 1);
    store(2);
    storeAccount(u"1,2,3,4,5,6,7,8"_s, u""_s);
    open();
    QStringList first = list.firstRow.toString().split(u'|');
    first.front().clear();
    first.back().clear();
    EXPECT_EQ(row(1), first.join(u'|')); // it lost name and remark
    EXPECT_TRUE(row(2).startsWith(u"户2|100|10|20|30|40|50|60|72|"_s) && row(2).endsWith(u"|备2"_s));
    EXPECT_TRUE(row(3).startsWith(u"|1|2|3|4|5|6|7|8|"_s));
}

TEST_F(AccountsTest, StopsWhenTheRowNumberOfTheLoanListIsBeyondItsOwn) {
    store(Lent, 3);
    open(Lent); // which leaves the last row current
    storeAccount(u"1,2,3,4,5,6,7,8"_s);
    open();
    expectError(RuntimeError::SubscriptOutOfRange);
}

TEST_F(AccountsTest, SkipsNullFieldsInTheFill) {
    rig.sql(u"insert into zhb(账户名称,余额) values('户',5)"_s);
    open();
    EXPECT_TRUE(row(1).startsWith(u"户||||||||5|"_s));
}

TEST_F(AccountsTest, OpensTheCalculatorByAClickOnEveryNumberButTheBalance) {
    openWith(1);
    for (const int col : {1, 2, 3, 4, 5, 6, 7, 8, BalanceColumn, remarkColumn()}) {
        clickCell(1, col);
        const bool number = col >= 2 && col <= 8;
        EXPECT_EQ(tools(), number ? forms::Calculator : u"none"_s) << col;
        EXPECT_EQ(box().isEnabled(), !number) << col;
        if (number)
            expectUnderEditor(forms::Calculator);
        EXPECT_EQ(box().Text(), grid().TextMatrix(1, col));
    }
    EXPECT_EQ(shared().calcTarget, 3);
}

TEST_F(AccountsTest, TakesOneKeyInTheBalanceAndIsClosedThen) {
    openWith(1);
    clickCell(1, BalanceColumn);
    EXPECT_EQ(QApplication::focusWidget(), &box());
    box().selectAll();
    rig.type(box(), u"98"_s);
    EXPECT_EQ(box().Text(), u"9");
    EXPECT_FALSE(box().isEnabled());
    clickForm();
    EXPECT_EQ(balance(), u"9");
    clickCell(1, remarkColumn());
    EXPECT_TRUE(box().isEnabled());
}

TEST_F(AccountsTest, ActsByTheColumnOnAClickInTheBox) {
    openWith(1);
    clickCell(1, 1);
    for (const int col : {BalanceColumn, remarkColumn(), 5}) {
        box().setUsable(true);
        grid().setCol(col); // as the arrow keys of the grid do
        press(box());
        EXPECT_EQ(box().isEnabled(), col == remarkColumn()) << col;
        EXPECT_EQ(tools(), col == 5 ? forms::Calculator : u"none"_s) << col;
    }
}

TEST_F(AccountsTest, LooksAtTheCurrentRowBeforeItAddsOne) {
    openWith(2);
    press(add());
    clickCell(1, 1);
    press(add()); // the current row is filled, so a second blank one is added
    EXPECT_TRUE(rig.messages->shown.empty());
    EXPECT_EQ(grid().Rows(), 5);
    press(add());
    EXPECT_EQ(rig.messages->shown, std::vector{AddRefused});
    EXPECT_EQ(grid().Rows(), 5);
}

TEST_F(AccountsTest, GoesToTheLastRowWithAnEmptyBoxWhenABlankOneAboveRefusesTheAdd) {
    openWith(3);
    for (int col = 1; col <= remarkColumn(); ++col)
        grid().setTextMatrix(1, col, {});
    clickCell(1, 1);
    press(add());
    EXPECT_EQ(rig.messages->shown, std::vector{AddRefused});
    EXPECT_EQ(current(), u"3,1");
    EXPECT_EQ(box().Text(), u"");
    EXPECT_FALSE(box().Visible());
    expectEditorOver(3, 1);
}

TEST_F(AccountsTest, CommitsTheBoxBeforeItLooksAtTheRow) {
    open();
    clickCell(1, 1);
    write(u"工资卡"_s);
    press(add());
    EXPECT_TRUE(rig.messages->shown.empty());
    EXPECT_EQ(rows(), (QStringList{u"工资卡"_s + blankRow(), blankRow()}));
}

TEST_F(AccountsTest, RefusesASaveWithoutABalance) {
    openWith(2);
    grid().setTextMatrix(2, BalanceColumn, {});
    press(save());
    EXPECT_EQ(rig.messages->shown, std::vector{SaveRefused});
    EXPECT_EQ(grid().Row(), 2);
    grid().setTextMatrix(2, BalanceColumn, u"0"_s);
    grid().setTextMatrix(2, remarkColumn(), {});
    press(save());
    EXPECT_EQ(rig.lastMessage(), SaveDone);
}

TEST_F(AccountsTest, NamesItsTableForTheSaveAndYetKeepsTheSetInHand) {
    openWith(2);
    adodc1().setRecordSource(u"ysb"_s);
    rig.sql(u"insert into zhb(账户名称, 区别) values('外', 9)"_s); // came in behind the page's back
    press(save());
    EXPECT_EQ(adodc1().recordSource(), u"zhb");
    EXPECT_EQ(stored(u"账户名称"_s), (QStringList{u"外"_s, u"户1"_s, u"户2"_s}));
}

TEST_F(AccountsTest, StoresABalanceAsItStandsAndNeverWorksItOut) {
    openWith(1);
    grid().setTextMatrix(1, BalanceColumn, u" 12345.5"_s);
    press(save());
    EXPECT_EQ(stored(u"余额"_s), QStringList{u"12345.5"_s});
    restart();
    EXPECT_EQ(balance(), u"12345.5");
}

} // namespace
} // namespace qinghe::testing
