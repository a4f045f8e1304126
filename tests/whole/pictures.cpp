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
    program.click(pages::Settings);
    program.click(settings::Pictures);
    program.pick(entry);
    program.waitForKeyboard(window);
}

/// The bare ground of the main window below its page, which shows nothing but the skin.
QImage ground(Program& program, const LedgerFolder& folder) {
    program.picture(folder.beside("window.png").toStdString(), forms::Main);
    return QImage(folder.beside("window.png")).copy(100, 524, 600, 12);
}

} // namespace

TEST(Pictures, ASkinIsAddedToThoseOnOffer) {
    const LedgerFolder folder;
    const std::string before = folder.rows("select count(*) from 软件皮肤")[0];
    folder.write("春天.bmp", smallBitmap());
    Program program(folder);
    signIn(program);
    openWindow(program, "添加记账本皮肤", forms::SkinPictures);
    program.click(pictures::Store);
    EXPECT_EQ(program.message(),
              (Message{"Box of filename can not be empty!", "information", Message::Information, {"确定"}}));
    program.answer("确定");

    program.click(pictures::Browse);
    program.choose(folder.file("春天.bmp").toStdString());
    program.waitUntil([&] { return program.text(pictures::Path) == folder.file("春天.bmp").toStdString(); },
                      "the chosen name");
    program.clearAndType(pictures::Called, "春天");
    program.click(pictures::Store);
    EXPECT_EQ(program.message(), (Message{"添加成功！是否继续添加？", "添加提示", Message::Question, {"是", "否"}}));
    program.answer("否");
    program.close(forms::SkinPictures);
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
        openWindow(program, "添加记账本皮肤", forms::SkinPictures);
        program.clearAndType(pictures::Path, folder.file("春天.bmp").toStdString());
        program.clearAndType(pictures::Called, "春天");
        program.click(pictures::Store);
        answer(program, "添加成功！是否继续添加？", "否");
        program.close(forms::SkinPictures);
        program.waitForKeyboard(forms::Main);

        const QImage delivered = ground(program, folder);
        EXPECT_FALSE(program.shows(settings::Skins));
        program.click(settings::ChangeSkin);
        EXPECT_FALSE(program.shows(settings::KeepSkin));
        program.click(settings::Skins);
        program.pick("春天");
        program.waitUntil([&] { return program.shows(settings::KeepSkin); }, "the button that keeps the skin");
        chosen = ground(program, folder);
        EXPECT_NE(chosen, delivered);
        EXPECT_TRUE(folder.bytes("pf.jpg").startsWith(smallBitmap()));
        program.click(settings::KeepSkin);
        EXPECT_EQ(program.message(), (Message{"设置已保存", "提示", Message::Information, {"确定"}}));
        program.answer("确定");
        EXPECT_FALSE(program.shows(settings::Skins));
        EXPECT_FALSE(program.get(settings::ChangeSkin, "checked").toBool());
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
        program.click(pages::Settings);
        program.click(settings::ChangeSkin);
        program.click(settings::Skins);
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
        openWindow(program, "添加登陆图片", forms::SignInPictures);
        program.clearAndType(pictures::Path.on(forms::SignInPictures), folder.file("新.bmp").toStdString());
        program.clearAndType(pictures::Called.on(forms::SignInPictures), "新");
        program.click(pictures::Store.on(forms::SignInPictures));
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
    openWindow(program, "添加桌面图片", forms::DesktopPictures);
    program.clearAndType(pictures::Path.on(forms::DesktopPictures), folder.beside("").toStdString());
    program.clearAndType(pictures::Called.on(forms::DesktopPictures), "夏天");
    program.click(pictures::Store.on(forms::DesktopPictures));
    expectErrorWindow(program, "文件夹");
    EXPECT_EQ(folder.rows("select count(*) from 主界面")[0], "1");
}
