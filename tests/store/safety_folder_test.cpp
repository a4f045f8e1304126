#include "runtime/runtime_error.h"
#include "store/safety_folder.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class SafetyFolder : public ::testing::Test {
protected:
    void refuses() const { EXPECT_THROW(readySafetyFolder(book), RuntimeError); }

    QTemporaryDir dir;
    QString book = dir.filePath(u"data.dll"_s);
    QString folder = dir.filePath(u"安全副本"_s);
};

TEST_F(SafetyFolder, IsMadeForItsOwnerAndTakenFromOthers) {
    EXPECT_EQ(safetyFolderOf(book), folder);
    for (int again = 0; again < 2; ++again) {
        EXPECT_EQ(readySafetyFolder(book), folder);
        struct stat info = {};
        ASSERT_EQ(stat(QFile::encodeName(folder).constData(), &info), 0);
        EXPECT_EQ(info.st_mode & 0777, 0700U);
        chmod(QFile::encodeName(folder).constData(), 0777);
    }
}

TEST_F(SafetyFolder, IsNoFileAndNoLink) {
    QFile::link(dir.path(), folder);
    refuses();
    QFile::remove(folder);
    ASSERT_TRUE(QFile(folder).open(QIODevice::WriteOnly));
    refuses();
}

TEST_F(SafetyFolder, GivesNamesThatAreFree) {
    readySafetyFolder(book);
    const QDateTime when(QDate(2024, 11, 18), QTime(20, 36, 8));
    const QString first = nameInSafety(book, when, u"初始化以前"_s, u".dat"_s);
    EXPECT_EQ(first, folder + u"/2024-11-18 203608 初始化以前.dat"_s);
    ASSERT_TRUE(QFile(first).open(QIODevice::WriteOnly));
    EXPECT_EQ(nameInSafety(book, when, u"初始化以前"_s, u".dat"_s),
              folder + u"/2024-11-18 203608 初始化以前（2）.dat"_s);
}

} // namespace
} // namespace qinghe::testing
