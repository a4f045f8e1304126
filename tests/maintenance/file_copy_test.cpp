#include "maintenance/file_copy.h"
#include "qt_printing.h"
#include "runtime/runtime_error.h"
#include "support/folder_test.h"
#include "support/ordinary_user.h"
#include "support/small_disk.h"

#include <sys/stat.h>
#include <unistd.h>

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class FileCopyTest : public FolderTest {
protected:
    /// The number and the text of the run-time error that the copying ends in.
    std::pair<int, QString> copy(const QString& source, const QString& target) {
        try {
            FileCopy copying(at(source), at(target));
            copying.run([this](qint64 written) { heard.push_back(written); });
            return {};
        } catch (const RuntimeError& error) {
            return {error.number(), error.text()};
        }
    }
    void refused(const QString& source, const QString& target, int number, const QString& said) {
        const auto [found, text] = copy(source, target);
        EXPECT_EQ(found, number);
        EXPECT_TRUE(text.contains(said)) << qPrintable(text);
        EXPECT_TRUE(heard.empty());
    }
    void alias(int (*make)(const char*, const char*), const QString& target, const QString& name) const {
        ASSERT_EQ(make(QFile::encodeName(at(target)).constData(), QFile::encodeName(at(name)).constData()), 0);
    }

    std::vector<qint64> heard;
};

QByteArray patterned(qsizetype size) {
    QByteArray bytes(size, Qt::Uninitialized);
    for (qsizetype i = 0; i < size; ++i)
        bytes[i] = static_cast<char>(i * 7 + i / 251);
    return bytes;
}

TEST_F(FileCopyTest, ANewTargetGetsOneByteMoreTheLastOneTwice) {
    write(u"a"_s, "abc");
    copy(u"a"_s, u"b.dat"_s);
    EXPECT_EQ(bytes(u"b.dat"_s), "abcc");
    EXPECT_EQ(bytes(u"a"_s), "abc");
}

TEST_F(FileCopyTest, ALongerTargetKeepsItsTail) {
    write(u"a"_s, "abc");
    write(u"b.dat"_s, "0123456789");
    copy(u"a"_s, u"b.dat"_s);
    EXPECT_EQ(bytes(u"b.dat"_s), "abcc456789");
}

TEST_F(FileCopyTest, ATargetOfTheSameLengthGrowsByOne) {
    write(u"a"_s, "abc");
    write(u"b.dat"_s, "012");
    copy(u"a"_s, u"b.dat"_s);
    EXPECT_EQ(bytes(u"b.dat"_s), "abcc");
}

TEST_F(FileCopyTest, ASecondCopyOverwritesFromTheBeginning) {
    write(u"a"_s, "abc");
    copy(u"a"_s, u"b.dat"_s);
    write(u"a"_s, "xyz");
    copy(u"a"_s, u"b.dat"_s);
    EXPECT_EQ(bytes(u"b.dat"_s), "xyzz");
}

TEST_F(FileCopyTest, EveryLengthRoundAPieceIsCopiedWhole) {
    for (const qsizetype size : {1, (1 << 20) - 1, 1 << 20, (1 << 20) + 1, (3 << 20) + 12345}) {
        const QByteArray whole = patterned(size);
        write(u"a"_s, whole);
        QFile::remove(at(u"b.dat"_s));
        EXPECT_EQ(copy(u"a"_s, u"b.dat"_s).first, 0);
        EXPECT_TRUE(bytes(u"b.dat"_s) == whole + whole.last(1)) << size;
    }
}

TEST_F(FileCopyTest, AllBytesAreCopiedAsTheyAre) {
    QByteArray all(256, Qt::Uninitialized);
    for (int i = 0; i < 256; ++i)
        all[i] = static_cast<char>(i);
    all += QByteArray("\r\n\x1a\n\0\0", 6);
    write(u"a"_s, all);
    copy(u"a"_s, u"b.dat"_s);
    EXPECT_EQ(bytes(u"b.dat"_s), all + '\0');
}

TEST_F(FileCopyTest, ProgressRisesToOneByteBeyondTheLength) {
    const qint64 length = (5 << 20) + 3;
    write(u"a"_s, QByteArray(length, 'a'));
    FileCopy copying(at(u"a"_s), at(u"b.dat"_s));
    EXPECT_EQ(copying.length(), length);
    copying.run([this](qint64 written) { heard.push_back(written); });
    EXPECT_GT(heard.size(), 5u);
    EXPECT_TRUE(std::is_sorted(heard.begin(), heard.end()));
    EXPECT_EQ(heard.back(), length + 1);
}

TEST_F(FileCopyTest, ANewTargetIsReadAndWrittenByItsOwnerAlone) {
    write(u"a"_s, "abc");
    copy(u"a"_s, u"b.dat"_s);
    const auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    EXPECT_FALSE(QFile::permissions(at(u"b.dat"_s)) & others);
    EXPECT_TRUE(QFile::permissions(at(u"b.dat"_s)) & QFile::WriteOwner);
}

TEST_F(FileCopyTest, AMissingSourceIsToldAndNothingIsMade) {
    refused(u"none.dat"_s, u"b.dat"_s, RuntimeError::FileNotFound, u"none.dat"_s);
    EXPECT_EQ(bytes(u"b.dat"_s), "(missing)");
}

TEST_F(FileCopyTest, AnEmptySourceIsToldAndTheTargetStays) {
    write(u"a"_s, {});
    write(u"b.dat"_s, "0123");
    refused(u"a"_s, u"b.dat"_s, RuntimeError::PathFileAccess, u"空"_s);
    EXPECT_EQ(bytes(u"b.dat"_s), "0123");
}

TEST_F(FileCopyTest, AFolderIsNoFile) {
    write(u"a"_s, "abc");
    ASSERT_TRUE(QDir(dir.path()).mkdir(u"folder"_s));
    refused(u"folder"_s, u"a"_s, RuntimeError::PathFileAccess, u"文件夹"_s);
    refused(u"a"_s, u"folder"_s, RuntimeError::PathFileAccess, u"文件夹"_s);
    EXPECT_EQ(bytes(u"a"_s), "abc");
}

TEST_F(FileCopyTest, WhatWouldKeepItsReaderWaitingIsRefused) {
    write(u"a"_s, "abc");
    ASSERT_EQ(mkfifo(QFile::encodeName(at(u"pipe"_s)).constData(), 0600), 0);
    refused(u"pipe"_s, u"a"_s, RuntimeError::PathFileAccess, u"普通文件"_s);
    refused(u"a"_s, u"pipe"_s, RuntimeError::PathFileAccess, u"普通文件"_s);
    ASSERT_TRUE(QFile::link(u"/dev/zero"_s, at(u"zero"_s)));
    refused(u"zero"_s, u"a"_s, RuntimeError::PathFileAccess, u"普通文件"_s);
    EXPECT_EQ(bytes(u"a"_s), "abc");
}

TEST_F(FileCopyTest, TheSameFileIsRefusedUnderEveryName) {
    write(u"a"_s, "abc");
    alias(symlink, u"a"_s, u"soft"_s);
    alias(link, u"a"_s, u"hard"_s);
    ASSERT_TRUE(QDir(dir.path()).mkdir(u"sub"_s));
    for (const QStringView name : {u"a", u"soft", u"hard", u"sub/../a", u"./a"}) {
        refused(u"a"_s, name.toString(), RuntimeError::PathFileAccess, u"同一个文件"_s);
        refused(name.toString(), u"a"_s, RuntimeError::PathFileAccess, u"同一个文件"_s);
    }
    EXPECT_EQ(bytes(u"a"_s), "abc");
}

TEST_F(FileCopyTest, AFolderThatIsNotThereIsTold) {
    write(u"a"_s, "abc");
    refused(u"a"_s, u"none/b.dat"_s, RuntimeError::PathNotFound, u"none"_s);
}

TEST_F(FileCopyTest, WhatMayNotBeReadOrWrittenIsTold) {
    write(u"a"_s, "abc");
    write(u"closed"_s, "0123");
    const AsOrdinaryUser user({dir.path(), at(u"a"_s), at(u"closed"_s)});
    ASSERT_TRUE(QFile::setPermissions(at(u"closed"_s), QFile::Permissions()));
    refused(u"closed"_s, u"b.dat"_s, RuntimeError::PathFileAccess, u"权限"_s);
    refused(u"a"_s, u"closed"_s, RuntimeError::PathFileAccess, u"权限"_s);
    ASSERT_TRUE(QFile::setPermissions(dir.path(), QFile::ReadOwner | QFile::ExeOwner));
    refused(u"a"_s, u"b.dat"_s, RuntimeError::PathFileAccess, u"权限"_s);
    ASSERT_TRUE(QFile::setPermissions(dir.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}

TEST_F(FileCopyTest, ATargetThatWouldNotTakeAllIsRefusedAndStaysAsItWas) {
    const QByteArray whole = patterned(3 << 20);
    write(u"a"_s, whole);
    write(u"old.dat"_s, whole.first(1000));
    const SmallDisk disk((2 << 20) + 777);
    refused(u"a"_s, u"b.dat"_s, RuntimeError::DiskFull, u"b.dat"_s);
    refused(u"a"_s, u"old.dat"_s, RuntimeError::DiskFull, u"原来的内容都还在"_s);
    EXPECT_EQ(bytes(u"b.dat"_s), "(missing)");
    EXPECT_TRUE(bytes(u"old.dat"_s) == whole.first(1000));
}

TEST_F(FileCopyTest, RoomIsTakenForTheByteBehindTheEndToo) {
    write(u"a"_s, QByteArray(5000, 'a'));
    const SmallDisk disk(5000);
    EXPECT_EQ(copy(u"a"_s, u"b.dat"_s).first, RuntimeError::DiskFull);
}

TEST_F(FileCopyTest, ADiskThatFailsInTheMidstIsToldToHaveLeftAHalf) {
    const QByteArray whole = patterned(3 << 20);
    write(u"a"_s, whole);
    FileCopy copying(at(u"a"_s), at(u"b.dat"_s));
    const SmallDisk disk((2 << 20) + 777);
    try {
        copying.run([](qint64) {});
        FAIL();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), RuntimeError::DiskFull);
        EXPECT_TRUE(error.text().contains(u"没有写完"_s) && error.text().contains(u"b.dat"_s));
    }
    EXPECT_TRUE(bytes(u"b.dat"_s) == whole.first((2 << 20) + 777));
}

TEST_F(FileCopyTest, ATargetThatIsALinkOrHasASecondNameIsRefusedAndWhatItLeadsToStays) {
    write(u"a"_s, "abc");
    write(u"precious"_s, "kept");
    alias(symlink, u"precious"_s, u"soft.dat"_s);
    alias(symlink, u"none"_s, u"dangling.dat"_s);
    alias(link, u"precious"_s, u"hard.dat"_s);
    refused(u"a"_s, u"soft.dat"_s, RuntimeError::PathFileAccess, u"是一个链接"_s);
    refused(u"a"_s, u"dangling.dat"_s, RuntimeError::PathFileAccess, u"是一个链接"_s);
    refused(u"a"_s, u"hard.dat"_s, RuntimeError::PathFileAccess, u"还有一个名字"_s);
    EXPECT_EQ(bytes(u"precious"_s), "kept");
    EXPECT_EQ(bytes(u"none"_s), "(missing)");
}

TEST_F(FileCopyTest, ASourceMayBeALinkSinceItIsOnlyRead) {
    write(u"a"_s, "abc");
    alias(symlink, u"a"_s, u"soft"_s);
    EXPECT_EQ(copy(u"soft"_s, u"b.dat"_s).first, 0);
    EXPECT_EQ(bytes(u"b.dat"_s), "abcc");
}

TEST_F(FileCopyTest, AFileOfAnotherAccountIsRefused) {
    write(u"a"_s, "abc");
    write(u"b.dat"_s, "0123");
    if (chown(QFile::encodeName(at(u"b.dat"_s)).constData(), 12345, 12345) != 0)
        return; // only the administrator can lay one there
    refused(u"a"_s, u"b.dat"_s, RuntimeError::PathFileAccess, u"另一个账户"_s);
    EXPECT_EQ(bytes(u"b.dat"_s), "0123");
}

TEST_F(FileCopyTest, AnOlderTargetIsClosedToOthersBeforeTheFirstByte) {
    write(u"a"_s, "abc");
    write(u"b.dat"_s, "0123");
    const auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    ASSERT_TRUE(QFile::setPermissions(at(u"b.dat"_s), QFile::ReadOwner | QFile::WriteOwner | others));
    const FileCopy copying(at(u"a"_s), at(u"b.dat"_s));
    EXPECT_FALSE(QFile::permissions(at(u"b.dat"_s)) & others);
    EXPECT_EQ(bytes(u"b.dat"_s), "0123");
}

} // namespace
} // namespace qinghe::testing
