#include "ledger/ledger_lists.h"
#include "support/find_bar.h"
#include "support/page_rig.h"

#include <QApplication>

#include <ctime>

// Looking for words in every list: Ctrl+F brings up a bar at the list's foot.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class EveryListFindTest : public EveryListTest {
protected:
    FindBarRig bar{rig};
};

INSTANTIATE_TEST_SUITE_P(Of, EveryListFindTest, ::testing::ValuesIn(LedgerLists), listName);

TEST_P(EveryListFindTest, FindsWordsInEveryColumnAndCountsThePlaces) {
    openWith(20);
    for (int col = 1; col <= lastColumn(); ++col) {
        bar.look(grid().TextMatrix(7, col));
        EXPECT_TRUE(grid().Text().contains(grid().TextMatrix(7, col))) << col;
        EXPECT_TRUE(bar.note().contains(u" / "_s)) << bar.note().toStdString();
        EXPECT_EQ(QApplication::focusWidget(), &bar.words());
    }
    bar.look(grid().TextMatrix(20, list.text));
    EXPECT_EQ(current(), u"20,%1"_s.arg(list.text));
    EXPECT_EQ(bar.note(), u"1 / 1");
    const QRect cell = grid().cellRect(20, list.text);
    EXPECT_LT(grid().mapTo(&frame(), cell.bottomLeft()).y(), bar.bar().y()); // not under the bar
}

TEST_P(EveryListFindTest, GoesToTheNextAndToTheOneBeforeRoundTheEnds) {
    openWith(12);
    grid().setRow(1);
    grid().setCol(1);
    const QString name = grid().TextMatrix(10, list.text); // 10, 11, 12 begin alike
    bar.look(name.chopped(1));
    for (const bool button : {false, true}) {
        const QString first = current();
        QStringList way;
        for (int i = 0; i < 12; ++i) {
            button ? press(bar.button(u"下一处"_s)) : bar.next();
            way << current();
        }
        EXPECT_EQ(way.last(), first); // twelve places, and round
        button ? press(bar.button(u"上一处"_s)) : bar.previous();
        EXPECT_EQ(current(), way.at(10));
        button ? press(bar.button(u"下一处"_s)) : bar.next();
        EXPECT_EQ(current(), first);
    }
}

TEST_P(EveryListFindTest, ChangesNoDataNotEvenByTheClickOnTheFormThatFollows) {
    openWith(8);
    clickCell(1, list.text); // what the box held stays in it when it closes
    escape();
    const QStringList before = rows(), storedBefore = stored();
    bar.look(grid().TextMatrix(5, list.text));
    clickForm();
    bar.next();
    press(bar.button(u"关闭"_s));
    clickForm();
    EXPECT_EQ(rows(), before);
    EXPECT_EQ(stored(), storedBefore);
}

TEST_P(EveryListFindTest, LeavesTheCellWhereItIsWhileTypingIsNotEntered) {
    openWith(8);
    clickCell(2, list.text);
    write(u"改过"_s);
    bar.look(grid().TextMatrix(5, list.text));
    EXPECT_EQ(current(), u"2,%1"_s.arg(list.text));
    EXPECT_EQ(box().Text(), u"改过");
    EXPECT_TRUE(box().Visible());
    EXPECT_TRUE(bar.note().contains(u"先在那里按回车或 Esc"_s));
    escape();
    bar.next();
    EXPECT_EQ(current(), u"5,%1"_s.arg(list.text));
}

TEST_P(EveryListFindTest, LeavesTheCellUnderAnOpenCalculatorAndClosesABoxThatWasOnlyOpened) {
    openWith(8);
    clickCell(2, list.amount);
    bar.look(grid().TextMatrix(5, list.text));
    EXPECT_EQ(current(), u"2,%1"_s.arg(list.amount));
    EXPECT_EQ(tools(), forms::Calculator);
    clickCell(3, list.date != 0 ? list.date : list.text);
    bar.next();
    EXPECT_EQ(current(), u"5,%1"_s.arg(list.text));
    EXPECT_FALSE(box().Visible());
    EXPECT_EQ(tools(), u"none");
}

TEST_P(EveryListFindTest, GoesWithEscAndGivesTheListItsRoomAndTheKeyboardBack) {
    openWith(8);
    const QRect room = grid().geometry();
    bar.look(u"不在这里"_s);
    EXPECT_EQ(bar.note(), u"没有找到");
    EXPECT_LT(grid().geometry().bottom(), bar.bar().y());
    EXPECT_DOUBLE_EQ(grid().Height(), 4815);
    bar.key(Qt::Key_Escape);
    EXPECT_FALSE(bar.isUp());
    EXPECT_EQ(grid().geometry(), room);
    EXPECT_EQ(QApplication::focusWidget(), &grid());
}

TEST_P(EveryListFindTest, GoesWithItsPageAndStaysWhenThePageIsOpenedOnceMore) {
    openWith(8);
    const QRect room = grid().geometry();
    bar.open();
    press(rig.at(list.label));
    EXPECT_TRUE(bar.isUp());
    EXPECT_LT(grid().geometry().bottom(), bar.bar().y());
    press(rig.at(pages::Desktop));
    EXPECT_FALSE(bar.isUp());
    bar.open(); // no list here
    EXPECT_FALSE(bar.isUp());
    open();
    EXPECT_FALSE(bar.isUp());
    EXPECT_EQ(grid().geometry(), room);
}

class FindTest : public PageTest {
protected:
    FindTest() : PageTest(Expense) {}
    FindBarRig bar{rig};
};

TEST_F(FindTest, TakesNoTimeThatIsFeltInTenYearsOfExpenses) {
    openWith(3641);
    bar.open();
    const std::clock_t before = std::clock(); // the program's own time, whatever else the machine does
    rig.type(bar.words(), u"36"_s);
    bar.next();
    const double seconds = static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC;
    EXPECT_LT(seconds, 0.3); // three times through the list, in the slowest of builds
    bar.look(u"备注3641"_s);
    EXPECT_EQ(current(), u"3641,7");
}

TEST_F(FindTest, FindsInAReportThatTakesNoClicksAndMarksTheCellThere) {
    rig.clock->time = QDateTime(QDate(2024, 10, 18), QTime(20, 0));
    rig.sql(u"insert into zcb values('1', '2024-10-01', '买菜', '我', 12, '', '', 1), "
            "('2', '2024-10-02', '房租', '我', 2000, '', '', 2)"_s);
    open();
    choose(income::ByItem);
    ASSERT_FALSE(grid().isEnabled());
    EXPECT_FALSE(grid().marksCurrent());
    const QStringList before = rows();
    bar.look(u"房租"_s);
    EXPECT_TRUE(grid().Text().contains(u"房租"_s));
    EXPECT_TRUE(grid().marksCurrent());
    EXPECT_EQ(box().Text(), QString()); // nothing of a report comes into the lists' box
    bar.key(Qt::Key_Escape);
    EXPECT_FALSE(grid().marksCurrent());
    EXPECT_EQ(rows(), before);
}

} // namespace
} // namespace qinghe::testing
