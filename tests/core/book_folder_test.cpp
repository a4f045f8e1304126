#include "app/book_folder.h"
#include "core_fixture.h"

namespace qinghe::testing {
namespace {

/// A program as the system's packages install it, and a home.
class BookPlace : public ::testing::Test {
protected:
    BookPlace() : m_home(qgetenv("HOME")) {
        for (const QString& name : {u"lib"_s, u"share"_s, u"home"_s, u"stick/lib/first"_s})
            QDir(dir.path()).mkpath(name);
        writeDeliveredData(installation.brought + u"/data.dll"_s);
        qputenv("HOME", QFile::encodeName(dir.filePath(u"home"_s)));
    }
    ~BookPlace() override { qputenv("HOME", m_home); }

    QString own() const { return dir.filePath(u"home/青禾家庭记账本"_s); }
    bool ownIsThere() const { return QFile::exists(own()); }

    QTemporaryDir dir;
    const Installation installation{dir.filePath(u"lib"_s), dir.filePath(u"share"_s)};

private:
    const QByteArray m_home;
};

TEST_F(BookPlace, IsTheFolderOfAProgramThatWasNotInstalled) {
    const BookFolder book = readyBookFolder(dir.filePath(u"stick"_s), installation);
    EXPECT_EQ(book.path, dir.filePath(u"stick"_s)) << "and a book that is not there is missed there";
    EXPECT_FALSE(book.trouble);
    EXPECT_FALSE(ownIsThere());
}

TEST_F(BookPlace, APortableProgramLaysItsFirstBookBesideIt) {
    writeDeliveredData(dir.filePath(u"stick/lib/first/data.dll"_s));
    const BookFolder book = readyBookFolder(dir.filePath(u"stick"_s), installation);
    EXPECT_EQ(book.path, dir.filePath(u"stick"_s));
    EXPECT_TRUE(QFile::exists(book.path + u"/data.dll"_s));
    EXPECT_FALSE(ownIsThere());
}

TEST_F(BookPlace, IsAFolderInTheHomeForTheInstalledProgram) {
    const BookFolder book = readyBookFolder(installation.program, installation);
    EXPECT_EQ(book.path, own());
    EXPECT_FALSE(book.trouble);
    EXPECT_TRUE(QFile::exists(own() + u"/data.dll"_s));
}

TEST_F(BookPlace, TheSystemsOwnIsNoFolderOfATestProgram) {
    EXPECT_EQ(readyBookFolder(QCoreApplication::applicationDirPath()).path, QCoreApplication::applicationDirPath());
}

TEST_F(BookPlace, AFolderThatCannotBeMadeIsToldInTheErrorWindow) {
    QDir(dir.filePath(u"home"_s)).removeRecursively();
    const BookFolder book = readyBookFolder(installation.program, installation);
    ASSERT_TRUE(book.trouble);
    ProgramRig rig;
    rig.start();
    rig.program->start(book.trouble);
    ASSERT_EQ(rig.messages->errors.size(), 1u);
    EXPECT_EQ(rig.messages->errors.front().first, RuntimeError::PathFileAccess);
    EXPECT_EQ(rig.exitCode(), 1);
}

} // namespace
} // namespace qinghe::testing
