#include "core_fixture.h"
#include "disk/plain_file.h"
#include "support/small_disk.h"

#include <sys/stat.h>
#include <unistd.h>

namespace qinghe::testing {
namespace {

/// A program that cannot start says why in Chinese and ends with 1, and what had to stay is there at the next start.
class BrokenStart : public CoreTest {
protected:
    void keepAside() { QFile::copy(rig.dataFile(), rig.file(u"aside"_s)); }
    void putBack() {
        rig.stop();
        QFile::remove(rig.dataFile());
        QFile::rename(rig.file(u"aside"_s), rig.dataFile());
    }
    void expectNextStartGood() {
        rig.stop();
        rig.signIn();
        EXPECT_TRUE(rig.messages->errors.empty());
        EXPECT_TRUE(main().isVisible());
    }
    void blockWithFolder(const QString& name) {
        QFile::remove(rig.file(name));
        ASSERT_TRUE(QDir(rig.folder()).mkdir(name));
    }
    void unblock(const QString& name) { ASSERT_TRUE(QDir(rig.folder()).rmdir(name)); }
};

TEST_F(BrokenStart, AMissingFileIsToldAndNotMade) {
    keepAside();
    QFile::remove(rig.dataFile());
    rig.start();
    expectError(RuntimeError::FileNotFound, u"改名为 data.dll"_s);
    EXPECT_EQ(rig.messages->lastWords, QString());
    EXPECT_EQ(folder(), QStringList{u"aside"_s});
    putBack();
    expectNextStartGood();
}

TEST_F(BrokenStart, AForeignFileIsTold) {
    write(u"data.dll"_s, QByteArray("no ledger at all\n").repeated(500));
    rig.start();
    expectError(RuntimeError::StoreFailure, u"data.dll"_s);
    EXPECT_EQ(bytes(u"data.dll"_s), QByteArray("no ledger at all\n").repeated(500));
}

TEST_F(BrokenStart, AnEmptyFileIsToldAndStaysEmpty) {
    write(u"data.dll"_s, {});
    rig.start();
    expectError(RuntimeError::StoreFailure, u"data.dll"_s);
    EXPECT_EQ(bytes(u"data.dll"_s), "");
}

TEST_F(BrokenStart, ATruncatedFileIsTold) {
    keepAside();
    write(u"data.dll"_s, bytes(u"data.dll"_s).left(6000));
    rig.start();
    expectError(RuntimeError::StoreFailure, u"data.dll"_s);
    putBack();
    expectNextStartGood();
}

TEST_F(BrokenStart, TheWayBackNamesTheCopiesThatLieBesideTheBook) {
    QFile::copy(rig.dataFile(), rig.file(u"备份.dat"_s));
    write(u"照片.dat"_s, QByteArray("no book at all\n").repeated(500));
    write(u"一半.dat"_s, bytes(u"data.dll"_s).left(6000));
    for (const bool damaged : {false, true}) {
        rig.stop();
        QFile::remove(rig.dataFile());
        if (damaged)
            write(u"data.dll"_s, QByteArray("no ledger at all\n").repeated(500));
        rig.start();
        ASSERT_EQ(rig.messages->errors.size(), 1u);
        const QString text = rig.messages->errors.front().second;
        EXPECT_TRUE(text.contains(rig.file(u"备份.dat"_s))) << text.toStdString();
        EXPECT_FALSE(text.contains(u"照片.dat"_s) || text.contains(u"一半.dat"_s));
        EXPECT_EQ(text.contains(u"改名留着"_s), damaged);
        EXPECT_TRUE(text.contains(u"data.dll-journal，要先把它移到别处"_s));
        const QString words =
            QString(text).remove(rig.folder()).remove(u"data.dll-journal"_s).remove(u"data.dll"_s).remove(u".dat"_s);
        for (const QChar c : words)
            EXPECT_FALSE(c >= u'a' && c <= u'z') << text.toStdString();
    }
}

TEST_F(BrokenStart, AForeignJournalIsSetAsideAndToldAndNothingIsLost) {
    write(u"data.dll-journal"_s, QByteArray("of another book ").repeated(100));
    rig.signIn();
    EXPECT_TRUE(rig.messages->errors.empty());
    EXPECT_TRUE(main().isVisible());
    ASSERT_EQ(shared().notes.size(), 1);
    EXPECT_TRUE(shared().notes.front().contains(u"data.dll-journal"_s));
    EXPECT_FALSE(folder().contains(u"data.dll-journal"_s));
}

TEST_F(BrokenStart, TheJournalOfACopyThatRunsIsLeftAlone) {
    rig.lock->free = false;
    write(u"data.dll-journal"_s, QByteArray(100, '\0')); // as a work begins
    rig.start();
    EXPECT_TRUE(rig.messages->errors.empty());
    EXPECT_TRUE(shared().notes.isEmpty());
    EXPECT_TRUE(folder().contains(u"data.dll-journal"_s));
}

TEST_F(BrokenStart, AFolderInPlaceOfTheFileIsTold) {
    keepAside();
    blockWithFolder(u"data.dll"_s);
    rig.start();
    expectError(RuntimeError::PathFileAccess, u"data.dll"_s);
    rig.stop();
    unblock(u"data.dll"_s);
    putBack();
    expectNextStartGood();
}

TEST_F(BrokenStart, AFileThatIsSpoiltWhileTheProgramRunsIsToldAtTheNextQuery) {
    rig.signIn();
    keepAside();
    write(u"data.dll"_s, QByteArray("overwritten by something else\n").repeated(3000));
    click(pages::Desktop);
    expectError(RuntimeError::StoreFailure, u"data.dll"_s);
    putBack();
    expectNextStartGood();
}

TEST_F(BrokenStart, AFileThatIsRemovedWhileTheProgramRunsIsToldAtTheNextQuery) {
    rig.signIn();
    keepAside();
    QFile::remove(rig.dataFile());
    click(pages::Desktop);
    expectError(RuntimeError::FileNotFound, u"data.dll"_s);
    EXPECT_FALSE(folder().contains(u"data.dll"_s));
    putBack();
    expectNextStartGood();
}

TEST_F(BrokenStart, AMissingTableIsToldWithItsName) {
    rig.sql(u"drop table txb"_s);
    rig.signIn();
    expectError(RuntimeError::QueryFailure, u"txb"_s);
}

TEST_F(BrokenStart, APictureTableWithoutItsRowIsTold) {
    for (const QStringView table : {u"登陆皮肤", u"皮肤选择", u"主界面"}) {
        const QString name = table.toString();
        rig.stop();
        rig.sql(u"create table kept as select * from %1"_s.arg(name));
        rig.sql(u"delete from %1"_s.arg(name));
        if (name == u"登陆皮肤"_s)
            rig.start();
        else
            rig.signIn();
        expectError(RuntimeError::NoCurrentRecord, u"记录"_s);
        rig.stop();
        rig.sql(u"insert into %1 select * from kept"_s.arg(name));
        rig.sql(u"drop table kept"_s);
        expectNextStartGood();
    }
}

TEST_F(BrokenStart, APictureThatIsNoneLocksNobodyOutAndIsNotWritten) {
    rig.sql(u"update 皮肤选择 set 文件大小=5, 皮肤文件=x'0102030405'"_s);
    rig.sql(u"update 主界面 set 大小=5, 文件=x'0102030405'"_s);
    rig.sql(u"update 登陆皮肤 set 大小=5, 皮肤=x'0102030405'"_s);
    rig.signIn();
    EXPECT_TRUE(rig.messages->errors.empty());
    EXPECT_TRUE(main().isVisible());
    for (const QStringView picture : {u"pf.jpg", u"zjm.jpg", u"dlpf.jpg"}) {
        EXPECT_FALSE(folder().contains(picture.toString()));
        EXPECT_TRUE(shared().notes.join(u'\n').contains(picture)) << "it is told why";
    }
}

TEST_F(BrokenStart, PicturesAreNotWrittenThroughLinksAndStaysOfPipesAreCleared) {
    write(u"precious"_s, "kept");
    ASSERT_TRUE(QFile::link(rig.file(u"precious"_s), rig.file(u"dlpf.jpg"_s)));
    ASSERT_EQ(mkfifo(QFile::encodeName(rig.file(u"pf.jpg"_s)).constData(), 0600), 0);
    ASSERT_EQ(link(QFile::encodeName(rig.file(u"precious"_s)).constData(),
                   QFile::encodeName(rig.file(u"zjm.jpg"_s)).constData()),
              0);
    rig.signIn();
    EXPECT_TRUE(rig.messages->errors.empty());
    EXPECT_EQ(bytes(u"precious"_s), "kept");
    for (const QStringView picture : {u"pf.jpg", u"zjm.jpg", u"dlpf.jpg"})
        EXPECT_EQ(kindOf(rig.file(picture.toString())), FileKind::Plain);
}

TEST_F(BrokenStart, ASignInPictureThatCannotBeWrittenIsTold) {
    blockWithFolder(u"dlpf.jpg"_s);
    rig.start();
    expectError(RuntimeError::PathFileAccess, u"dlpf.jpg"_s);
    unblock(u"dlpf.jpg"_s);
    expectNextStartGood();
}

TEST_F(BrokenStart, APictureOfTheMainWindowThatCannotBeWrittenIsTold) {
    for (const QStringView file : {u"pf.jpg", u"zjm.jpg"}) {
        const QString name = file.toString();
        rig.stop();
        blockWithFolder(name);
        rig.signIn();
        expectError(RuntimeError::PathFileAccess, name);
        unblock(name);
        expectNextStartGood();
    }
}

TEST_F(BrokenStart, AFullDiskKeepsNobodyOut) {
    {
        const SmallDisk disk(100);
        rig.signIn();
        EXPECT_TRUE(rig.messages->errors.empty());
        EXPECT_TRUE(main().isVisible());
        EXPECT_FALSE(main().picture().isNull());
        ASSERT_FALSE(shared().notes.isEmpty());
        EXPECT_TRUE(shared().notes.front().startsWith(u"磁盘已满"_s));
        EXPECT_FALSE(shared().store.hasUndone());
        rig.stop();
    }
    expectNextStartGood();
}

TEST_F(BrokenStart, AFileInPlaceOfTheDiaryFolderIsToldAndKept) {
    write(u"mydiary"_s, "something of the user's");
    rig.signIn();
    expectError(RuntimeError::PathFileAccess, u"/mydiary”是一个文件"_s);
    EXPECT_TRUE(rig.messages->errors.front().second.contains(u"改名或移到别处"_s));
    EXPECT_EQ(bytes(u"mydiary"_s), "something of the user's");
    QFile::remove(rig.file(u"mydiary"_s));
    expectNextStartGood();
}

TEST_F(BrokenStart, ALinkInPlaceOfTheDiaryFolderIsToldAndKept) {
    for (const QString& target : {u"."_s, u"elsewhere"_s}) {
        ASSERT_TRUE(QFile::link(target, rig.file(u"mydiary"_s)));
        rig.signIn();
        expectError(RuntimeError::PathFileAccess, u"/mydiary”是一个链接"_s);
        EXPECT_EQ(kindOf(rig.file(u"mydiary"_s)), FileKind::Link);
        QFile::remove(rig.file(u"mydiary"_s));
        rig.stop();
    }
    EXPECT_FALSE(folder().contains(u"elsewhere"_s));
    expectNextStartGood();
}

TEST_F(BrokenStart, WhatTheSignInHadWrittenBeforeTheFailureStays) {
    rig.sql(u"insert into yhb values('李四','abc',2)"_s);
    blockWithFolder(u"pf.jpg"_s);
    rig.start();
    trySignIn(u"李四"_s, u"abc"_s);
    expectError(RuntimeError::PathFileAccess, u"pf.jpg"_s);
    EXPECT_EQ(rig.sql(u"select 用户名, 密码 from 登陆用户记录表"_s), QStringList{u"李四|abc"_s});
    EXPECT_EQ(rig.headerBytes(), Healed);
    rig.stop();
    unblock(u"pf.jpg"_s);
    rig.start();
    EXPECT_EQ(name().Text(), u"李四"_s);
}

TEST_F(BrokenStart, AFailureInTheMidstOfLeavingKeepsTheLedger) {
    rig.sql(u"insert into srb values('1','2024-05-03','工资','我',12.5,'现金','',1)"_s);
    rig.signIn();
    QFile::remove(rig.file(u"aside"_s));
    keepAside();
    QFile::remove(rig.dataFile());
    click(title::Close);
    expectError(RuntimeError::FileNotFound, u"data.dll"_s);
    putBack();
    expectNextStartGood();
    EXPECT_EQ(rig.sql(u"select count(*) from srb"_s), QStringList{u"1"_s});
}

} // namespace
} // namespace qinghe::testing
