#include "maintenance/users_rig.h"

// 保存 of the page of users: a check, then the whole table anew from the grid; and what the sign-in makes of it.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class UsersSaveTest : public UsersTest {
protected:
    /// The program took name and password.
    bool signedIn() { return rig.loaded(forms::Main) && !rig.loaded(forms::SignIn); }
};

TEST_F(UsersSaveTest, WritesTheRowsAnewInTheOrderOfTheGridAndNumbersThem) {
    openWith(3);
    rig.sql(u"update yhb set 区别 = 10 - 区别"_s);
    fillCell(2, 2, u"改过"_s);
    clickCell(1, 1);
    press(save());
    EXPECT_EQ(rig.messages->shown, std::vector{SaveDone});
    EXPECT_EQ(stored(), (QStringList{u"人1|密码1|1"_s, u"人2|改过|2"_s, u"人3|密码3|3"_s}));
    EXPECT_EQ(grid().Row(), 3);
    EXPECT_FALSE(box().Visible());
    EXPECT_EQ(adodc1().recordSource(), u"yhb");
}

TEST_F(UsersSaveTest, KeepsNamesAndPasswordsWhoseBytesAreNoText) {
    rig.sql(u"insert into yhb values(cast(x'E5FFB7' as text), cast(x'EFBBBF41' as text), 1)"_s);
    open();
    press(save());
    EXPECT_EQ(rig.lastMessage(), SaveDone);
    EXPECT_EQ(stored(u"hex(用户名) || hex(用户密码)"_s), QStringList{u"E5FFB7EFBBBF41"_s});
}

TEST_F(UsersSaveTest, HasCommittedWhenItSaysSo) {
    openWith(1);
    fillCell(1, 2, u"改过"_s);
    QStringList seen;
    rig.messages->whileShown = [&](const ShownMessage&) { seen = stored(); }; // through a second connection
    press(save());
    EXPECT_EQ(seen, QStringList{u"人1|改过|1"_s});
}

TEST_F(UsersSaveTest, RefusesAnyEmptyCellAndChangesNothing) {
    openWith(3);
    const QStringList before = stored();
    for (int number = 1; number <= 3; ++number)
        for (int col = 1; col <= 2; ++col) {
            const QString text = grid().TextMatrix(number, col);
            clickCell(2, 1);
            grid().setTextMatrix(number, col, {});
            rig.messages->shown.clear();
            press(save());
            EXPECT_EQ(rig.messages->shown, std::vector{UserGap}) << number << ',' << col;
            EXPECT_EQ(current(), u"2,1");
            EXPECT_TRUE(box().Visible());
            EXPECT_EQ(stored(), before);
            grid().setTextMatrix(number, col, text);
        }
}

TEST_F(UsersSaveTest, RefusesTheBlankRowOfAnEmptyPage) {
    open();
    press(save());
    EXPECT_EQ(rig.messages->shown, std::vector{UserGap});
}

TEST_F(UsersSaveTest, RefusesANameWithoutAPassword) {
    open();
    fillCell(1, 1, u"王青"_s);
    press(save());
    EXPECT_EQ(rig.messages->shown, std::vector{UserGap});
    EXPECT_EQ(stored(), QStringList());
}

TEST_F(UsersSaveTest, StoresTheTableOfNowAndNotOfTheOpening) {
    openWith(1);
    storeUser(u"外人"_s, u"x"_s); // came in behind the page's back
    adodc1().open(u"srb"_s);      // as another page may leave it
    press(save());
    EXPECT_EQ(stored(u"用户名"_s), QStringList{u"人1"_s});
}

TEST_F(UsersSaveTest, StoresAPasswordExactlyAsItIsTyped) {
    open();
    fillCell(1, 1, u"王青"_s);
    write(u" Ab'\"12; 密 "_s);
    enter();
    press(save());
    EXPECT_EQ(rig.lastMessage(), SaveDone);
    EXPECT_EQ(stored(u"用户密码"_s), QStringList{u" Ab'\"12; 密 "_s});
    startAnew();
    trySignIn(u"王青"_s, u" Ab'\"12; 密 "_s);
    EXPECT_TRUE(signedIn());
}

TEST_F(UsersSaveTest, StoresTwoOfOneNameOfWhomTheSignInFindsTheFirst) {
    storeUser(u"王青"_s, u"一"_s);
    storeUser(u"李禾"_s, u"二"_s);
    open();
    fillCell(2, 1, u"王青"_s);
    press(save());
    EXPECT_EQ(rig.lastMessage(), SaveDone);
    EXPECT_EQ(stored(), (QStringList{u"王青|一|1"_s, u"王青|二|2"_s}));
    startAnew();
    trySignIn(u"王青"_s, u"二"_s);
    EXPECT_EQ(rig.lastMessage().text, u"密码错误，请重新输入密码");
    trySignIn(u"王青"_s, u"一"_s);
    EXPECT_TRUE(signedIn());
}

TEST_F(UsersSaveTest, StoresANameWithAnApostropheWhichTheSignInCannotLookUp) {
    open();
    fillCell(1, 1, u"O'Neil"_s);
    write(u"x"_s);
    enter();
    press(save());
    EXPECT_EQ(rig.lastMessage(), SaveDone);
    EXPECT_EQ(stored(), QStringList{u"O'Neil|x|1"_s});
    startAnew();
    trySignIn(u"O'Neil"_s, u"x"_s);
    EXPECT_EQ(rig.messages->errors.size(), 1u);
    EXPECT_EQ(rig.exitCode(), 1);
}

TEST_F(UsersSaveTest, LetsANewUserSignInFromTheNextStartOn) {
    storeUser(u"管理员"_s, u"123456"_s);
    open();
    press(add());
    fillCell(2, 1, u"小满"_s);
    write(u"mihua"_s);
    enter();
    press(save());
    startAnew();
    EXPECT_EQ(names().count(), 2);
    EXPECT_EQ(names().itemText(1), u"小满");
    trySignIn(u"小满"_s, u"mihua"_s);
    EXPECT_TRUE(signedIn());
}

TEST_F(UsersSaveTest, LeavesTheRememberedSignInAlone) {
    openWith(2);
    press(save());
    EXPECT_EQ(rig.sql(u"select * from 登陆用户记录表"_s), QStringList{u"管理员|123456"_s});
}

TEST_F(UsersSaveTest, LeavesOutWhatStandsUnconfirmedInTheEditor) {
    openWith(1);
    clickCell(1, 1);
    write(u"未确认"_s);
    press(save());
    EXPECT_EQ(rig.lastMessage(), SaveDone);
    EXPECT_EQ(stored(u"用户名"_s), QStringList{u"人1"_s});
}

} // namespace
} // namespace qinghe::testing
