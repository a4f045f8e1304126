#include "store/header_toggle.h"
#include "store/header_vfs.h"
#include "store/store_fixture.h"

#include <QFile>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace qinghe {
namespace {

class Header : public StoreTest {
protected:
    QByteArray mark() const { return fileBytes().mid(1, 2); }

    /// The file with SQLite's own letters, under another name.
    QString plainCopy() const {
        QByteArray bytes = fileBytes();
        bytes.replace(1, 2, "QL");
        QFile copy(folder.filePath(u"plain.db"_s));
        EXPECT_TRUE(copy.open(QIODevice::WriteOnly));
        copy.write(bytes);
        return copy.fileName();
    }
};

const QByteArray Healed("\x01\x00", 2);
const QByteArray Spoiled("\x00\x00", 2);

TEST_F(Header, OfANewFileIsHealed) {
    EXPECT_EQ(mark(), Healed);
    EXPECT_EQ(fileBytes().first(1), "S");
    EXPECT_EQ(fileBytes().mid(3, 13), QByteArray("ite format 3\0", 13));
}

TEST_F(Header, StaysHealedWhenRowsAreWritten) {
    addIncome(u"2024-5-3"_s, u"工资"_s, 100);
    store.commit();
    EXPECT_EQ(mark(), Healed);
}

TEST_F(Header, SpoilingAndHealingChangeTwoBytesOnly) {
    const QByteArray before = fileBytes();
    spoilHeader(path());
    EXPECT_EQ(mark(), Spoiled);
    EXPECT_EQ(fileBytes().mid(3), before.mid(3));
    healHeader(path());
    EXPECT_EQ(fileBytes(), before);
}

TEST_F(Header, OfASpoiledFileMakesItNoStore) {
    spoilHeader(path());
    EXPECT_EQ(errorOf([&] { control.open(u"srb"_s); }, u"data.dll"_s), RuntimeError::StoreFailure);
}

TEST_F(Header, SpoiledIsToldFromAForeignFile) {
    EXPECT_FALSE(headerIsSpoilt(path()));
    spoilHeader(path());
    EXPECT_TRUE(headerIsSpoilt(path()));
    EXPECT_EQ(errorOf([&] { control.open(u"srb"_s); }, u"请重新启动程序"_s), RuntimeError::StoreFailure);
    setFileBytes(QByteArray("S\0\0 of another kind", 19).repeated(100));
    EXPECT_FALSE(headerIsSpoilt(path()));
    EXPECT_EQ(errorOf([&] { control.open(u"srb"_s); }, u"备份文件"_s), RuntimeError::StoreFailure);
    EXPECT_FALSE(headerIsSpoilt(folder.filePath(u"no.dll"_s)));
}

TEST_F(Header, HealedAfterAFailureOpensAgainWithTheSameControl) {
    addIncome(u"2024-5-3"_s, u"工资"_s, 100);
    store.close();
    spoilHeader(path());
    EXPECT_EQ(errorOf([&] { control.open(u"srb"_s); }), RuntimeError::StoreFailure);
    healHeader(path());
    EXPECT_EQ(control.open(u"srb"_s).recordCount(), 1);
}

TEST_F(Header, SpoiledUnderAnOpenFileIsNoticedAndHealsByReopening) {
    control.open(u"srb"_s);
    spoilHeader(path());
    store.close();
    EXPECT_EQ(errorOf([&] { control.open(u"srb"_s); }), RuntimeError::StoreFailure);
    healHeader(path());
    EXPECT_EQ(control.open(u"srb"_s).recordCount(), 0);
}

TEST_F(Header, CanBeHealedWhileTheStoreIsOpen) {
    control.open(u"srb"_s);
    healHeader(path());
    addIncome(u"2024-5-3"_s, u"工资"_s, 100);
    store.close();
    EXPECT_EQ(control.open(u"srb"_s).recordCount(), 1);
}

TEST_F(Header, WithItsTwoLettersBackIsAPlainSqliteFile) {
    addIncome(u"2024-5-3"_s, u"工资"_s, 100.5);
    store.close();
    EXPECT_ANY_THROW(OtherProgram(path(), "unix").rows(u"SELECT * FROM srb"_s));
    OtherProgram plain(plainCopy(), "unix");
    EXPECT_EQ(plain.row(u"PRAGMA integrity_check"_s), u"ok"_s);
    EXPECT_EQ(plain.row(u"SELECT 时间,项目,金额 FROM srb"_s), u"2024-05-03|工资|100.5"_s);
}

TEST_F(Header, OfAPlainFileIsReadAndBecomesOursWithTheFirstWrite) {
    const QString plain = plainCopy();
    ASSERT_TRUE(QFile::remove(path()));
    ASSERT_TRUE(QFile::rename(plain, path()));
    EXPECT_EQ(control.open(u"srb"_s).recordCount(), 0);
    EXPECT_EQ(mark(), "QL");
    addIncome(u"2024-5-3"_s, u"工资"_s, 100);
    store.commit();
    EXPECT_EQ(mark(), Healed);
}

TEST_F(Header, TogglesMakeNoFile) {
    const QString missing = folder.filePath(u"no.dll"_s);
    EXPECT_EQ(errorOf([&] { healHeader(missing); }, u"no.dll"_s), RuntimeError::FileNotFound);
    EXPECT_EQ(errorOf([&] { spoilHeader(missing); }, u"no.dll"_s), RuntimeError::FileNotFound);
    EXPECT_FALSE(QFile::exists(missing));
}

TEST_F(Header, TogglesRefuseAFolder) {
    EXPECT_EQ(errorOf([&] { healHeader(folder.path()); }), RuntimeError::PathFileAccess);
}

TEST_F(Header, TogglesLeaveWhatIsNoBookAsItIs) {
    for (const QByteArray& bytes :
         {QByteArray(), QByteArray("S"), QByteArray("SQL"), QByteArray("\xff\xd8\xff\xe0 a photo").repeated(50),
          QByteArray("SXXite format 3\0 nearly one", 27)}) {
        setFileBytes(bytes);
        EXPECT_EQ(errorOf([&] { healHeader(path()); }, u"data.dll"_s), RuntimeError::StoreFailure);
        EXPECT_EQ(errorOf([&] { spoilHeader(path()); }, u"data.dll"_s), RuntimeError::StoreFailure);
        EXPECT_EQ(fileBytes(), bytes);
    }
}

TEST_F(Header, TogglesReachABookThatIsAPlainFileBehindALinkOfItsOwner) {
    const QString real = folder.filePath(u"elsewhere"_s);
    ASSERT_TRUE(QFile::rename(path(), real) && QFile::link(real, path()));
    spoilHeader(path());
    EXPECT_EQ(mark(), Spoiled);
    healHeader(path());
    EXPECT_EQ(control.open(u"srb"_s).recordCount(), 0);
}

TEST_F(Header, TogglesWaitForNoPipe) {
    ASSERT_TRUE(QFile::remove(path()));
    ASSERT_EQ(mkfifo(QFile::encodeName(path()).constData(), 0600), 0);
    EXPECT_EQ(errorOf([&] { healHeader(path()); }), RuntimeError::PathFileAccess);
}

TEST_F(Header, ShimOffersNoWriteAheadLog) {
    OtherProgram other(path());
    EXPECT_EQ(other.row(u"PRAGMA journal_mode = WAL"_s), u"delete"_s);
}

TEST(HeaderVfs, IsRegisteredOnce) {
    EXPECT_EQ(sqlite3_vfs_find(headerVfsName()), sqlite3_vfs_find(headerVfsName()));
    EXPECT_NE(sqlite3_vfs_find(headerVfsName()), nullptr);
}

} // namespace
} // namespace qinghe
