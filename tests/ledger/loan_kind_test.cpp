#include "ledger/own_page.h"

#include <QApplication>

// A page of the loans' kind: amounts are keyed by moving along with Enter, one column is closed to keys, the first row
// is never taken out, and a refused save leaves the current row alone.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

constexpr std::array<GridPage::Column, 8> Columns{{
    {u"账户", 1150},
    {u"日期", 1150},
    {u"借入金额", 1150},
    {u"已还金额", 1150},
    {u"余额", 1150},
    {u"借出人", 1150},
    {u"借给人", 1150},
    {u"备注", 2800},
}};

class LoanKindTest : public OwnPageTest {
protected:
    LoanKindTest() {
        m_traits = traitsOn(u"Frame6", Columns);
        m_traits.date = {.column = 2, .target = 4, .opensOnEnter = true};
        m_traits.amounts = {.onClick = {3, 4}, .onEnter = {}, .target = 2};
        m_traits.closedColumn = 5;
        m_traits.addedBox = GridPage::AddedBox::KeepsText;
        m_traits.lastRow = GridPage::LastRow::BlankedWhenFirst;
        m_traits.savedRows = GridPage::SavedRows::Every;
        m_traits.saveMovesRow = false;
        m_traits.refreshWhenEmptied = true;
        for (int n = 1; n <= 3; ++n)
            rig.sql(u"insert into jrb values('户%1','2024-05-0%1',100,%1,90,'甲','乙','备%1',%1)"_s.arg(n));
        auto* page = new OwnPage(rig.mainWindow(), m_traits, u"jrb"_s);
        page->open(LoanPage);
        rig.settle();
    }

    QStringList stored(const QString& table = u"jrb"_s) {
        return rig.sql(u"select 账户, 已还金额, 区别 from %1 order by rowid"_s.arg(table));
    }

private:
    GridPage::Traits m_traits;
};

TEST_F(LoanKindTest, ShowsItsTableInItsOwnFrame) {
    EXPECT_TRUE(grid().isVisible());
    EXPECT_EQ(grid().Cols(), 9);
    EXPECT_EQ(grid().ColWidth(8), 2800);
    EXPECT_EQ(rows(), (QStringList{u"户1|2024-5-1|100|1|90|甲|乙|备1"_s, u"户2|2024-5-2|100|2|90|甲|乙|备2"_s,
                                   u"户3|2024-5-3|100|3|90|甲|乙|备3"_s}));
}

TEST_F(LoanKindTest, OpensTheCalculatorByAClickOnEitherAmount) {
    for (const int col : {3, 4}) {
        clickCell(1, 1);
        clickCell(1, col);
        EXPECT_TRUE(isOpen(u"Form9"_s));
        EXPECT_EQ(bench().calcTarget, 2);
        EXPECT_FALSE(box().isEnabled());
    }
}

TEST_F(LoanKindTest, LeavesTheAmountsOpenForTypingAfterEnter) {
    clickCell(1, 2);
    enter();
    EXPECT_FALSE(isOpen(u"Form9"_s));
    EXPECT_TRUE(box().isEnabled());
    write(u"200"_s);
    enter();
    write(u"50"_s);
    enter();
    EXPECT_EQ(rows().front(), u"户1|2024-5-1|200|50|90|甲|乙|备1");
    EXPECT_EQ(current(), u"1,5");
}

TEST_F(LoanKindTest, OpensThePickerByEnterAndByClick) {
    clickCell(1, 1);
    enter();
    EXPECT_TRUE(isOpen(u"Form1"_s));
    EXPECT_EQ(bench().dateTarget, 4);
    clickCell(2, 2);
    rig.doubleClick(rig.control<Label>(u"Form1"_s, u"Label3(6)"_s));
    EXPECT_EQ(grid().TextMatrix(2, 2), u"2024-6-1");
    EXPECT_EQ(box().Text(), u"2024-6-1");
}

TEST_F(LoanKindTest, ClosesTheBoxWhenEnterReachesTheClosedColumn) {
    clickCell(1, 2);
    enter();
    enter();
    EXPECT_TRUE(box().isEnabled());
    enter();
    EXPECT_EQ(current(), u"1,5");
    EXPECT_EQ(box().Text(), u"90");
    EXPECT_FALSE(box().isEnabled());
    EXPECT_EQ(QApplication::focusWidget(), &grid());
}

TEST_F(LoanKindTest, TakesOneKeyInTheClosedColumnAfterAClick) {
    clickCell(1, 5);
    EXPECT_TRUE(box().isEnabled());
    rig.type(box(), u"12"_s);
    EXPECT_FALSE(box().isEnabled());
    EXPECT_EQ(box().Text().size(), 3); // "90" and the first key
    EXPECT_EQ(grid().TextMatrix(1, 5), u"90");
}

TEST_F(LoanKindTest, ClosesTheClosedColumnByAClickInTheBox) {
    clickCell(1, 5);
    rig.click(box());
    EXPECT_FALSE(box().isEnabled());
    clickCell(1, 6);
    EXPECT_TRUE(box().isEnabled());
    rig.click(box());
    EXPECT_TRUE(box().isEnabled());
}

TEST_F(LoanKindTest, OpensTheBoxAgainWhenTheCalculatorHandsBackAnEqualAmount) {
    clickCell(1, 3);
    rig.type(*rig.loaded(u"Form9"_s), u"100"_s);
    rig.press(*rig.loaded(u"Form9"_s), Qt::Key_Return);
    rig.settle();
    EXPECT_EQ(grid().TextMatrix(1, 3), u"100");
    EXPECT_TRUE(box().isEnabled());
    EXPECT_EQ(rig.mainWindow().focusWidget(), &box());
    enter();
    EXPECT_EQ(current(), u"1,4");
}

TEST_F(LoanKindTest, KeepsTheTextOfTheBoxWhenARowIsAdded) {
    clickCell(1, 6);
    write(u"丙"_s);
    rig.click(add());
    EXPECT_EQ(box().Text(), u"丙");
    EXPECT_FALSE(box().Visible());
    EXPECT_EQ(current(), u"4,6");
    EXPECT_EQ(rows().back(), u"|||||||");
    EXPECT_EQ(grid().TextMatrix(1, 6), u"甲");
    EXPECT_EQ(box().geometry(), grid().cellRect(4, 6).translated(grid().pos()));
}

TEST_F(LoanKindTest, BlanksTheFirstRowAlsoWhenMoreFollow) {
    clickCell(1, 1);
    rig.click(remove());
    EXPECT_EQ(rows().size(), 3);
    EXPECT_EQ(rows().front(), u"|||||||");
    EXPECT_EQ(stored(), (QStringList{u"户2|2|2"_s, u"户3|3|3"_s}));
    rig.click(save()); // which the blank row stops
    EXPECT_EQ(rig.lastMessage(), SaveRefused);
    EXPECT_EQ(stored().size(), 2);
}

TEST_F(LoanKindTest, TakesAnyOtherRowOutDownToTheFirst) {
    clickCell(3, 1);
    rig.click(remove());
    clickCell(2, 1);
    rig.click(remove());
    EXPECT_EQ(rows(), QStringList{u"户1|2024-5-1|100|1|90|甲|乙|备1"_s});
    EXPECT_EQ(stored(), QStringList{u"户1|1|1"_s});
}

TEST_F(LoanKindTest, LeavesTheCurrentRowWhereItIsWhenASaveIsRefused) {
    grid().setTextMatrix(3, 5, {});
    clickCell(1, 2);
    rig.click(save());
    EXPECT_EQ(rig.messages->shown, std::vector{SaveRefused});
    EXPECT_EQ(current(), u"1,2");
    EXPECT_FALSE(isOpen(u"Form1"_s));
    EXPECT_EQ(stored().size(), 3);
}

TEST_F(LoanKindTest, SavesEveryRowAndStaysOnItsRow) {
    clickCell(2, 6);
    rig.sql(u"update jrb set 区别 = 7"_s);
    rig.click(save());
    EXPECT_EQ(rig.lastMessage(), SaveDone);
    EXPECT_EQ(stored(), (QStringList{u"户1|1|1"_s, u"户2|2|2"_s, u"户3|3|3"_s}));
    EXPECT_EQ(current(), u"2,6");
}

TEST_F(LoanKindTest, SavesIntoTheTableThatWasLoadedLast) {
    adodc1().open(u"jcb"_s);
    rig.click(save());
    EXPECT_EQ(stored(u"jcb"_s).size(), 3);
    EXPECT_EQ(stored().size(), 3);
    EXPECT_EQ(adodc1().recordSource(), u"jcb");
}

TEST_F(LoanKindTest, LooksAtTheTableAnewWhenItHasEmptiedIt) {
    rig.sql(u"insert into jrb values('外','2024-05-09',1,1,1,'甲','乙','',9)"_s); // came in behind the page's back
    rig.click(save());
    EXPECT_EQ(adodc1().recordset().recordCount(), 4);
    EXPECT_EQ(stored(), (QStringList{u"外|1|9"_s, u"户1|1|1"_s, u"户2|2|2"_s, u"户3|3|3"_s}));
}

} // namespace
} // namespace qinghe::testing
