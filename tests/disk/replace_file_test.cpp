#include "disk/replace_file.h"
#include "runtime/runtime_error.h"
#include "support/folder_test.h"
#include "support/small_disk.h"

#include <sys/stat.h>

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class AReplacedFile : public FolderTest {
protected:
    QStringList names() const {
        return QDir(dir.path()).entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name);
    }
    template<typename Call>
    static int errorOf(Call call) {
        try {
            call();
        } catch (const RuntimeError& error) {
            return error.number();
        }
        return 0;
    }
};

TEST_F(AReplacedFile, IsWholeForItsOwnerAloneAndLeavesNothingBesideIt) {
    const mode_t before = umask(0);
    replaceFile(at(u"a"_s), "one");
    replaceFile(at(u"a"_s), "two");
    umask(before);
    EXPECT_EQ(bytes(u"a"_s), "two");
    EXPECT_EQ(names(), QStringList{u"a"_s});
    struct stat info = {};
    ASSERT_EQ(stat(QFile::encodeName(at(u"a"_s)).constData(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777, 0600U);
}

TEST_F(AReplacedFile, StaysAsItWasOnAFullDisk) {
    replaceFile(at(u"a"_s), "old");
    const SmallDisk disk(1000);
    EXPECT_EQ(errorOf([this] { replaceFile(at(u"a"_s), QByteArray(5000, 'x')); }), RuntimeError::DiskFull);
    EXPECT_EQ(bytes(u"a"_s), "old");
    EXPECT_EQ(names(), QStringList{u"a"_s});
}

TEST_F(AReplacedFile, IsCalledByItsOwnNameWhenItCannotBeWritten) {
    const auto said = [](const QString& path) {
        try {
            replaceFile(path, QByteArray(5000, 'x'));
        } catch (const RuntimeError& error) {
            return error.text();
        }
        return QString();
    };
    EXPECT_TRUE(said(at(u"none/a"_s)).contains(at(u"none/a"_s)));
    const SmallDisk disk(1000);
    EXPECT_TRUE(said(at(u"a"_s)).contains(at(u"a"_s)));
}

TEST_F(AReplacedFile, StaysAsItWasWhenItsContentCannotBeMade) {
    replaceFile(at(u"a"_s), "old");
    EXPECT_EQ(errorOf([this] {
                  replaceFile(at(u"a"_s), [](QFile& file) {
                      file.write("half");
                      throw RuntimeError(RuntimeError::DeviceFailure, u"x"_s);
                  });
              }),
              RuntimeError::DeviceFailure);
    EXPECT_EQ(bytes(u"a"_s), "old");
    EXPECT_EQ(names(), QStringList{u"a"_s});
}

TEST_F(AReplacedFile, TakesThePlaceOfALinkAndNotOfWhatItLeadsTo) {
    replaceFile(at(u"precious"_s), "kept");
    QFile::link(at(u"precious"_s), at(u"a"_s));
    replaceFile(at(u"a"_s), "new");
    EXPECT_EQ(bytes(u"precious"_s), "kept");
    EXPECT_EQ(bytes(u"a"_s), "new");
}

TEST_F(AReplacedFile, TakesNotThePlaceOfAFolder) {
    QDir(dir.path()).mkdir(u"a"_s);
    EXPECT_EQ(errorOf([this] { replaceFile(at(u"a"_s), "new"); }), RuntimeError::PathFileAccess);
    EXPECT_TRUE(QDir(at(u"a"_s)).exists());
    EXPECT_TRUE(names().isEmpty());
}

TEST_F(AReplacedFile, ClearsAwayWhatAKilledAttemptLeft) {
    QString left;
    replaceFile(at(u"a"_s), [&left](QFile& file) { left = file.fileName(); });
    {
        QFile file(left);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("half of it");
    }
    EXPECT_FALSE(QDir(dir.path()).entryList({UnfinishedFiles.toString()}, QDir::Files | QDir::Hidden).isEmpty());
    replaceFile(at(u"a"_s), "whole");
    EXPECT_EQ(bytes(u"a"_s), "whole");
    EXPECT_EQ(names(), QStringList{u"a"_s});
}

TEST_F(AReplacedFile, TakesTheWholeOfAnotherThatIsAPlainOneOrLeadsToOne) {
    const QByteArray content = QByteArray("0123456789").repeated(100'000); // many pieces
    write(u"book"_s, content);
    QFile::link(at(u"book"_s), at(u"link"_s));
    for (const QString& source : {u"book"_s, u"link"_s}) {
        replaceFile(at(u"a"_s), [&](QFile& file) { writeWholeFile(file, at(source)); });
        EXPECT_EQ(bytes(u"a"_s), content);
    }
    ASSERT_EQ(mkfifo(QFile::encodeName(at(u"pipe"_s)).constData(), 0600), 0);
    for (const QString& source : {u"none"_s, u"pipe"_s})
        EXPECT_EQ(errorOf([&] { replaceFile(at(u"a"_s), [&](QFile& file) { writeWholeFile(file, at(source)); }); }),
                  RuntimeError::PathFileAccess);
    EXPECT_EQ(bytes(u"a"_s), content);
}

} // namespace
} // namespace qinghe::testing
