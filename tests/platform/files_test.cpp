#include "disk/plain_file.h"
#include "disk/replace_file.h"
#include "platform/files.h"
#include "support/guard_fixture.h"
#include "support/ordinary_user.h"
#include "support/small_disk.h"

#include <QDir>
#include <QTemporaryDir>

#include <sys/stat.h>

namespace qinghe::testing {
namespace {

class Files : public ::testing::Test {
protected:
    QString at(const QString& name) const { return dir.filePath(name); }
    void make(const QString& name, const QByteArray& bytes = "x") const { replaceFile(at(name), bytes); }
    QByteArray bytes(const QString& name) const {
        QFile file(at(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
    }
    QStringList names() const {
        return QDir(dir.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }
    static QString textOf(const std::function<void()>& call) {
        try {
            call();
            return {};
        } catch (const RuntimeError& error) {
            return error.text();
        }
    }

    QTemporaryDir dir;
};

TEST_F(Files, AFolderIsAFolderAndAFileIsNone) {
    make(u"file"_s);
    EXPECT_TRUE(files::isFolder(dir.path()));
    EXPECT_FALSE(files::isFolder(at(u"file"_s)));
    EXPECT_FALSE(files::isFolder(at(u"nothing"_s)));
}

TEST_F(Files, AFolderIsMadeAndRefusedWhereSomethingLiesInItsPlace) {
    files::makeFolder(at(u"mydiary"_s));
    EXPECT_TRUE(files::isFolder(at(u"mydiary"_s)));
    make(u"taken"_s);
    EXPECT_EQ(errorOf([this] { files::makeFolder(at(u"taken"_s)); }), RuntimeError::PathFileAccess);
    EXPECT_EQ(errorOf([this] { files::makeFolder(at(u"none/below"_s)); }), RuntimeError::PathFileAccess);
}

TEST_F(Files, OpeningAsABinaryMakesAMissingFileAndLeavesAnotherAsItIs) {
    EXPECT_EQ(files::readAllOrMake(at(u"new"_s)), "");
    EXPECT_EQ(bytes(u"new"_s), "");
    make(u"old"_s, "ab");
    EXPECT_EQ(files::readAllOrMake(at(u"old"_s)), "ab");
    EXPECT_EQ(bytes(u"old"_s), "ab");
    EXPECT_EQ(errorOf([] { files::readAllOrMake({}); }), RuntimeError::PathFileAccess);
    EXPECT_EQ(errorOf([this] { files::readAllOrMake(dir.path()); }), RuntimeError::PathFileAccess);
    EXPECT_EQ(errorOf([this] { files::readAllOrMake(at(u"none/new"_s)); }), RuntimeError::PathNotFound);
    EXPECT_EQ(errorOf([] { files::readAllOrMake(u"/dev/zero"_s); }), RuntimeError::PathFileAccess);
}

TEST_F(Files, AFileThatCannotBeWrittenIsToldWithItsName) {
    files::makeFolder(at(u"pf.jpg"_s));
    const auto write = [this] { files::writeOver(at(u"pf.jpg"_s), "x"); };
    EXPECT_EQ(errorOf(write), RuntimeError::PathFileAccess);
    EXPECT_TRUE(textOf(write).contains(u"pf.jpg"_s));
    EXPECT_TRUE(textOf(write).contains(u"不能写入"_s));
}

TEST_F(Files, AFileIsWrittenOverFromItsBeginningAndKeepsItsTail) {
    files::writeOver(at(u"pf.jpg"_s), "abcdef");
    files::writeOver(at(u"pf.jpg"_s), "xy");
    EXPECT_EQ(bytes(u"pf.jpg"_s), "xycdef");
}

TEST_F(Files, AFileThatWasLeftReadOnlyIsWrittenOverWithItsTail) {
    make(u"pf.jpg"_s, "abcdef");
    make(u"unreadable.jpg"_s, "abcdef");
    QFile::setPermissions(at(u"pf.jpg"_s), QFile::ReadOwner);
    QFile::setPermissions(at(u"unreadable.jpg"_s), {});
    const AsOrdinaryUser user({dir.path(), at(u"pf.jpg"_s), at(u"unreadable.jpg"_s)});
    files::writeOver(at(u"pf.jpg"_s), "xy");
    files::writeOver(at(u"unreadable.jpg"_s), "xy");
    EXPECT_EQ(bytes(u"pf.jpg"_s), "xycdef");
    EXPECT_EQ(bytes(u"unreadable.jpg"_s), "xy");
}

TEST_F(Files, WhatLeadsElsewhereIsTakenAwayAndTheFileMadeAnewForItsOwnerAlone) {
    const auto native = [this](const QString& name) { return QFile::encodeName(at(name)); };
    make(u"autostart"_s, "kept");
    QFile::link(at(u"autostart"_s), at(u"link.jpg"_s));
    QFile::link(at(u"none"_s), at(u"dangling.jpg"_s));
    ASSERT_EQ(::link(native(u"autostart"_s).constData(), native(u"second.jpg"_s).constData()), 0);
    ASSERT_EQ(mkfifo(native(u"pipe.jpg"_s).constData(), 0600), 0);
    const mode_t before = umask(0);
    for (const QString& name : {u"link.jpg"_s, u"dangling.jpg"_s, u"second.jpg"_s, u"pipe.jpg"_s}) {
        files::writeOver(at(name), "picture");
        EXPECT_EQ(bytes(name), "picture") << name.toStdString();
        EXPECT_EQ(kindOf(at(name)), FileKind::Plain);
        EXPECT_EQ(QFile::permissions(at(name)) & (QFile::ReadGroup | QFile::ReadOther | QFile::WriteOther), 0);
    }
    umask(before);
    EXPECT_EQ(bytes(u"autostart"_s), "kept");
    EXPECT_FALSE(QFile::exists(at(u"none"_s)));
}

TEST_F(Files, AFileOfSomebodyElsesIsTakenAwayWhereThatCanBeDone) {
    make(u"pf.jpg"_s, "abcdef");
    QFile::setPermissions(at(u"pf.jpg"_s), QFile::ReadOwner | QFile::WriteOwner | QFile::WriteOther | QFile::ReadOther);
    if (geteuid() != 0)
        return; // the file is one's own then
    const AsOrdinaryUser user({dir.path()});
    files::writeOver(at(u"pf.jpg"_s), "xy");
    EXPECT_EQ(bytes(u"pf.jpg"_s), "xy");
    EXPECT_TRUE(isOwn(at(u"pf.jpg"_s)));
}

TEST_F(Files, ReadingFollowsNoLinkAndWaitsAtNoPipe) {
    make(u"secret"_s, "kept");
    QFile::link(at(u"secret"_s), at(u"link.dll"_s));
    ASSERT_EQ(mkfifo(QFile::encodeName(at(u"pipe.dll"_s)).constData(), 0600), 0);
    for (const QString& name : {u"link.dll"_s, u"pipe.dll"_s}) {
        EXPECT_EQ(errorOf([&] { files::readAll(at(name)); }), RuntimeError::PathFileAccess);
        EXPECT_TRUE(textOf([&] { files::readAll(at(name)); }).contains(name));
    }
    EXPECT_EQ(files::readAllOrMake(at(u"link.dll"_s)), "kept"); // where the user has named it
}

TEST_F(Files, ANewFileGetsAFreeNameAndIsNotLeftInPartOnAFullDisk) {
    EXPECT_EQ(files::writeNewForOwner(at(u"a.txt"_s), "1"), at(u"a.txt"_s));
    QFile::link(at(u"none"_s), at(u"a（2）.txt"_s));
    EXPECT_EQ(files::writeNewForOwner(at(u"a.txt"_s), "2"), at(u"a（3）.txt"_s));
    EXPECT_EQ(bytes(u"a.txt"_s) + bytes(u"a（3）.txt"_s), "12");
    const QStringList before = names();
    const SmallDisk disk(1000);
    EXPECT_EQ(errorOf([this] { files::writeNewForOwner(at(u"a.txt"_s), QByteArray(5000, 'x')); }),
              RuntimeError::DiskFull);
    EXPECT_EQ(names(), before);
}

TEST_F(Files, AFolderThatIsALinkOrTheFolderAboveIsRefused) {
    files::makeFolder(at(u"real"_s));
    QFile::link(u"."_s, at(u"here"_s));
    QFile::link(at(u"real"_s), at(u"elsewhere"_s));
    for (const QString& name : {u"here"_s, u"elsewhere"_s, u"real/.."_s})
        EXPECT_EQ(errorOf([&] { files::requireFolderOfItsOwn(at(name), dir.path()); }), RuntimeError::PathFileAccess)
            << name.toStdString();
    for (const QString& name : {u"real"_s, u"missing"_s})
        EXPECT_EQ(errorOf([&] { files::requireFolderOfItsOwn(at(name), dir.path()); }), 0) << name.toStdString();
}

TEST_F(Files, DeletingFindsNamesByPatternHiddenOnesIncluded) {
    for (const auto* name : {u"一.dll", u".隐.dll", u"ab.dll", u"a.txt", u"dll"})
        make(QString::fromUtf16(name));
    files::deleteMatching(dir.path(), u"*.dll"_s);
    EXPECT_EQ(names(), (QStringList{u"a.txt"_s, u"dll"_s}));
}

TEST_F(Files, AQuestionMarkStandsForOneCharacter) {
    for (const auto* name : {u"a1.wav", u"a2.wav", u"a10.wav"})
        make(QString::fromUtf16(name));
    files::deleteMatching(dir.path(), u"a?.wav"_s);
    EXPECT_EQ(names(), QStringList{u"a10.wav"_s});
}

TEST_F(Files, BracketsInANameAreOrdinaryCharacters) {
    for (const auto* name : {u"记[1].dll", u"记1.dll"})
        make(QString::fromUtf16(name));
    files::deleteMatching(dir.path(), u"记[1].dll"_s);
    EXPECT_EQ(names(), QStringList{u"记1.dll"_s});
}

TEST_F(Files, CapitalsAreOtherNames) {
    for (const auto* name : {u"Trip.dll", u"trip.dll"})
        make(QString::fromUtf16(name));
    files::deleteMatching(dir.path(), u"trip.dll"_s);
    EXPECT_EQ(names(), QStringList{u"Trip.dll"_s});
}

TEST_F(Files, DeletingKeepsToItsOwnFolderAndLeavesFolders) {
    files::makeFolder(at(u"deep"_s));
    files::makeFolder(at(u"folder.dll"_s));
    make(u"deep/inside.dll"_s);
    make(u"gone.dll"_s);
    files::deleteMatching(dir.path(), u"*.dll"_s);
    EXPECT_EQ(names(), (QStringList{u"deep"_s, u"folder.dll"_s}));
    EXPECT_EQ(bytes(u"deep/inside.dll"_s), "x");
}

TEST_F(Files, DeletingWhatIsNotThereIsHarmless) {
    files::deleteMatching(dir.path(), u"pf.jpg"_s);
    files::deleteMatching(at(u"nofolder"_s), u"*.dll"_s);
    EXPECT_EQ(names(), QStringList{});
}

} // namespace
} // namespace qinghe::testing
