#include "ledger/ledger_lists.h"
#include "support/page_rig.h"

// 保存 of every list: a check, then the whole table anew from the grid.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

using EveryListSaveTest = EveryListTest;

INSTANTIATE_TEST_SUITE_P(Of, EveryListSaveTest, ::testing::ValuesIn(LedgerLists), listName);

TEST_P(EveryListSaveTest, RefusesTheBlankRowOfAnEmptyPage) {
    open();
    press(save());
    EXPECT_EQ(rig.messages->shown, std::vector{SaveRefused});
    EXPECT_EQ(stored(), QStringList());
}

TEST_P(EveryListSaveTest, RefusesTheFirstGapInAnyColumnButTheLastAndChangesNothing) {
    openWith(4);
    grid().setTextMatrix(4, 1, {}); // another one behind it
    const QStringList before = stored();
    for (int col = 1; col < lastColumn(); ++col) {
        const QString text = grid().TextMatrix(3, col);
        clickCell(1, list.text);
        grid().setTextMatrix(3, col, {});
        rig.messages->shown.clear();
        press(save());
        EXPECT_EQ(rig.messages->shown, std::vector{SaveRefused}) << col;
        EXPECT_EQ(grid().Row(), list.refusalMovesRow ? 3 : 1);
        EXPECT_TRUE(box().Visible());
        EXPECT_EQ(stored(), before);
        grid().setTextMatrix(3, col, text);
    }
}

TEST_P(EveryListSaveTest, SaysWhichCellItDidNotTakeSinceNoEnterBroughtTheTextThere) {
    openWith(2);
    const auto told = [this] {
        for (const Label* label : frame().findChildren<Label*>())
            if (label->isVisible() && label->Caption().contains(u"没有按回车"_s))
                return label->Caption();
        return QString();
    };
    clickCell(2, lastColumn());
    write(u"忘了回车"_s);
    press(save());
    EXPECT_EQ(rig.messages->shown, std::vector{SaveDone});
    EXPECT_EQ(told(), u"第2行“%1”没有按回车，没有保存"_s.arg(grid().TextMatrix(0, lastColumn())));
    clickCell(2, lastColumn());
    EXPECT_EQ(told(), QString());
    press(save()); // nothing was typed
    EXPECT_EQ(told(), QString());
}

TEST_P(EveryListSaveTest, IsMarkedWhileTheGridDiffersFromTheTable) {
    openWith(3);
    EXPECT_FALSE(save().isMarked());
    const QString before = grid().TextMatrix(1, list.text);
    fillCell(1, list.text, u"改过"_s);
    EXPECT_TRUE(save().isMarked());
    fillCell(1, list.text, before);
    EXPECT_FALSE(save().isMarked());
    clickCell(2, list.text);
    press(remove()); // row and record go together
    EXPECT_FALSE(save().isMarked());
    press(add());
    EXPECT_TRUE(save().isMarked());
    open(); // leaving and coming again drops what was not saved
    EXPECT_FALSE(save().isMarked());
    fillCell(1, list.text, u"改过"_s);
    press(save());
    EXPECT_EQ(rig.lastMessage(), SaveDone);
    EXPECT_FALSE(save().isMarked());
}

TEST_P(EveryListSaveTest, TakesARowWithoutARemark) {
    openWith(1);
    grid().setTextMatrix(1, lastColumn(), {});
    press(save());
    EXPECT_EQ(rig.messages->shown, std::vector{SaveDone});
    EXPECT_EQ(stored().front().split(u'|').count(u"NULL"_s), 1); // an empty remark is no text
}

TEST_P(EveryListSaveTest, NumbersTheRowsAnewInTheOrderOfTheGrid) {
    openWith(3);
    const QStringList before = stored();
    rig.sql(u"update %1 set 区别 = 10 - 区别"_s.arg(list.table.toString()));
    press(save());
    EXPECT_EQ(rig.messages->shown, std::vector{SaveDone});
    EXPECT_EQ(stored(), before);
    press(save());
    EXPECT_EQ(stored(), before);
}

TEST_P(EveryListSaveTest, StoresARowThatWasAdded) {
    openWith(2);
    press(add());
    for (int col = 1; col <= lastColumn(); ++col)
        grid().setTextMatrix(3, col, grid().TextMatrix(1, col));
    press(save());
    EXPECT_EQ(stored(u"区别"_s), (QStringList{u"1"_s, u"2"_s, u"3"_s}));
    rig.sql(u"update %1 set 区别 = 1"_s.arg(list.table.toString()));
    EXPECT_EQ(stored().back(), stored().front()); // nothing is unique
}

TEST_P(EveryListSaveTest, LeavesOutWhatStandsUnconfirmedInTheEditor) {
    openWith(1);
    const QStringList before = stored();
    clickCell(1, list.text);
    write(u"未确认"_s);
    press(save());
    EXPECT_EQ(rig.lastMessage(), SaveDone);
    EXPECT_EQ(stored(), before);
}

TEST_P(EveryListSaveTest, HidesTheEditorAndClosesTheTools) {
    openWith(1);
    clickCell(1, list.amount);
    press(save());
    EXPECT_EQ(rig.lastMessage(), SaveDone);
    EXPECT_FALSE(box().Visible());
    EXPECT_EQ(tools(), u"none");
}

TEST_P(EveryListSaveTest, HasCommittedWhenItSaysSo) {
    openWith(2);
    fillCell(1, list.text, u"改过"_s);
    QStringList seen;
    rig.messages->whileShown = [&](const ShownMessage&) { seen = stored(); }; // through a second connection
    press(save());
    ASSERT_EQ(seen.size(), 2);
    EXPECT_TRUE(seen.front().contains(u"改过"_s));
}

TEST_P(EveryListSaveTest, TouchesNoOtherTable) {
    for (const GridList& each : LedgerLists)
        store(each, 2);
    open();
    QList<QStringList> before;
    for (const GridList& each : LedgerLists)
        before << stored(each);
    fillCell(1, list.text, u"改过"_s);
    press(save());
    for (std::size_t i = 0; i < LedgerLists.size(); ++i)
        EXPECT_EQ(stored(LedgerLists[i]) == before[static_cast<qsizetype>(i)], LedgerLists[i] != list);
}

TEST_P(EveryListSaveTest, ReadsBackTheSameAfterARestart) {
    openWith(3);
    fillCell(2, list.text, u"改过"_s);
    grid().setTextMatrix(3, lastColumn(), {});
    const QStringList written = rows();
    press(save());
    restart();
    EXPECT_EQ(rows(), written);
}

TEST_P(EveryListSaveTest, WritesIntoItsTableAlsoAfterTheWindowWasMinimised) {
    openWith(2);
    fillCell(1, list.text, u"改过"_s);
    rig.mainWindow().setWindowState(1);
    rig.settle();
    rig.mainWindow().setWindowState(0);
    rig.settle();
    press(save());
    EXPECT_EQ(rig.lastMessage(), SaveDone);
    EXPECT_TRUE(stored().front().contains(u"改过"_s));
    EXPECT_EQ(stored().size(), 2);
    EXPECT_EQ(rig.sql(u"select count(*) from systuopanb"_s), QStringList{u"1"_s});
}

} // namespace
} // namespace qinghe::testing
