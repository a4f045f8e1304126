#include "core_fixture.h"

namespace qinghe::testing {
namespace {

class Leaving : public CoreTest {};

TEST_F(Leaving, ThePicturesLieBesideTheProgramWhileItRuns) {
    rig.signIn();
    struct Picture {
        QStringView file, query;
    };
    for (const Picture& picture : {Picture{u"pf.jpg", u"select hex(皮肤文件) from 皮肤选择"},
                                   Picture{u"zjm.jpg", u"select hex(文件) from 主界面"},
                                   Picture{u"dlpf.jpg", u"select hex(皮肤) from 登陆皮肤"}}) {
        const QByteArray written = bytes(picture.file.toString());
        EXPECT_EQ(QString::fromLatin1(written.toHex().toUpper()), rig.sql(picture.query.toString()).value(0));
    }
}

TEST_F(Leaving, TheWindowsBearThePictures) {
    rig.signIn();
    const QColor skin = main().picture().pixelColor(4, 4);
    EXPECT_GT(skin.green(), 200);
    EXPECT_LT(skin.red(), 50);
    const QColor desktop = rig.at(desktop::Picture).picture().pixelColor(4, 4);
    EXPECT_GT(desktop.red(), 200);
    EXPECT_GT(desktop.green(), 200);
}

TEST_F(Leaving, AsManyBytesAsTheSizeSaysAreWritten) {
    const QByteArray whole = QByteArray::fromHex(rig.sql(u"select hex(文件) from 主界面"_s).value(0).toLatin1());
    rig.sql(u"update 主界面 set 文件=cast(文件 || x'00112233' as blob)"_s);
    rig.signIn();
    EXPECT_EQ(bytes(u"zjm.jpg"_s), whole);
}

TEST_F(Leaving, TheCloseImageDeletesThePicturesSpoilsTheHeaderAndEndsWithoutAQuestion) {
    rig.signIn();
    EXPECT_EQ(rig.headerBytes(), Healed);
    click(title::Close);
    expectEndedWell();
    EXPECT_TRUE(rig.messages->shown.empty());
    EXPECT_EQ(rig.headerBytes(), Spoilt);
    EXPECT_EQ(folder(), (QStringList{u"data.dll"_s, u"mydiary"_s}));
    EXPECT_TRUE(rig.loaded(forms::Main));
}

TEST_F(Leaving, TheCloseImageUnloadsTheToolsFirst) {
    rig.signIn();
    openTools();
    click(title::Close);
    EXPECT_FALSE(toolsOpen());
    expectEndedWell();
}

TEST_F(Leaving, PicturesThatAreGoneAlreadyDoNoHarm) {
    rig.signIn();
    for (const QStringView name : {u"pf.jpg", u"zjm.jpg", u"dlpf.jpg"})
        QFile::remove(rig.file(name.toString()));
    click(title::Close);
    expectEndedWell();
    EXPECT_EQ(rig.headerBytes(), Spoilt);
}

TEST_F(Leaving, OtherFilesBesideTheProgramStay) {
    write(u"家.jpg"_s, "a photo");
    write(u"apf.jpg"_s, "another");
    rig.signIn();
    click(title::Close);
    EXPECT_EQ(folder(), (QStringList{u"apf.jpg"_s, u"data.dll"_s, u"mydiary"_s, u"家.jpg"_s}));
}

TEST_F(Leaving, ANewStartAfterTheCloseImageHealsTheHeaderBeforeTheFirstQuery) {
    rig.signIn();
    click(title::Close);
    rig.stop();
    ASSERT_EQ(rig.headerBytes(), Spoilt);
    rig.start();
    EXPECT_EQ(rig.headerBytes(), Healed);
    rig.click(signInButton());
    rig.settle();
    EXPECT_TRUE(main().isVisible());
    EXPECT_TRUE(rig.messages->errors.empty());
}

TEST_F(Leaving, NothingRunsAfterTheEnd) {
    rig.signIn();
    click(title::Close);
    click(pages::Diary);
    EXPECT_EQ(main().navigation().currentPage, 24);
    EXPECT_EQ(rig.process->codes.size(), 1u);
}

TEST_F(Leaving, AProgramThatTheDesktopClosesLeavesTheHeaderHealedAndThePictures) {
    rig.signIn();
    main().close();
    expectEndedWell();
    EXPECT_EQ(rig.headerBytes(), Healed);
    EXPECT_TRUE(folder().contains(u"pf.jpg"_s));
    EXPECT_TRUE(folder().contains(u"zjm.jpg"_s));
    EXPECT_TRUE(folder().contains(u"dlpf.jpg"_s));
}

TEST_F(Leaving, AProgramThatStopsDeadStartsAgain) {
    rig.signIn();
    rig.stop();
    EXPECT_EQ(rig.headerBytes(), Healed);
    rig.signIn();
    EXPECT_TRUE(main().isVisible());
}

TEST_F(Leaving, OnlyTheJournalMayLieBesideTheDataFile) {
    rig.signIn();
    click(pages::Income);
    EXPECT_EQ(QDir(rig.folder()).entryList({u"data.dll*"_s}), QStringList{u"data.dll"_s});
}

} // namespace
} // namespace qinghe::testing
