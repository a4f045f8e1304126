#include "disk/durable.h"
#include "disk/plain_file.h"
#include "support/small_disk.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class AReservedFile : public ::testing::Test {
protected:
    AReservedFile() {
        EXPECT_TRUE(file.open(QIODevice::ReadWrite | QIODevice::Unbuffered));
        file.write("abc");
    }
    QByteArray content() {
        file.seek(0);
        return file.readAll();
    }

    QTemporaryDir dir;
    PlainFile file{dir.filePath(u"a"_s)};
};

TEST_F(AReservedFile, HasTheRoomAndStaysAsItIs) {
    ASSERT_TRUE(reserve(file, 20000));
    struct stat info = {};
    ASSERT_EQ(fstat(file.handle(), &info), 0);
    EXPECT_GE(info.st_blocks * 512, 20000);
    EXPECT_EQ(content(), "abc");
}

TEST_F(AReservedFile, IsAsItWasWhenThereIsNoRoom) {
    const SmallDisk disk(10000);
    EXPECT_FALSE(reserve(file, 20000));
    EXPECT_EQ(content(), "abc");
}

TEST(Names, CountAsDurableWhereFoldersCannotBeSynced) {
    const QTemporaryDir dir;
    EXPECT_TRUE(makeNamesDurable(dir.path()));
    EXPECT_TRUE(makeNamesDurable(u"/proc/self"_s)); // answers that it cannot
}

} // namespace
} // namespace qinghe::testing
