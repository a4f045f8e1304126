#include "store/failing_disk.h"
#include "store/header_toggle.h"
#include "store/store_fixture.h"
#include "support/ordinary_user.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace qinghe {
namespace {

class DamagedFile : public StoreTest {
protected:
    int opening(const QString& named = u"data.dll"_s) {
        return errorOf([&] { control.open(u"srb"_s); }, named);
    }
    void fill(int rows) {
        Recordset& set = control.open(u"srb"_s);
        for (int i = 0; i < rows; ++i)
            add(set, {{u"项目"_s, u"第 %1 行，一些文字"_s.arg(i)}, {u"金额"_s, i}});
        store.close();
    }
};

constexpr auto ReadOnly = QFile::ReadOwner | QFile::ReadUser;
constexpr auto Writable = ReadOnly | QFile::WriteOwner | QFile::WriteUser;
constexpr auto Enter = QFile::ExeOwner | QFile::ExeUser;

TEST_F(DamagedFile, MissingFileIsNamedAndNotMade) {
    ASSERT_TRUE(QFile::remove(path()));
    EXPECT_EQ(opening(), RuntimeError::FileNotFound);
    EXPECT_FALSE(QFile::exists(path()));
}

TEST_F(DamagedFile, MissingFolderIsNamed) {
    control.setConnectionString(connectionText(folder.filePath(u"没有"_s)));
    EXPECT_EQ(errorOf([&] { control.refresh(); }, u"没有"_s), RuntimeError::FileNotFound);
}

TEST_F(DamagedFile, FolderInItsPlaceIsNoFile) {
    ASSERT_TRUE(QFile::remove(path()));
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"data.dll"_s));
    EXPECT_EQ(opening(), RuntimeError::FileNotFound);
}

TEST_F(DamagedFile, ForeignFileIsNoStore) {
    setFileBytes(QByteArray("This is a letter to my aunt. ").repeated(200));
    EXPECT_EQ(opening(), RuntimeError::StoreFailure);
}

TEST_F(DamagedFile, EmptyAndTinyFilesAreNoStores) {
    for (const QByteArray& bytes : {QByteArray(), QByteArray("x"), QByteArray("S\x01\x00ite format 3\0", 16)}) {
        setFileBytes(bytes);
        EXPECT_EQ(opening(), RuntimeError::StoreFailure) << bytes.size();
        EXPECT_EQ(fileBytes(), bytes);
    }
}

TEST_F(DamagedFile, TruncatedFileIsToldNotRead) {
    fill(3000);
    const QByteArray whole = fileBytes();
    for (const qsizetype size : {qsizetype(50), qsizetype(100), qsizetype(1000), qsizetype(4096), whole.size() / 2}) {
        setFileBytes(whole.first(size));
        EXPECT_EQ(opening(), RuntimeError::StoreFailure) << size;
        store.close();
    }
    setFileBytes(whole);
    EXPECT_EQ(control.open(u"srb"_s).recordCount(), 3000);
}

TEST_F(DamagedFile, OverwrittenPagesAreToldNotReadAndTheFileIsOpenedAnewAfterwards) {
    fill(3000);
    const QByteArray sound = fileBytes();
    QByteArray bytes = sound;
    for (qsizetype at = 4096 * 30; at < bytes.size(); ++at)
        bytes[at] = '\xaa';
    setFileBytes(bytes);
    const int before = store.generation();
    EXPECT_EQ(opening(), RuntimeError::StoreFailure);
    EXPECT_NE(store.generation(), before);
    setFileBytes(sound);
    EXPECT_EQ(control.open(u"srb"_s).recordCount(), 3000);
}

TEST_F(DamagedFile, FileWithoutOurTablesIsNamedByTheMissingTable) {
    OtherProgram(path()).run(u"DROP TABLE srb"_s);
    EXPECT_EQ(opening(u"“srb”"_s), RuntimeError::QueryFailure);
    EXPECT_EQ(control.open(u"zcb"_s).recordCount(), 0);
}

TEST_F(DamagedFile, TableWithOtherKindsIsRefused) {
    OtherProgram(path()).run(u"DROP TABLE srb; CREATE TABLE srb (编号 VARCHAR(20))"_s);
    EXPECT_EQ(opening(u"VARCHAR(20)"_s), RuntimeError::StoreFailure);
}

TEST_F(DamagedFile, TriggersThatCameWithTheFileDoNotRun) {
    OtherProgram(path()).run(u"CREATE TRIGGER t AFTER INSERT ON srb BEGIN DELETE FROM yhb; END;"
                             "INSERT INTO yhb (用户名) VALUES ('甲')"_s);
    addIncome(u"2024-5-3"_s, u"工资"_s, 1);
    EXPECT_EQ(control.open(u"yhb"_s).recordCount(), 1);
}

TEST_F(DamagedFile, FileReplacedByAnotherIsNotWrittenThroughOldRowsAndIsReadAnew) {
    fill(2);
    control.open(u"srb"_s);
    second.open(u"srb"_s);
    const QString other = folder.filePath(u"other.dll"_s);
    createStore(other);
    OtherProgram(other).run(u"INSERT INTO srb (项目) VALUES ('新'), ('新')"_s);
    ASSERT_EQ(rename(other.toLocal8Bit().constData(), path().toLocal8Bit().constData()), 0);
    EXPECT_EQ(errorOf([&] { control.recordset().deleteCurrent(); }, u"换掉"_s), RuntimeError::StoreFailure);
    EXPECT_EQ(column(control.open(u"srb"_s), u"项目"_s), QStringList({u"新"_s, u"新"_s}));
    EXPECT_EQ(errorOf([&] { second.recordset().deleteCurrent(); }, u"换掉"_s), RuntimeError::StoreFailure);
    store.close();
    EXPECT_EQ(OtherProgram(path()).row(u"SELECT count(*) FROM srb"_s), u"2"_s);
}

TEST_F(DamagedFile, FileReplacedInTheMiddleOfTheWorkIsNotWritten) {
    fill(2);
    control.open(u"srb"_s).deleteCurrent();
    const QString other = folder.filePath(u"other.dll"_s);
    createStore(other);
    ASSERT_EQ(rename(other.toLocal8Bit().constData(), path().toLocal8Bit().constData()), 0);
    EXPECT_EQ(errorOf([&] { store.commit(); }, u"换掉"_s), RuntimeError::StoreFailure);
    addIncome(u"2024-5-3"_s, u"新"_s, 1);
    store.commit();
    EXPECT_EQ(OtherProgram(path()).row(u"SELECT 项目 FROM srb"_s), u"新"_s);
}

TEST_F(DamagedFile, FileRemovedWhileOpenIsMissed) {
    fill(2);
    control.open(u"srb"_s);
    ASSERT_TRUE(QFile::remove(path()));
    EXPECT_EQ(opening(), RuntimeError::FileNotFound);
    EXPECT_FALSE(QFile::exists(path()));
}

TEST_F(DamagedFile, FileCopiedOverAfterClosingIsReadAnew) {
    const QByteArray empty = fileBytes();
    fill(200);
    const QByteArray filled = fileBytes();
    EXPECT_EQ(control.open(u"srb"_s).recordCount(), 200);
    store.close();
    setFileBytes(empty + filled.last(50)); // a longer tail does no harm
    EXPECT_EQ(control.open(u"srb"_s).recordCount(), 0);
    store.close();
    setFileBytes(filled + 'x');
    EXPECT_EQ(control.open(u"srb"_s).recordCount(), 200);
    addIncome(u"2024-5-3"_s, u"甲"_s, 1);
    store.close();
    EXPECT_EQ(OtherProgram(path()).row(u"PRAGMA integrity_check"_s), u"ok"_s);
}

TEST_F(DamagedFile, FileThatMayNotBeWrittenIsRefusedBeforeTheFirstRow) {
    const testing::AsOrdinaryUser user({folder.path(), path()});
    ASSERT_TRUE(QFile::setPermissions(path(), ReadOnly));
    EXPECT_EQ(errorOf([&] { healHeader(path()); }, u"权限"_s), RuntimeError::PathFileAccess);
    EXPECT_EQ(control.open(u"srb"_s).recordCount(), 0);
    EXPECT_EQ(errorOf([&] { addIncome(u"2024-5-3"_s, u"甲"_s, 1); }, u"权限"_s), RuntimeError::PathFileAccess);
    EXPECT_FALSE(store.inTransaction());
}

TEST_F(DamagedFile, FileThatMayNotBeReadIsRefused) {
    const testing::AsOrdinaryUser user({folder.path(), path()});
    ASSERT_TRUE(QFile::setPermissions(path(), QFile::Permissions()));
    EXPECT_EQ(opening(u"权限"_s), RuntimeError::PathFileAccess);
}

TEST_F(DamagedFile, FolderThatMayNotBeWrittenHoldsTheWorkBack) {
    const testing::AsOrdinaryUser user({folder.path(), path()});
    ASSERT_TRUE(QFile::setPermissions(folder.path(), ReadOnly | Enter));
    EXPECT_EQ(errorOf(
                  [&] {
                      addIncome(u"2024-5-3"_s, u"甲"_s, 1);
                      store.commit();
                  },
                  u"权限"_s),
              RuntimeError::PathFileAccess);
    EXPECT_FALSE(store.inTransaction());
    ASSERT_TRUE(QFile::setPermissions(folder.path(), Writable | Enter));
    EXPECT_EQ(control.open(u"srb"_s).recordCount(), 0);
    addIncome(u"2024-5-3"_s, u"甲"_s, 1);
    store.close();
    EXPECT_EQ(control.open(u"srb"_s).recordCount(), 1);
}

TEST_F(DamagedFile, WhatTheDiskDoesNotReadIsToldAsThatAndNotAsDamage) {
    fill(3000);
    failing_disk::failReads(true);
    EXPECT_EQ(opening(u"再启动程序试一次"_s), RuntimeError::DeviceFailure);
    failing_disk::failReads(false);
    EXPECT_EQ(control.open(u"srb"_s).recordCount(), 3000);
    store.rest();
    OtherProgram(path()).run(u"UPDATE srb SET 账户 = 'x'"_s); // what is in memory is read again
    failing_disk::failReads(true);
    EXPECT_EQ(opening(u"再启动程序试一次"_s), RuntimeError::DeviceFailure);
    failing_disk::failReads(false);
    EXPECT_EQ(control.open(u"srb"_s).recordCount(), 3000);
}

TEST_F(DamagedFile, APlaceWithoutLocksIsNotAProgramThatHoldsTheFile) {
    failing_disk::refuseLocks(true);
    EXPECT_EQ(opening(u"加锁"_s), RuntimeError::DeviceFailure);
    failing_disk::refuseLocks(false);
    EXPECT_EQ(control.open(u"srb"_s).recordCount(), 0);
}

TEST_F(DamagedFile, ViewsInThePlaceOfTablesAreNone) {
    OtherProgram(path()).run(u"DROP TABLE srb; CREATE VIEW srb AS SELECT * FROM zcb"_s);
    EXPECT_EQ(opening(u"“srb”"_s), RuntimeError::QueryFailure);
    OtherProgram(path()).run(u"DROP VIEW srb; CREATE VIRTUAL TABLE srb USING fts5(项目)"_s);
    EXPECT_EQ(opening(u"“srb”"_s), RuntimeError::QueryFailure);
    EXPECT_EQ(errorOf([&] { control.open(u"srb_content"_s); }, u"“srb_content”"_s), RuntimeError::QueryFailure);
    EXPECT_EQ(control.open(u"zcb"_s).recordCount(), 0);
}

TEST_F(DamagedFile, WhatIsDeletedIsNotLeftInTheFile) {
    addIncome(u"2024-5-3"_s, u"密码是青禾"_s, 1);
    store.commit();
    ASSERT_TRUE(fileBytes().contains(u"密码是青禾"_s.toUtf8()));
    control.open(u"srb"_s).deleteCurrent();
    store.commit();
    EXPECT_FALSE(fileBytes().contains(u"密码是青禾"_s.toUtf8()));
}

} // namespace
} // namespace qinghe
