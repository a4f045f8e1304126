#include "household.h"

#include <gtest/gtest.h>

using namespace whole;

namespace {

const Message wrongPassword{"密码错误，请重新输入密码", "登陆提醒", Message::Warning, {"确定", "取消"}};
const Message unknownName{"用户名不存在，请重新登陆！", "登陆提醒", Message::Information, {"确定", "取消"}};

} // namespace

TEST(AtTheDoor, ThreeWrongPasswordsEndTheProgram) {
    const LedgerFolder folder;
    Program program(folder);
    for (const char* password : {"1", "12345", "青禾"}) {
        program.clearAndType(sign_in::Password, password);
        program.click(sign_in::Enter);
        EXPECT_EQ(program.message(), wrongPassword);
        program.answer("确定");
    }
    EXPECT_EQ(program.message(),
              (Message{"登陆密码错误三次，请询问管理员！", "错误提示", Message::Information, {"确定"}}));
    program.answer("确定");
    EXPECT_EQ(program.exitCode(), 0);
    EXPECT_EQ(folder.header(), "01 00");
}

TEST(AtTheDoor, AnEnterThatIsHeldTriesOnceAndAnswersNothing) {
    const LedgerFolder folder;
    Program program(folder);
    program.clearAndType(sign_in::Password, "1");
    program.key("Return");
    EXPECT_EQ(program.message(), wrongPassword);
    program.hold("Return");
    EXPECT_EQ(program.message(), wrongPassword);
    program.answer("确定");
    program.waitForKeyboard(forms::SignIn);
    program.hold("Return");
    EXPECT_FALSE(program.showsMessage());
}

TEST(AtTheDoor, AWrongPasswordMayBeTheLastTry) {
    const LedgerFolder folder;
    Program program(folder);
    program.clearAndType(sign_in::Password, "1");
    program.click(sign_in::Enter);
    EXPECT_EQ(program.message(), wrongPassword);
    program.answer("取消");
    EXPECT_EQ(program.exitCode(), 0);
}

TEST(AtTheDoor, UnknownNamesAreCountedButNobodyIsLockedOut) {
    const LedgerFolder folder;
    Program program(folder);
    for (int i = 1; i <= 4; ++i) {
        signInAs(program, "李四", "123456");
        EXPECT_EQ(program.message(), unknownName);
        program.answer("确定");
        if (i == 3)
            answer(program, "用户名错误三次，请询问管理员！");
        EXPECT_FALSE(program.showsMessage());
        EXPECT_EQ(program.get(sign_in::User, "currentText").toString().toStdString(), "");
    }
    signInAs(program, "管理员", "123456");
    program.waitFor(forms::Main);
    endByCross(program);
}

TEST(AtTheDoor, NameAndPasswordMustBeThere) {
    const LedgerFolder folder;
    Program program(folder);
    program.clearAndType(sign_in::Password, "");
    program.click(sign_in::Enter);
    EXPECT_EQ(program.message(), (Message{"用户名和登录密码不能为空！", "登录提醒", Message::Warning, {"确定"}}));
    program.answer("确定");
    EXPECT_TRUE(program.shows(forms::SignIn));
}

TEST(AtTheDoor, TheTickDecidesWhetherThePairIsRemembered) {
    const LedgerFolder folder;
    {
        Program program(folder);
        program.click(sign_in::Remember);
        signIn(program);
        endByCross(program);
    }
    EXPECT_EQ(folder.rows("select count(*) from 登陆用户记录表"), std::vector<std::string>{"0"});
    Program program(folder);
    EXPECT_EQ(program.text(sign_in::Password), "");
    program.click(sign_in::Password);
    program.type("123456");
    program.click(sign_in::RememberWords);
    signIn(program);
    endByCross(program);
    EXPECT_EQ(folder.rows("select * from 登陆用户记录表"), std::vector<std::string>{"管理员|123456"});
}

TEST(AtTheDoor, LeavingDeletesThePictureAndLeavesTheDataOpen) {
    const LedgerFolder folder;
    Program program(folder);
    EXPECT_TRUE(folder.has("dlpf.jpg"));
    program.click(sign_in::Close);
    EXPECT_EQ(program.exitCode(), 0);
    EXPECT_FALSE(folder.has("dlpf.jpg"));
    EXPECT_EQ(folder.header(), "01 00");
}

TEST(AtTheDoor, ASecondCopyIsTurnedAwayAfterItsSignIn) {
    const LedgerFolder folder;
    Program first(folder);
    signIn(first);
    first.click(title::Minimise);
    Program second(folder);
    second.click(sign_in::Enter);
    EXPECT_EQ(
        second.message(),
        (Message{"程序已经运行，程序可能已经最小化到左下角或系统托盘！", "青禾家庭记账本", Message::None, {"确定"}}));
    second.answer("确定");
    EXPECT_EQ(second.exitCode(), 0);
    first.waitForKeyboard(forms::Main);

    EXPECT_EQ(folder.header(), "01 00");
    first.click(pages::Income);
    EXPECT_EQ(first.caption(income::Page), "收入记录");
    endByCross(first);
}

TEST(AtTheDoor, AnotherFolderIsAnotherLedger) {
    const LedgerFolder ours, theirs;
    Program first(ours), second(theirs);
    signIn(first);
    signIn(second);
    endByCross(second);
    endByCross(first);
}
