#include "maintenance/users_rig.h"

#include <QScrollBar>

// The rows of the page of users: 增加 adds one to the grid, 删除 takes one out of grid and table.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class UsersRowsTest : public UsersTest {
protected:
    QStringList people() { return stored(u"用户名"_s); }
};

TEST_F(UsersRowsTest, GrowByABlankOneThatBecomesCurrentInTheSameColumn) {
    openWith(2);
    clickCell(2, 2);
    press(add());
    EXPECT_EQ(rows(), (QStringList{u"人1|密码1"_s, u"人2|密码2"_s, u"|"_s}));
    EXPECT_EQ(current(), u"3,2");
    EXPECT_EQ(box().Text(), u"");
    EXPECT_FALSE(box().Visible());
    expectEditorOver(3, 2);
    EXPECT_EQ(grid().RowHeight(3), 300);
    EXPECT_TRUE(rig.messages->shown.empty());
    EXPECT_EQ(people().size(), 2); // only the save stores it
}

TEST_F(UsersRowsTest, TakeWhatStandsInTheBoxBeforeTheyGrow) {
    open();
    clickCell(1, 1);
    write(u"王青"_s);
    press(add());
    EXPECT_TRUE(rig.messages->shown.empty());
    EXPECT_EQ(rows(), (QStringList{u"王青|"_s, u"|"_s}));
}

TEST_F(UsersRowsTest, TakeWhatEscLeftInTheBox) {
    openWith(1);
    clickCell(1, 1);
    write(u"改过"_s);
    escape();
    press(add());
    EXPECT_EQ(row(1), u"改过|密码1");
}

TEST_F(UsersRowsTest, KeepTheirTextWhenTheBoxIsEmpty) {
    openWith(1);
    clickCell(1, 1);
    write(u""_s);
    press(add());
    EXPECT_EQ(row(1), u"人1|密码1");
}

TEST_F(UsersRowsTest, DoNotGrowFromABlankOne) {
    open();
    press(add());
    EXPECT_EQ(rig.messages->shown, std::vector{AddRefused});
    EXPECT_EQ(rows(), QStringList{u"|"_s});
}

TEST_F(UsersRowsTest, GrowFromOneThatHasAPasswordAlone) {
    open();
    fillCell(1, 2, u"x"_s);
    press(add());
    EXPECT_TRUE(rig.messages->shown.empty());
    EXPECT_EQ(grid().Rows(), 3);
}

TEST_F(UsersRowsTest, AreLookedAtWhereTheUserIsAndNotAtTheEnd) {
    openWith(2);
    press(add());
    clickCell(1, 1);
    press(add()); // the current row is filled, so a second blank one is added
    EXPECT_TRUE(rig.messages->shown.empty());
    EXPECT_EQ(grid().Rows(), 5);
}

TEST_F(UsersRowsTest, LeadToTheLastOneWithAnEmptyBoxWhenABlankOneAboveRefusesTheAdd) {
    openWith(3);
    grid().setTextMatrix(1, 1, {});
    grid().setTextMatrix(1, 2, {});
    clickCell(1, 2);
    press(add());
    EXPECT_EQ(rig.messages->shown, std::vector{AddRefused});
    EXPECT_EQ(current(), u"3,2");
    EXPECT_EQ(box().Text(), u"");
    EXPECT_FALSE(box().Visible());
    expectEditorOver(3, 2);
    EXPECT_EQ(row(3), u"人3|密码3");
}

TEST_F(UsersRowsTest, AreAskedAboutBeforeADeletionWithTheEditorClosed) {
    openWith(2);
    clickCell(2, 1);
    bool asked = false;
    rig.messages->whileShown = [&](const ShownMessage&) {
        asked = true;
        EXPECT_FALSE(box().Visible());
        EXPECT_EQ(people().size(), 2);
    };
    press(remove());
    EXPECT_TRUE(asked);
    EXPECT_EQ(rig.messages->shown, std::vector{DeleteAsked});
}

TEST_F(UsersRowsTest, StayWhenTheDeletionIsCancelled) {
    openWith(2);
    clickCell(1, 1);
    rig.messages->answers = {Answer::Cancel};
    press(remove());
    EXPECT_EQ(rows().size(), 2);
    EXPECT_EQ(people().size(), 2);
}

TEST_F(UsersRowsTest, LeaveGridAndTableAtOnce) {
    openWith(3);
    clickCell(2, 1);
    press(remove());
    EXPECT_EQ(rows(), (QStringList{u"人1|密码1"_s, u"人3|密码3"_s}));
    EXPECT_EQ(people(), (QStringList{u"人1"_s, u"人3"_s}));
    EXPECT_EQ(stored(u"区别"_s), (QStringList{u"1"_s, u"3"_s}));
    EXPECT_EQ(adodc1().recordSource(), u"yhb");
}

TEST_F(UsersRowsTest, LeaveTheTableByTheirPlaceAndNotByTheirName) {
    openWith(3);
    fillCell(3, 1, u"人1"_s);
    clickCell(3, 1);
    press(remove());
    EXPECT_EQ(people(), (QStringList{u"人1"_s, u"人2"_s}));
}

TEST_F(UsersRowsTest, LeaveTheGridAloneWhenTheyWereNeverSaved) {
    openWith(2);
    press(add());
    press(remove());
    EXPECT_EQ(rows(), (QStringList{u"人1|密码1"_s, u"人2|密码2"_s}));
    EXPECT_EQ(people().size(), 2);
}

TEST_F(UsersRowsTest, LeaveABlankOneWhenTheLastUserIsDeletedWhichTheSaveRefuses) {
    openWith(1);
    clickCell(1, 2);
    press(remove());
    EXPECT_EQ(rows(), QStringList{u"|"_s});
    EXPECT_EQ(people(), QStringList());
    press(save());
    EXPECT_EQ(rig.lastMessage(), UserGap);
    EXPECT_EQ(people(), QStringList());
}

TEST_F(UsersRowsTest, OfferNobodyToTheNextSignInWhenTheLastOneIsGone) {
    openWith(1);
    press(remove());
    startAnew();
    EXPECT_EQ(names().count(), 0);
    EXPECT_EQ(names().Text(), u"管理员"); // still remembered, and known no more
    trySignIn(u"管理员"_s, u"123456"_s);
    EXPECT_EQ(rig.lastMessage().text, u"用户名不存在，请重新登陆！");
}

TEST_F(UsersRowsTest, MayBeTheOneWhoIsSignedIn) {
    storeUser(u"管理员"_s, u"123456"_s);
    openWith(1);
    clickCell(1, 1);
    press(remove());
    EXPECT_EQ(people(), QStringList{u"人1"_s});
    EXPECT_EQ(rig.sql(u"select 用户名 from 登陆用户记录表"_s), QStringList{u"管理员"_s});
    EXPECT_FALSE(rig.ended());
}

TEST_F(UsersRowsTest, AreWorkedOnByButtonsThatAreGreyUnderThePointer) {
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

TEST_F(UsersRowsTest, HaveTheirButtonsAtTheUpperRight) {
    open();
    const std::array<QStringView, 3> captions{u"增加", u"删除", u"保存"};
    const std::array<double, 3> lefts{8055, 9255, 10455};
    const std::array<CommandButton*, 3> buttons{&add(), &remove(), &save()};
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        EXPECT_EQ(buttons[i]->text(), captions[i].toString());
        EXPECT_EQ(buttons[i]->Left(), lefts[i]);
        EXPECT_EQ(buttons[i]->Top(), 345);
        EXPECT_EQ(buttons[i]->Width(), 1080);
        EXPECT_EQ(buttons[i]->Height(), 390);
    }
}

TEST_F(UsersRowsTest, NeedNoBarAcrossWhereTheyAreMany) {
    openWith(40);
    rig.settle();
    EXPECT_TRUE(grid().verticalScrollBar()->isVisible());
    EXPECT_FALSE(grid().horizontalScrollBar()->isVisible());
    grid().ensureVisible(40, 2);
    EXPECT_TRUE(grid().cellRoom().contains(grid().cellRect(40, 2)));
}

} // namespace
} // namespace qinghe::testing
