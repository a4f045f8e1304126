#include "core_fixture.h"

namespace qinghe::testing {
namespace {

class SignInRemember : public CoreTest {
protected:
    QStringList pairs() { return rig.sql(u"select 用户名, 密码 from 登陆用户记录表"_s); }
    void clickWords() { rig.click(rig.at(sign_in::RememberWords)); }
    void forgetPair() { rig.sql(u"delete from 登陆用户记录表"_s); }
};

TEST_F(SignInRemember, PressingTheButtonRightAwaySignsInAndRewritesTheSamePair) {
    rig.start();
    rig.click(signInButton());
    rig.settle();
    EXPECT_TRUE(rig.loaded(forms::Main));
    EXPECT_EQ(pairs(), QStringList{u"管理员|123456"_s});
}

TEST_F(SignInRemember, AnotherUsersPairReplacesIt) {
    rig.sql(u"insert into yhb values('李四','abc',2)"_s);
    rig.start();
    trySignIn(u"李四"_s, u"abc"_s);
    EXPECT_EQ(pairs(), QStringList{u"李四|abc"_s});
}

TEST_F(SignInRemember, NeverMoreThanOnePairIsKept) {
    rig.sql(u"insert into 登陆用户记录表 values('李四','abc')"_s);
    rig.start();
    rig.click(signInButton());
    EXPECT_EQ(pairs(), QStringList{u"管理员|123456"_s});
}

TEST_F(SignInRemember, SigningInWithTheBoxUntickedForgetsThePair) {
    rig.start();
    rig.click(remember());
    ASSERT_FALSE(remember().Value());
    rig.click(signInButton());
    rig.settle();
    EXPECT_EQ(pairs(), QStringList{});
    rig.stop();
    rig.start();
    EXPECT_EQ(password().Text(), QString());
    EXPECT_FALSE(remember().Value());
}

TEST_F(SignInRemember, WithoutAPairAndWithoutATickNothingIsRemembered) {
    forgetPair();
    rig.start();
    trySignIn(u"管理员"_s, u"123456"_s);
    EXPECT_TRUE(rig.loaded(forms::Main));
    EXPECT_EQ(pairs(), QStringList{});
}

TEST_F(SignInRemember, ARefusedSignInRemembersNothing) {
    forgetPair();
    rig.start();
    remember().setValue(true);
    trySignIn(u"管理员"_s, u"1"_s);
    trySignIn(u"路人"_s, u"123456"_s);
    EXPECT_EQ(pairs(), QStringList{});
}

TEST_F(SignInRemember, TheWordsTickAndUntickTheBox) {
    forgetPair();
    rig.start();
    clickWords();
    EXPECT_TRUE(remember().Value());
    clickWords();
    EXPECT_FALSE(remember().Value());
}

TEST_F(SignInRemember, AfterARememberedStartTheFirstClickOnTheWordsLeavesTheBoxTicked) {
    rig.start();
    clickWords();
    EXPECT_TRUE(remember().Value());
    clickWords();
    EXPECT_FALSE(remember().Value());
}

TEST_F(SignInRemember, TheWordsCountTheirOwnClicksAndDoNotLookAtTheBox) {
    forgetPair();
    rig.start();
    clickWords();
    rig.click(remember());
    ASSERT_FALSE(remember().Value());
    clickWords();
    EXPECT_FALSE(remember().Value());
    clickWords();
    EXPECT_TRUE(remember().Value());
}

TEST_F(SignInRemember, PickingANameFromTheListUnticksTheBox) {
    rig.start();
    ASSERT_TRUE(remember().Value());
    rig.press(name(), Qt::Key_Down);
    EXPECT_EQ(name().Text(), u"管理员"_s);
    EXPECT_FALSE(remember().Value());
}

TEST_F(SignInRemember, TypingANameLeavesTheBoxAsItIs) {
    rig.start();
    name().lineEdit()->selectAll();
    rig.type(*name().lineEdit(), u"管理员"_s);
    rig.press(*name().lineEdit(), Qt::Key_Return);
    EXPECT_EQ(name().Text(), u"管理员"_s);
    EXPECT_TRUE(remember().Value());
}

} // namespace
} // namespace qinghe::testing
