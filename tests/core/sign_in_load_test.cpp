#include "core_fixture.h"

namespace qinghe::testing {
namespace {

class SignInLoad : public CoreTest {
protected:
    void forgetPair() { rig.sql(u"delete from 登陆用户记录表"_s); }
    void addUser(const QString& user, const QString& word) {
        rig.sql(u"insert into yhb values('%1','%2',2)"_s.arg(user, word));
    }
};

TEST_F(SignInLoad, IsTheFirstWindowAndTheOnlyOne) {
    rig.start();
    EXPECT_TRUE(rig.loaded(forms::SignIn)->isVisible());
    EXPECT_EQ(rig.loaded(forms::SignIn)->Caption(), u"青禾家庭记账本登陆"_s);
    EXPECT_EQ(rig.loaded(forms::Main), nullptr);
}

TEST_F(SignInLoad, HealsTheHeaderBeforeItsFirstQuery) {
    EXPECT_EQ(rig.headerBytes(), Spoilt);
    rig.start();
    EXPECT_EQ(rig.headerBytes(), Healed);
    EXPECT_TRUE(rig.messages->errors.empty());
}

TEST_F(SignInLoad, ItsControlsStandInTheirPlaces) {
    rig.start();
    struct Place {
        QString name;
        double left, top, width, height;
    };
    for (const Place& place :
         {Place{sign_in::User, 1320, 1560, 3255, 300}, Place{sign_in::Password, 1320, 2160, 3255, 375},
          Place{sign_in::Enter, 3600, 3420, 1335, 375}, Place{sign_in::Minimise, 4320, 0, 375, 375},
          Place{sign_in::Close, 4680, 0, 495, 375}}) {
        const auto& control = rig.control<QWidget>(forms::SignIn, place.name);
        EXPECT_EQ(control.property("Left").toDouble(), place.left) << place.name.toStdString();
        EXPECT_EQ(control.property("Top").toDouble(), place.top) << place.name.toStdString();
        EXPECT_EQ(control.property("Width").toDouble(), place.width) << place.name.toStdString();
        EXPECT_EQ(control.property("Height").toDouble(), place.height) << place.name.toStdString();
    }
    EXPECT_EQ(remember().Left(), 2280);
    EXPECT_EQ(remember().Top(), 2760);
    EXPECT_EQ(signInButton().Caption(), u"   登录"_s);
    EXPECT_EQ(rig.at(sign_in::RememberWords).Caption(), u"记住用户名和密码"_s);
}

TEST_F(SignInLoad, ThePasswordIsShownAsStars) {
    rig.start();
    EXPECT_EQ(password().echoMode(), QLineEdit::Password);
    EXPECT_EQ(password().displayText(), u"******"_s);
}

TEST_F(SignInLoad, ThePasswordIsSelectedAtTheStartAndWhenAClickBringsItTheKeyboard) {
    rig.start();
    EXPECT_EQ(password().selectedText().size(), 6);
    name().setFocus();
    password().deselect();
    rig.click(password());
    EXPECT_EQ(password().selectedText().size(), 6);
    rig.click(password()); // a further click only puts the cursor there
    EXPECT_FALSE(password().hasSelectedText());
}

TEST_F(SignInLoad, OffersTheNamesInTheTablesOrderWithoutTakingOne) {
    addUser(u"李四"_s, u"1"_s);
    addUser(u"阿宝"_s, u"1"_s);
    rig.start();
    QStringList offered;
    for (int i = 0; i < name().count(); ++i)
        offered << name().itemText(i);
    EXPECT_EQ(offered, (QStringList{u"管理员"_s, u"李四"_s, u"阿宝"_s}));
}

TEST_F(SignInLoad, ARememberedPairIsFilledInAndTicked) {
    addUser(u"李四"_s, u"abc"_s);
    rig.sql(u"update 登陆用户记录表 set 用户名='李四', 密码='abc'"_s);
    rig.start();
    EXPECT_EQ(name().Text(), u"李四"_s);
    EXPECT_EQ(password().Text(), u"abc"_s);
    EXPECT_TRUE(remember().Value());
}

TEST_F(SignInLoad, WithoutARememberedPairTheFirstUserStandsThereWithoutPassword) {
    forgetPair();
    addUser(u"李四"_s, u"1"_s);
    rig.start();
    EXPECT_EQ(name().Text(), u"管理员"_s);
    EXPECT_EQ(password().Text(), QString());
    EXPECT_FALSE(remember().Value());
}

TEST_F(SignInLoad, WithoutAnyUserTheProgramCannotStart) {
    forgetPair();
    rig.sql(u"delete from yhb"_s);
    rig.start();
    expectError(RuntimeError::NoCurrentRecord, u"记录"_s);
}

TEST_F(SignInLoad, ARememberedPairIsShownEvenWithoutAnyUser) {
    rig.sql(u"delete from yhb"_s);
    rig.start();
    EXPECT_TRUE(rig.messages->errors.empty());
    EXPECT_EQ(name().Text(), u"管理员"_s);
}

TEST_F(SignInLoad, WritesItsPictureBesideTheProgramAndShowsIt) {
    rig.start();
    EXPECT_EQ(QString::fromLatin1(bytes(u"dlpf.jpg"_s).toHex().toUpper()),
              rig.sql(u"select hex(皮肤) from 登陆皮肤"_s).value(0));
    EXPECT_EQ(rig.loaded(forms::SignIn)->picture().pixelColor(4, 4).blue() < 30, true);
    EXPECT_FALSE(rig.loaded(forms::SignIn)->picture().isNull());
}

TEST_F(SignInLoad, TheTimesOfAnOldPictureFileDoNotMatter) {
    write(u"dlpf.jpg"_s, "left from a crash");
    rig.start();
    EXPECT_TRUE(rig.messages->errors.empty());
    EXPECT_NE(bytes(u"dlpf.jpg"_s), "left from a crash");
}

} // namespace
} // namespace qinghe::testing
