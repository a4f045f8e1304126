#include "household.h"

#include <gtest/gtest.h>

using namespace whole;

namespace {

const std::string trayIcon = "QSystemTrayIconSys";
const Message traySet{"设置完毕", "提示", Message::Information, {"确定"}};
const Message wipeQuestion{"是否删除所有日志？", "提示", Message::Information, {"确定", "取消"}};
const Message wiped{"格式化完成！", "青禾家庭记账本", Message::None, {"确定"}};
const Message initialiseQuestion{
    "点击此项将初始化系统内除用户信息以外的全部数据！是否继续？", "系统提示", Message::Question, {"是", "否"}};
const Message initialised{"初始化完毕", "提示", Message::Information, {"确定"}};

bool ticked(Program& program, const std::string& box) {
    return program.get(box, "checked").toBool();
}

/// Presses a box, sees the message and answers it.
void press(Program& program, const std::string& box, const Message& expected, const std::string& button) {
    program.click(box);
    EXPECT_EQ(program.message(), expected);
    program.answer(button);
}

/// Signs in where the program goes into the tray at once, and comes back by its icon.
void signInThroughTray(Program& program) {
    program.click(sign_in::Enter);
    program.waitFor(trayIcon);
    program.waitUntil([&] { return !program.shows(forms::Main); }, "the main window to go");
    program.look();
    program.click(trayIcon);
    program.waitFor(forms::Main);
}

} // namespace

TEST(Settings, TheTrayStaysChosenUntilItIsUnticked) {
    const LedgerFolder folder;
    {
        Program program(folder);
        signIn(program);
        program.click(pages::Settings);
        EXPECT_FALSE(ticked(program, settings::ToTray));
        press(program, settings::ToTray, traySet, "确定");
        endByCross(program);
    }
    EXPECT_EQ(folder.rows("select * from systuopanb"), std::vector<std::string>{"1"});
    {
        Program program(folder);
        signInThroughTray(program);
        program.click(pages::Settings);
        EXPECT_TRUE(ticked(program, settings::ToTray));
        press(program, settings::ToTray, traySet, "确定");
        endByCross(program);
    }
    Program program(folder);
    signIn(program);
    program.click(pages::Settings);
    EXPECT_FALSE(ticked(program, settings::ToTray));
    endByCross(program);
}

TEST(Settings, TheDiaryIsWipedOnceItIsConfirmed) {
    const LedgerFolder folder;
    folder.execute("insert into rjb values('2024-11-17','秋收'),('2024-11-18','卖粮')");
    Program program(folder);
    signIn(program);
    for (const char* file : {"mydiary/秋收.dll", "mydiary/卖粮.dll"})
        folder.write(file, "abc\r\n");
    program.click(pages::Settings);
    press(program, settings::WipeDiary, wipeQuestion, "取消");
    EXPECT_FALSE(ticked(program, settings::WipeDiary));
    EXPECT_TRUE(folder.has("mydiary/秋收.dll"));
    EXPECT_EQ(folder.rows("select count(*) from rjb"), std::vector<std::string>{"2"});

    press(program, settings::WipeDiary, wipeQuestion, "确定");
    EXPECT_EQ(program.message(), wiped);
    program.answer("确定");
    EXPECT_TRUE(ticked(program, settings::WipeDiary));
    program.click(pages::Diary);
    program.click(diary_page::Find);
    EXPECT_EQ(rows(program, diary_page::Grid), std::vector<std::string>{"|"});
    endByCross(program);
    EXPECT_TRUE(folder.rows("select * from rjb").empty());
    EXPECT_FALSE(folder.has("mydiary/秋收.dll"));
    EXPECT_FALSE(folder.has("mydiary/卖粮.dll"));
}

TEST(Settings, InitialisingEmptiesTheLedgersAndKeepsUsersAndCategories) {
    const LedgerFolder folder;
    const std::string ledgers = "select (select count(*) from srb) + (select count(*) from zhb) + "
                                "(select count(*) from rjb) + (select count(*) from rcb)";
    const std::string kept = "select (select count(*) from yhb), (select count(*) from srflb), "
                             "(select count(*) from zcflb), (select count(*) from 软件皮肤)";
    folder.execute("insert into srb values('1','2024-11-15','工资','王青',100,'建行','',1);"
                   "insert into zhb(账户名称,起始金额,收入,支出,借入,借出,转入,转出,余额,备注信息,区别) "
                   "values('工资卡',1,0,0,0,0,0,0,1,'',1);"
                   "insert into rjb values('2024-11-17','秋收');"
                   "insert into rcb values('2024-11-18',1,'2024-11-18','8:05','晒谷','音乐1',1)");
    const std::vector<std::string> keptBefore = folder.rows(kept);
    {
        Program program(folder);
        signIn(program);
        folder.write("mydiary/秋收.dll", "abc\r\n");
        program.click(pages::Settings);
        press(program, settings::Initialise, initialiseQuestion, "否");
        EXPECT_FALSE(ticked(program, settings::Initialise));
        EXPECT_EQ(folder.rows(ledgers), std::vector<std::string>{"4"});
        press(program, settings::Initialise, initialiseQuestion, "是");
        EXPECT_EQ(program.message(), initialised);
        EXPECT_EQ(folder.rows(ledgers), std::vector<std::string>{"0"});
        program.answer("确定");
        EXPECT_TRUE(ticked(program, settings::Initialise));
        endByCross(program);
    }
    EXPECT_EQ(folder.rows(kept), keptBefore);
    EXPECT_EQ(folder.bytes("mydiary/秋收.dll"), "abc\r\n");

    Program program(folder);
    signIn(program);
    EXPECT_EQ(program.text(desktop::Income), "0.00元");
    endByCross(program);
}
