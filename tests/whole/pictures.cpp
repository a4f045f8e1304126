#include "household.h"

#include <QImage>

#include <gtest/gtest.h>

using namespace whole;

namespace {

/// A picture of two by two points.
QByteArray smallBitmap() {
    return QByteArray::fromHex("424d460000000000000036000000280000000200000002000000010018000000000010000000"
                               "130b0000130b000000000000000000000000ff00ff000000ff0000ffffff0000");
}

void openWindow(Program& program, const std::string& entry, const std::string& window) {
    program.click("Form2/Label7");
    program.click("Form2/Command32");
    program.pick(entry);
    program.waitForKeyboard(window);
}

/// The bare ground of the main window below its page, which shows nothing but the skin.
QImage ground(Program& program, const LedgerFolder& folder) {
    program.picture(folder.beside("window.png").toStdString(), "Form2");
    return QImage(folder.beside("window.png")).copy(100, 524, 600, 12);
}

} // namespace

TEST(Pictures, ASkinIsAddedToThoseOnOffer) {
    const LedgerFolder folder;
    const std::string before = folder.rows("select count(*) from 软件皮肤")[0];
    folder.write("春天.bmp", smallBitmap());
    Program program(folder);
    signIn(program);
    openWindow(program, "添加记账本皮肤", "Form8");
    program.click("Form8/Command2");
    EXPECT_EQ(program.message(),
              (Message{"Box of filename can not be empty!", "information", Message::Information, {"确定"}}));
    program.answer("确定");

    program.click("Form8/Command1");
    program.choose(folder.file("春天.bmp").toStdString());
    program.waitUntil([&] { return program.text("Form8/Text1") == folder.file("春天.bmp").toStdString(); },
                      "the chosen name");
    program.clearAndType("Form8/Text2", "春天");
    program.click("Form8/Command2");
    EXPECT_EQ(program.message(), (Message{"添加成功！是否继续添加？", "添加提示", Message::Question, {"是", "否"}}));
    program.answer("否");
    program.close("Form8");
    endByCross(program);
    EXPECT_EQ(folder.rows("select 名称,大小,hex(皮肤) from 软件皮肤 where rowid > " + before),
              std::vector<std::string>{"春天|70|" + smallBitmap().toHex().toUpper().toStdString() + "00"});
}

TEST(Pictures, ASkinOfOnesOwnIsChosenKeptAndSeenAtTheNextStart) {
    const LedgerFolder folder;
    folder.write("春天.bmp", smallBitmap());
    QImage chosen;
    {
        Program program(folder);
        signIn(program);
        openWindow(program, "添加记账本皮肤", "Form8");
        program.clearAndType("Form8/Text1", folder.file("春天.bmp").toStdString());
        program.clearAndType("Form8/Text2", "春天");
        program.click("Form8/Command2");
        answer(program, "添加成功！是否继续添加？", "否");
        program.close("Form8");
        program.waitForKeyboard("Form2");

        const QImage delivered = ground(program, folder);
        EXPECT_FALSE(program.shows("Form2/Combo2"));
        program.click("Form2/Check10");
        EXPECT_FALSE(program.shows("Form2/Command30"));
        program.click("Form2/Combo2");
        program.pick("春天");
        program.waitUntil([&] { return program.shows("Form2/Command30"); }, "the button that keeps the skin");
        chosen = ground(program, folder);
        EXPECT_NE(chosen, delivered);
        EXPECT_TRUE(folder.bytes("pf.jpg").startsWith(smallBitmap()));
        program.click("Form2/Command30");
        EXPECT_EQ(program.message(), (Message{"设置已保存", "提示", Message::Information, {"确定"}}));
        program.answer("确定");
        EXPECT_FALSE(program.shows("Form2/Combo2"));
        EXPECT_FALSE(program.get("Form2/Check10", "checked").toBool());
        endByCross(program);
    }
    EXPECT_FALSE(folder.has("pf.jpg"));
    EXPECT_EQ(folder.rows("select 皮肤名,文件大小 from 皮肤选择"), std::vector<std::string>{"|70"});

    Program program(folder);
    signIn(program);
    EXPECT_EQ(folder.bytes("pf.jpg"), smallBitmap());
    EXPECT_EQ(ground(program, folder), chosen);
    endByCross(program);
}

TEST(Pictures, ASkinThatWasOnlyTriedIsGoneAtTheNextStart) {
    const LedgerFolder folder;
    QImage delivered;
    {
        Program program(folder);
        signIn(program);
        delivered = ground(program, folder);
        program.click("Form2/Label7");
        program.click("Form2/Check10");
        program.click("Form2/Combo2");
        program.pick("水墨远山");
        program.waitUntil([&] { return ground(program, folder) != delivered; }, "the skin");
        program.kill();
    }
    EXPECT_TRUE(folder.has("pf.jpg"));
    Program program(folder);
    signIn(program);
    EXPECT_EQ(ground(program, folder), delivered);
    endByCross(program);
}

TEST(Pictures, ANewPictureOfTheSignInIsSeenAtTheNextStart) {
    const LedgerFolder folder;
    folder.execute("update 登陆皮肤 set 名称 = '旧'");
    folder.write("新.bmp", smallBitmap());
    {
        Program program(folder);
        signIn(program);
        openWindow(program, "添加登陆图片", "Form11");
        program.clearAndType("Form11/Text1", folder.file("新.bmp").toStdString());
        program.clearAndType("Form11/Text2", "新");
        program.click("Form11/Command2");
        answer(program, "添加成功！是否继续添加？", "否");
        endByCross(program);
    }
    folder.execute("delete from 登陆皮肤 where 名称 = '旧'"); // the first row is the one shown
    Program program(folder);
    EXPECT_EQ(folder.bytes("dlpf.jpg"), smallBitmap());
    signIn(program);
    endByCross(program);
    EXPECT_FALSE(folder.has("dlpf.jpg"));
}

TEST(Pictures, AFolderIsNoPicture) {
    const LedgerFolder folder;
    Program program(folder);
    signIn(program);
    openWindow(program, "添加桌面图片", "Form10");
    program.clearAndType("Form10/Text1", folder.beside("").toStdString());
    program.clearAndType("Form10/Text2", "夏天");
    program.click("Form10/Command2");
    expectErrorWindow(program, "文件夹");
    EXPECT_EQ(folder.rows("select count(*) from 主界面")[0], "1");
}
