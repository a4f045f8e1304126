#include "core_fixture.h"
#include "store/header_toggle.h"

#include <QPointer>

namespace qinghe::testing {
namespace {

const ShownMessage Empty{u"用户名和登录密码不能为空！"_s, 48, u"登录提醒"_s};
const ShownMessage UnknownName{u"用户名不存在，请重新登陆！"_s, 65, u"登陆提醒"_s};
const ShownMessage ThreeNames{u"用户名错误三次，请询问管理员！"_s, 64, u"错误提示"_s};
const ShownMessage WrongPassword{u"密码错误，请重新输入密码"_s, 49, u"登陆提醒"_s};
const ShownMessage ThreePasswords{u"登陆密码错误三次，请询问管理员！"_s, 64, u"错误提示"_s};

class SignInChecks : public CoreTest {
protected:
    using Messages = std::vector<ShownMessage>;
    const QString me = u"管理员"_s;
    bool signedIn() { return rig.loaded(forms::Main) && !rig.loaded(forms::SignIn); }
    /// A program of its own may end before the test does.
    bool signInStands() { return rig.loaded(forms::SignIn) != nullptr; }
};

TEST_F(SignInChecks, NameAndPasswordThatAreRightLoadTheMainWindowAndUnloadTheSignIn) {
    rig.start();
    trySignIn(me, u"123456"_s);
    rig.settle();
    EXPECT_TRUE(signedIn());
    EXPECT_TRUE(main().isVisible());
    EXPECT_EQ(rig.messages->shown, Messages{});
    EXPECT_FALSE(rig.ended());
}

TEST_F(SignInChecks, WhileOneWaitedHereAnotherCopyMayHaveEnded) {
    rig.lock->free = false;
    rig.start();
    rig.lock->free = true;
    spoilHeader(rig.dataFile());
    trySignIn(me, u"123456"_s);
    rig.settle();
    EXPECT_TRUE(rig.messages->errors.empty());
    EXPECT_TRUE(signedIn());
    EXPECT_EQ(rig.headerBytes(), Healed);
}

TEST_F(SignInChecks, EnterInThePasswordSignsInToo) {
    rig.start();
    rig.press(password(), Qt::Key_Return);
    rig.settle();
    EXPECT_TRUE(signedIn());
}

TEST_F(SignInChecks, AnEmptyNameOrPasswordIsRefusedFirst) {
    rig.start();
    trySignIn({}, u"123456"_s);
    trySignIn(me, {});
    trySignIn(u"谁也不是"_s, {});
    EXPECT_EQ(rig.messages->shown, (Messages{Empty, Empty, Empty}));
    EXPECT_EQ(name().Text(), u"谁也不是"_s);
    EXPECT_TRUE(signInStands());
}

TEST_F(SignInChecks, AnEmptyPasswordNeverReachesTheStoreEvenForAUserWithoutOne) {
    rig.sql(u"update yhb set 用户密码=''"_s);
    rig.start();
    rig.sql(u"drop table yhb"_s);
    trySignIn(me, {});
    EXPECT_EQ(rig.messages->shown, Messages{Empty});
    EXPECT_TRUE(rig.messages->errors.empty());
    trySignIn(me, u"x"_s);
    expectError(RuntimeError::QueryFailure, u"yhb"_s);
}

TEST_F(SignInChecks, AnUnknownNameIsToldAndTakenAway) {
    rig.start();
    trySignIn(u"路人"_s, u"123456"_s);
    EXPECT_EQ(rig.messages->shown, Messages{UnknownName});
    EXPECT_EQ(name().Text(), QString());
    EXPECT_EQ(password().Text(), u"123456"_s);
    EXPECT_TRUE(signInStands());
    EXPECT_TRUE(name().hasFocus()); // where the next name is typed
}

TEST_F(SignInChecks, TheThirdUnknownNameTellsMoreAndTheWindowStays) {
    rig.start();
    for (int i = 0; i < 3; ++i)
        trySignIn(u"路人"_s, u"1"_s);
    EXPECT_EQ(rig.messages->shown, (Messages{UnknownName, UnknownName, UnknownName, ThreeNames}));
    EXPECT_TRUE(signInStands());
    EXPECT_FALSE(rig.ended());
    trySignIn(u"路人"_s, u"1"_s);
    EXPECT_EQ(rig.messages->shown.size(), 5u);
    EXPECT_EQ(rig.lastMessage(), UnknownName);
    trySignIn(me, u"123456"_s);
    EXPECT_TRUE(rig.loaded(forms::Main));
}

TEST_F(SignInChecks, CancelAfterAnUnknownNameEndsTheProgramWithTheHeaderHealed) {
    rig.start();
    rig.messages->answers = {Answer::Cancel};
    trySignIn(u"路人"_s, u"1"_s);
    expectEndedWell();
    EXPECT_EQ(rig.messages->shown, Messages{UnknownName});
    EXPECT_FALSE(signInStands());
    EXPECT_EQ(rig.headerBytes(), Healed);
    EXPECT_TRUE(folder().contains(u"dlpf.jpg"_s));
}

TEST_F(SignInChecks, AWrongPasswordIsToldAndTakenAway) {
    rig.start();
    trySignIn(me, u"654321"_s);
    EXPECT_EQ(rig.messages->shown, Messages{WrongPassword});
    EXPECT_EQ(password().Text(), QString());
    EXPECT_EQ(name().Text(), me);
    EXPECT_FALSE(rig.ended());
}

TEST_F(SignInChecks, TheThirdWrongPasswordTellsMoreAndEndsTheProgram) {
    rig.start();
    rig.messages->whileShown = [this](const ShownMessage&) { EXPECT_FALSE(rig.ended()); };
    for (int i = 0; i < 3; ++i)
        trySignIn(me, u"1"_s);
    EXPECT_EQ(rig.messages->shown, (Messages{WrongPassword, WrongPassword, WrongPassword, ThreePasswords}));
    EXPECT_FALSE(signInStands());
    expectEndedWell();
    EXPECT_EQ(rig.headerBytes(), Healed);
}

TEST_F(SignInChecks, CancelAfterAWrongPasswordEndsTheProgramWhenTheRestIsDone) {
    rig.start();
    rig.messages->answers = {Answer::Cancel};
    const QPointer<TextBox> box = &password();
    trySignIn(me, u"1"_s);
    ASSERT_TRUE(box);
    EXPECT_EQ(box->Text(), QString());
    expectEndedWell();
    EXPECT_EQ(rig.messages->shown, Messages{WrongPassword});
}

TEST_F(SignInChecks, CancelAfterTheThirdWrongPasswordStillTellsThatItWasTheThird) {
    rig.start();
    rig.messages->whileShown = [this](const ShownMessage&) { EXPECT_FALSE(rig.ended()); };
    rig.messages->answers = {Answer::Ok, Answer::Ok, Answer::Cancel, Answer::Ok};
    for (int i = 0; i < 3; ++i)
        trySignIn(me, u"1"_s);
    EXPECT_EQ(rig.lastMessage(), ThreePasswords);
    expectEndedWell();
}

TEST_F(SignInChecks, NamesAndPasswordsAreCountedApart) {
    rig.start();
    for (int i = 0; i < 2; ++i) {
        trySignIn(u"路人"_s, u"1"_s);
        trySignIn(me, u"1"_s);
    }
    EXPECT_EQ(rig.messages->shown, (Messages{UnknownName, WrongPassword, UnknownName, WrongPassword}));
    trySignIn(me, u"1"_s);
    EXPECT_EQ(rig.lastMessage(), ThreePasswords);
}

TEST_F(SignInChecks, AKnownNameInBetweenDoesNotResetTheCount) {
    rig.start();
    trySignIn(u"路人"_s, u"1"_s);
    trySignIn(u"路人"_s, u"1"_s);
    trySignIn(me, u"1"_s);
    trySignIn(u"路人"_s, u"1"_s);
    EXPECT_EQ(rig.lastMessage(), ThreeNames);
}

TEST_F(SignInChecks, AnEmptyFieldCountsForNothing) {
    rig.start();
    for (int i = 0; i < 4; ++i)
        trySignIn(me, {});
    trySignIn(me, u"1"_s);
    trySignIn(me, u"1"_s);
    EXPECT_EQ(rig.lastMessage(), WrongPassword);
    EXPECT_TRUE(signInStands());
}

TEST_F(SignInChecks, CapitalsCountInPasswordsAndNames) {
    rig.sql(u"insert into yhb values('Anna','Geheim',2)"_s);
    rig.start();
    trySignIn(u"Anna"_s, u"geheim"_s);
    EXPECT_EQ(rig.lastMessage(), WrongPassword);
    trySignIn(u"anna"_s, u"Geheim"_s);
    EXPECT_EQ(rig.lastMessage(), UnknownName);
    trySignIn(u"Anna"_s, u"Geheim"_s);
    EXPECT_TRUE(rig.loaded(forms::Main));
}

TEST_F(SignInChecks, BlanksAroundANameOrPasswordCount) {
    rig.start();
    trySignIn(me + u' ', u"123456"_s);
    EXPECT_EQ(rig.lastMessage(), UnknownName);
    trySignIn(me, u"123456 "_s);
    EXPECT_EQ(rig.lastMessage(), WrongPassword);
}

TEST_F(SignInChecks, AUserWithoutAnyPasswordInTheTableIsNeverLetIn) {
    rig.sql(u"update yhb set 用户密码=null"_s);
    rig.start();
    trySignIn(me, u"NULL"_s);
    EXPECT_EQ(rig.messages->shown, Messages{WrongPassword});
}

TEST_F(SignInChecks, OfTwoUsersOfOneNameTheFirstCounts) {
    rig.sql(u"insert into yhb values('管理员','other',2)"_s);
    rig.start();
    trySignIn(me, u"other"_s);
    EXPECT_EQ(rig.messages->shown, Messages{WrongPassword});
}

TEST_F(SignInChecks, AQuoteInTheNameBreaksTheSearchAndEndsTheProgram) {
    rig.start();
    trySignIn(u"O'Hara"_s, u"1"_s);
    expectError(RuntimeError::QueryFailure, u"O'Hara"_s);
    EXPECT_EQ(rig.messages->shown, Messages{});
}

TEST_F(SignInChecks, AQuoteInThePasswordIsAPasswordLikeAnyOther) {
    rig.sql(u"update yhb set 用户密码='it''s'"_s);
    rig.start();
    trySignIn(me, u"it's"_s);
    EXPECT_TRUE(rig.loaded(forms::Main));
}

} // namespace
} // namespace qinghe::testing
