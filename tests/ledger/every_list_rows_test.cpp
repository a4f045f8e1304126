#include "ledger/ledger_lists.h"
#include "support/page_rig.h"

// The rows of every list: 增加 adds one to the grid, 删除 takes one out of grid and table.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class EveryListRowsTest : public EveryListTest {
protected:
    QStringList numbers() { return stored(u"区别"_s); }
};

INSTANTIATE_TEST_SUITE_P(Of, EveryListRowsTest, ::testing::ValuesIn(LedgerLists), listName);

TEST_P(EveryListRowsTest, GrowByABlankOneThatBecomesCurrentInTheSameColumn) {
    openWith(2);
    clickCell(2, list.text);
    press(add());
    EXPECT_EQ(grid().Rows(), 4);
    EXPECT_EQ(row(3), blankRow());
    EXPECT_EQ(current(), u"3,%1"_s.arg(list.text));
    EXPECT_FALSE(box().Visible());
    expectEditorOver(3, list.text);
    EXPECT_TRUE(rig.messages->shown.empty());
}

TEST_P(EveryListRowsTest, GiveTheGridTheKeyboardWhenTheyAreAddedAndDeleted) {
    openWith(2);
    for (CommandButton* button : {&add(), &remove()}) {
        button->setFocus();
        rig.press(*button, Qt::Key_Space);
        EXPECT_TRUE(grid().hasFocus()) << button->text().toStdString();
    }
    // Nor does the button press itself once more when its question is declined.
    rig.messages->answers = {Answer::Cancel};
    press(remove());
    EXPECT_TRUE(grid().hasFocus());
}

TEST_P(EveryListRowsTest, GrowWithTheToolsClosed) {
    openWith(2);
    clickCell(2, list.amount);
    press(add());
    EXPECT_EQ(tools(), u"none");
}

TEST_P(EveryListRowsTest, DoNotGrowWhileTheLastOneIsBlankAndCurrent) {
    openWith(2);
    press(add());
    press(add());
    EXPECT_EQ(rig.messages->shown, std::vector{AddRefused});
    EXPECT_EQ(grid().Rows(), 4);
    EXPECT_EQ(grid().Row(), 3);
}

TEST_P(EveryListRowsTest, DoNotGrowFromTheBlankOneOfAnEmptyTable) {
    open();
    press(add());
    EXPECT_EQ(rig.messages->shown, std::vector{AddRefused});
    EXPECT_EQ(rows(), QStringList{blankRow()});
}

TEST_P(EveryListRowsTest, CountAsFilledWithNothingButARemarkWhichTheSaveRefuses) {
    open();
    fillCell(1, lastColumn(), u"只有备注"_s);
    press(add());
    EXPECT_TRUE(rig.messages->shown.empty());
    EXPECT_EQ(grid().Rows(), 3);
    press(save());
    EXPECT_EQ(rig.messages->shown, std::vector{SaveRefused});
}

TEST_P(EveryListRowsTest, AreAskedAboutBeforeADeletionWithEditorAndToolsClosed) {
    openWith(2);
    clickCell(2, list.amount);
    bool asked = false;
    rig.messages->whileShown = [&](const ShownMessage&) {
        asked = true;
        EXPECT_FALSE(box().Visible());
        EXPECT_EQ(tools(), u"none");
        EXPECT_EQ(numbers().size(), 2);
    };
    press(remove());
    EXPECT_TRUE(asked);
    EXPECT_EQ(rig.messages->shown, std::vector{DeleteAsked});
}

TEST_P(EveryListRowsTest, StayWhenTheDeletionIsCancelled) {
    openWith(2);
    clickCell(2, list.text);
    rig.messages->answers = {Answer::Cancel};
    press(remove());
    EXPECT_EQ(grid().Rows(), 3);
    EXPECT_EQ(row(1), list.firstRow.toString());
    EXPECT_EQ(numbers().size(), 2);
}

TEST_P(EveryListRowsTest, LeaveGridAndTableAtOnce) {
    openWith(3);
    clickCell(2, list.text);
    const QString third = row(3);
    press(remove());
    EXPECT_EQ(rows(), (QStringList{list.firstRow.toString(), third}));
    EXPECT_EQ(numbers(), (QStringList{u"1"_s, u"3"_s})); // the others keep their numbers until a save
    EXPECT_EQ(adodc1().recordSource(), list.table.toString());
}

TEST_P(EveryListRowsTest, LeaveTheGridAloneWhenTheyWereNeverSaved) {
    openWith(2);
    press(add());
    press(remove());
    EXPECT_EQ(grid().Rows(), 3);
    EXPECT_EQ(numbers().size(), 2);
}

TEST_P(EveryListRowsTest, LeaveTheTableByTheirPlaceWhateverStandsInThem) {
    openWith(3);
    rig.sql(u"delete from %1 where 区别 = 1"_s.arg(list.table.toString())); // by another program
    clickCell(2, list.text);
    press(remove());
    EXPECT_EQ(numbers(), QStringList{u"2"_s}); // the second record was the third
    EXPECT_EQ(grid().Rows(), 3);
}

TEST_P(EveryListRowsTest, AreBlankedWhenTheyAreTheOnlyOneWhichTheSaveThenRefuses) {
    openWith(1);
    clickCell(1, list.text);
    press(remove());
    EXPECT_EQ(rows(), QStringList{blankRow()});
    EXPECT_EQ(numbers(), QStringList());
    press(save());
    EXPECT_EQ(rig.lastMessage(), SaveRefused);
    EXPECT_EQ(numbers(), QStringList());
}

TEST_P(EveryListRowsTest, AreWorkedOnByButtonsThatAreGreyUnderThePointer) {
    open();
    for (CommandButton* button : {&add(), &remove(), &save()}) {
        rig.hover(*button);
        EXPECT_EQ(button->BackColor(), 0xE0E0E0u);
        EXPECT_EQ(button->cursor().shape(), Qt::PointingHandCursor);
    }
    rig.hover(frame());
    for (CommandButton* button : {&add(), &remove(), &save()})
        EXPECT_EQ(button->BackColor(), 0xFFFFFFu);
}

TEST_P(EveryListRowsTest, AreTakenOutOfAnEmptyTableWithoutHarm) {
    open();
    press(remove());
    EXPECT_EQ(rows(), QStringList{blankRow()});
    EXPECT_FALSE(rig.ended());
}

} // namespace
} // namespace qinghe::testing
