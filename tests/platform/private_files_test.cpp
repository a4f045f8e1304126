#include "platform/private_files.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

TEST(PrivateFiles, WhatIsMadeIsForItsOwnerAloneAndOtherProgramsKeepTheirHabits) {
    const QTemporaryDir dir;
    const auto rightsOfNew = [&dir](const QString& name) {
        QFile file(dir.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        struct stat info = {};
        EXPECT_EQ(fstat(file.handle(), &info), 0);
        return info.st_mode & 0777;
    };
    const mode_t before = umask(022);
    keepNewFilesPrivate();
    EXPECT_EQ(rightsOfNew(u"ours"_s), 0600U);
    {
        const AccountsOwnHabits habits;
        EXPECT_EQ(rightsOfNew(u"theirs"_s), 0644U);
    }
    EXPECT_EQ(rightsOfNew(u"ours again"_s), 0600U);
    umask(before);
}

} // namespace
} // namespace qinghe::testing
