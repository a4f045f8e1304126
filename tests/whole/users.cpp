#include "household.h"

#include <gtest/gtest.h>

using namespace whole;

namespace {

const Message gap{"为了保存信息的完整性，\r\n记录内容不能为空！", "输入提示", Message::Information, {"确定"}};

void openUsers(Program& program) {
    program.click(pages::Users);
    EXPECT_TRUE(program.shows(users::Page));
}

} // namespace

TEST(Users, ANewUserSignsInFromTheNextStartOn) {
    const LedgerFolder folder;
    {
        Program program(folder);
        signIn(program);
        openUsers(program);
        EXPECT_EQ(rows(program, users::Grid), std::vector<std::string>{"管理员|123456"});
        program.click(users::Add);
        addInVain(program, users::Add);
        fillCell(program, users::Grid, 2, 1, "小满");
        program.click(users::Save);
        EXPECT_EQ(program.message(), gap);
        program.answer("确定");
        EXPECT_EQ(folder.rows("select 用户名 from yhb"), std::vector<std::string>{"管理员"});
        program.click(users::Box); // which stands over the password
        enter(program, "Mi hua'08");
        EXPECT_FALSE(program.shows(users::Box));
        save(program, users::Save);
        endByCross(program);
    }
    EXPECT_EQ(folder.rows("select * from yhb"), (std::vector<std::string>{"管理员|123456|1", "小满|Mi hua'08|2"}));

    {
        Program program(folder, "2024-11-19 07:10:00");
        signInAs(program, "小满", "mi hua'08");
        answer(program, "密码错误，请重新输入密码");
        signInAs(program, "小满", "Mi hua'08");
        program.waitForKeyboard(forms::Main);
        openUsers(program);
        EXPECT_EQ(rows(program, users::Grid), (std::vector<std::string>{"管理员|123456", "小满|Mi hua'08"}));
        program.clickCell(users::Grid, 1, 1);
        remove(program, users::Remove, "取消");
        remove(program, users::Remove);
        waitForRows(program, users::Grid, {"小满|Mi hua'08"});
        endByCross(program);
    }
    EXPECT_EQ(folder.rows("select 用户名 from yhb"), std::vector<std::string>{"小满"}); // without any save

    Program program(folder, "2024-11-20 07:10:00");
    signInAs(program, "管理员", "123456");
    answer(program, "用户名不存在，请重新登陆！");
    signInAs(program, "小满", "Mi hua'08");
    program.waitForKeyboard(forms::Main);
    endByCross(program);
}

TEST(Users, WhenTheLastOneIsDeletedNobodyIsOfferedAtTheDoor) {
    const LedgerFolder folder;
    {
        Program program(folder);
        signIn(program);
        openUsers(program);
        remove(program, users::Remove);
        EXPECT_EQ(rows(program, users::Grid), std::vector<std::string>{"|"});
        program.click(users::Save);
        EXPECT_EQ(program.message(), gap);
        program.answer("确定");
        endByCross(program);
    }
    EXPECT_TRUE(folder.rows("select * from yhb").empty());
    Program program(folder);
    EXPECT_EQ(program.get(sign_in::User, "count").toInt(), 0);
    program.click(sign_in::Enter); // the remembered name
    answer(program, "用户名不存在，请重新登陆！", "取消");
    EXPECT_EQ(program.exitCode(), 0);
}
