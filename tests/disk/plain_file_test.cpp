#include "disk/plain_file.h"
#include "support/folder_test.h"

#include <sys/stat.h>
#include <unistd.h>

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class APlainFile : public FolderTest {};

TEST_F(APlainFile, IsReadAndWrittenLikeAnyOther) {
    write(u"a"_s, "old content");
    PlainFile file(at(u"a"_s));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    EXPECT_EQ(file.fileName(), at(u"a"_s));
    EXPECT_EQ(file.readAll(), "old content");
    EXPECT_TRUE(file.seek(0));
    EXPECT_EQ(file.write("new"), 3);
    file.close();
    EXPECT_EQ(bytes(u"a"_s), "new content");
    ASSERT_TRUE(PlainFile(at(u"a"_s)).open(QIODevice::WriteOnly));
    EXPECT_EQ(bytes(u"a"_s), "");
    PlainFile again(at(u"a"_s));
    EXPECT_FALSE(again.open(QIODevice::WriteOnly | QIODevice::NewOnly));
    EXPECT_FALSE(PlainFile(at(u"none"_s)).open(QIODevice::ReadWrite | QIODevice::ExistingOnly));
    EXPECT_EQ(kindOf(at(u"none"_s)), FileKind::Missing);
}

TEST_F(APlainFile, IsMadeForItsOwnerAlone) {
    const mode_t before = umask(0);
    EXPECT_TRUE(PlainFile(at(u"new"_s)).open(QIODevice::WriteOnly));
    umask(before);
    struct stat info = {};
    ASSERT_EQ(stat(QFile::encodeName(at(u"new"_s)).constData(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777, 0600U);
}

TEST_F(APlainFile, IsNoLinkAndWhatItLeadsToStays) {
    write(u"precious"_s, "kept");
    QFile::link(at(u"precious"_s), at(u"link"_s));
    EXPECT_EQ(kindOf(at(u"link"_s)), FileKind::Link);
    for (const auto mode : {QIODevice::ReadOnly, QIODevice::WriteOnly, QIODevice::ReadWrite}) {
        PlainFile file(at(u"link"_s));
        EXPECT_FALSE(file.open(mode));
        EXPECT_EQ(file.objection(), u"它是一个链接，不是文件");
    }
    EXPECT_EQ(bytes(u"precious"_s), "kept");
    PlainFile followed(at(u"link"_s), Links::Follow);
    ASSERT_TRUE(followed.open(QIODevice::ReadOnly));
    EXPECT_EQ(followed.readAll(), "kept");
}

TEST_F(APlainFile, IsNoPipeNoDeviceAndNoFolder) {
    ASSERT_EQ(mkfifo(QFile::encodeName(at(u"pipe"_s)).constData(), 0600), 0);
    EXPECT_EQ(kindOf(at(u"pipe"_s)), FileKind::Other);
    for (const auto mode : {QIODevice::ReadOnly, QIODevice::WriteOnly, QIODevice::ReadWrite})
        EXPECT_FALSE(PlainFile(at(u"pipe"_s)).open(mode));
    EXPECT_FALSE(PlainFile(u"/dev/null"_s, Links::Follow).open(QIODevice::WriteOnly));
    PlainFile folder(dir.path());
    EXPECT_FALSE(folder.open(QIODevice::ReadOnly));
    EXPECT_EQ(folder.objection(), u"它是一个文件夹");
    EXPECT_EQ(kindOf(dir.path()), FileKind::Folder);
}

TEST_F(APlainFile, WithASecondNameIsTold) {
    write(u"one"_s, "x");
    EXPECT_EQ(kindOf(at(u"one"_s)), FileKind::Plain);
    ASSERT_EQ(::link(QFile::encodeName(at(u"one"_s)).constData(), QFile::encodeName(at(u"two"_s)).constData()), 0);
    EXPECT_EQ(kindOf(at(u"one"_s)), FileKind::Shared);
    EXPECT_TRUE(isOwn(at(u"one"_s)));
    PlainFile opened(at(u"one"_s));
    ASSERT_TRUE(opened.open(QIODevice::ReadWrite));
    EXPECT_FALSE(isOwnAlone(opened));
    QFile::remove(at(u"two"_s));
    EXPECT_TRUE(isOwnAlone(opened));
}

TEST_F(APlainFile, IsClosedToOthersAndWhatIsNotOursStaysAsItIs) {
    const auto mode = [this](const QString& name) {
        struct stat info = {};
        stat(QFile::encodeName(at(name)).constData(), &info);
        return info.st_mode & 0777;
    };
    const auto loose = [this](const QString& name, mode_t rights) {
        chmod(QFile::encodeName(at(name)).constData(), rights);
    };
    for (const QString& name : {u"own"_s, u"precious"_s, u"one"_s, u"others"_s})
        write(name, "x");
    QDir(dir.path()).mkdir(u"folder"_s);
    QFile::link(at(u"precious"_s), at(u"link"_s));
    ASSERT_EQ(::link(QFile::encodeName(at(u"one"_s)).constData(), QFile::encodeName(at(u"two"_s)).constData()), 0);
    for (const QString& name : {u"own"_s, u"precious"_s, u"one"_s, u"others"_s})
        loose(name, 0644);
    loose(u"folder"_s, 0775);
    const bool canGive = chown(QFile::encodeName(at(u"others"_s)).constData(), 65534, 65534) == 0;
    for (const QString& name : {u"own"_s, u"folder"_s, u"link"_s, u"two"_s, u"others"_s, u"none"_s})
        closeToOthers(at(name));
    EXPECT_EQ(mode(u"own"_s), 0600U);
    EXPECT_EQ(mode(u"folder"_s), 0700U);
    for (const QString& name : {u"precious"_s, u"one"_s})
        EXPECT_EQ(mode(name), 0644U) << name.toStdString();
    EXPECT_EQ(mode(u"others"_s), canGive ? 0644U : 0600U);
    loose(u"own"_s, 0444);
    closeToOthers(at(u"own"_s));
    EXPECT_EQ(mode(u"own"_s), 0400U); // what its owner may not do stays
}

} // namespace
} // namespace qinghe::testing
