#include "store/copies.h"
#include "store/header_toggle.h"
#include "store/safety_copy.h"
#include "store/safety_folder.h"
#include "store/safety_upkeep.h"
#include "store/store_fixture.h"
#include "support/ordinary_user.h"
#include "support/small_disk.h"

#include <QFile>

#include <atomic>
#include <sys/stat.h>
#include <thread>

namespace qinghe {
namespace {

using qinghe::testing::AsOrdinaryUser;
using qinghe::testing::SmallDisk;

const QByteArray Healed("S\x01\x00ite format 3\0", 16);

class SafetyCopies : public StoreTest {
protected:
    static SafetyStamp stamp(const QString& occasion = u"每日"_s) {
        return {QDateTime(QDate(2024, 11, 18), QTime(20, 36, 8)), occasion};
    }
    QString safetyFolder() const { return safetyFolderOf(path()); }
    QStringList kept() const {
        return QDir(safetyFolder()).entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name);
    }
    /// Rows with a text of some length each.
    void fill(int rows, int length = 20) {
        Recordset& set = control.open(u"srb"_s);
        for (int i = 0; i < rows; ++i)
            add(set, {{u"项目"_s, QString(length, u'字')}, {u"金额"_s, i}});
        store.commit();
    }
    void makeBig() { fill(3000, 1500); }
    /// What a file in the form of a backup holds.
    static QString count(const QString& copy) {
        return OtherProgram(copy).row(u"select count(*), sum(金额) from srb"_s);
    }
    /// The middle of the file is not what it was.
    void damage() {
        store.close();
        QByteArray bytes = fileBytes();
        bytes.replace(bytes.size() / 2, 4096, QByteArray(4096, '\xff'));
        setFileBytes(bytes);
    }
};

TEST_F(SafetyCopies, ACopyHasTheFormOfABackupForItsOwnerAlone) {
    fill(30);
    const SafetyCopy copy = keepCopy(path(), stamp(), IfDamaged::Tell);
    EXPECT_TRUE(copy.isSound);
    EXPECT_EQ(kept(), QStringList{u"2024-11-18 203608 每日.dat"_s});
    EXPECT_EQ(copy.path, safetyFolder() + u"/2024-11-18 203608 每日.dat"_s);
    EXPECT_EQ(count(copy.path), u"30|435"_s);
    QFile file(copy.path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), fileBytes());
    EXPECT_TRUE(fileBytes().startsWith(Healed));
    struct stat info = {};
    ASSERT_EQ(stat(QFile::encodeName(copy.path).constData(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777, 0600U);
}

TEST_F(SafetyCopies, AWriterInTheMidstMakesTheCopyBeginAnewAndNeverMixed) {
    makeBig();
    int commits = 0;
    const auto write = [&] { // every amount of the table: a mixed copy would hold two
        Recordset& set = control.open(u"srb"_s);
        const int amount = ++commits;
        for (; !set.eof(); set.moveNext()) {
            set.field(u"金额"_s).setValue(amount);
            set.update();
        }
        store.commit();
    };
    write();
    std::atomic<bool> done = false;
    QString copy;
    std::thread thread([&] {
        copy = keepCopy(path(), stamp(), IfDamaged::Tell).path;
        done = true;
    });
    while (!done && commits < 20)
        write();
    thread.join();
    EXPECT_EQ(OtherProgram(copy).rows(u"select distinct 金额 from srb"_s).size(), 1);
    EXPECT_EQ(OtherProgram(copy).row(u"pragma integrity_check"_s), u"ok"_s);
}

TEST_F(SafetyCopies, ACopyingThatIsToldToStopLeavesNothing) {
    makeBig();
    std::stop_source stop;
    stop.request_stop();
    EXPECT_THROW(keepCopy(path(), stamp(), IfDamaged::Tell, stop.get_token()), BrokenOff);
    EXPECT_EQ(kept(), QStringList());
}

TEST_F(SafetyCopies, AFullDiskLeavesNothingAndSaysSo) {
    makeBig();
    store.close();
    const SmallDisk disk(1'000'000);
    EXPECT_EQ(errorOf([&] { keepCopy(path(), stamp(), IfDamaged::Tell); }, u"磁盘已满"_s), RuntimeError::DiskFull);
    EXPECT_EQ(kept(), QStringList());
}

TEST_F(SafetyCopies, AFolderThatCannotBeWrittenIsTold) {
    fill(3);
    store.close();
    readySafetyFolder(path());
    QFile::setPermissions(safetyFolder(), QFile::ReadOwner | QFile::ExeOwner);
    {
        const AsOrdinaryUser user({folder.path(), path()});
        EXPECT_EQ(errorOf([&] { keepCopy(path(), stamp(), IfDamaged::Tell); }, u"安全副本"_s),
                  RuntimeError::PathFileAccess);
    }
}

TEST_F(SafetyCopies, AFileOrALinkInThePlaceOfTheFolderIsToldAndStays) {
    QTemporaryDir elsewhere;
    ASSERT_TRUE(QFile::link(elsewhere.path(), safetyFolder()));
    EXPECT_EQ(errorOf([&] { keepCopy(path(), stamp(), IfDamaged::Tell); }, u"链接"_s), RuntimeError::PathFileAccess);
    removeOutdatedCopies(path(), QDate(2090, 1, 1));
    EXPECT_TRUE(safetyFiles(path()).empty());
    EXPECT_TRUE(QDir(elsewhere.path()).isEmpty());
    ASSERT_TRUE(QFile::remove(safetyFolder()));
    ASSERT_TRUE(QFile(safetyFolder()).open(QIODevice::WriteOnly));
    EXPECT_EQ(errorOf([&] { keepCopy(path(), stamp(), IfDamaged::Tell); }, u"不是文件夹"_s),
              RuntimeError::PathFileAccess);
}

TEST_F(SafetyCopies, ADamagedBookIsToldAndItsCopyIsNotKept) {
    fill(3000, 200);
    damage();
    EXPECT_EQ(errorOf([&] { keepCopy(path(), stamp(), IfDamaged::Tell); }), RuntimeError::StoreFailure);
    EXPECT_EQ(kept(), QStringList());
}

TEST_F(SafetyCopies, BeforeARestoreADamagedBookIsKeptAsItIsUnderANameThatSaysSo) {
    fill(3000, 200);
    damage();
    for (const QByteArray& bytes : {fileBytes(), QByteArray("not a book at all, ").repeated(300)}) {
        setFileBytes(bytes);
        const SafetyCopy copy = keepCopy(path(), stamp(u"还原以前"_s), IfDamaged::Keep);
        EXPECT_FALSE(copy.isSound);
        EXPECT_TRUE(copy.path.contains(u"还原以前 已损坏"_s));
        QFile file(copy.path);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        EXPECT_EQ(file.readAll(), bytes);
        EXPECT_FALSE(copiesOf(path()).contains(copy.path));
    }
}

TEST_F(SafetyCopies, ABookThatWasPutHereClosedIsSoundAndItsCopyHealed) {
    fill(3);
    store.close();
    spoilHeader(path());
    const SafetyCopy copy = keepCopy(path(), stamp(), IfDamaged::Keep);
    EXPECT_TRUE(copy.isSound);
    EXPECT_EQ(count(copy.path), u"3|3"_s);
    EXPECT_TRUE(headerIsSpoilt(path()));
}

TEST_F(SafetyCopies, WhatAKilledProgramLeftGoes) {
    keepCopy(path(), stamp(), IfDamaged::Tell);
    for (const auto& name : {u".unfinished-12ab"_s, u".unfinished-12ab-journal"_s})
        ASSERT_TRUE(QFile(QDir(safetyFolder()).filePath(name)).open(QIODevice::WriteOnly));
    removeUnfinishedCopies(path());
    EXPECT_EQ(kept(), QStringList{u"2024-11-18 203608 每日.dat"_s});
}

TEST_F(SafetyCopies, OutdatedOnesGoFromTheFolder) {
    keepCopy(path(), stamp(), IfDamaged::Tell);
    keepCopy(path(), {QDateTime(QDate(2024, 11, 17), QTime(8, 0)), u"每日"_s}, IfDamaged::Tell);
    keepCopy(path(), {QDateTime(QDate(2022, 11, 18), QTime(8, 0)), u"每日"_s}, IfDamaged::Tell);
    removeOutdatedCopies(path(), QDate(2024, 11, 18), safetyFolder() + u"/2022-11-18 080000 每日.dat"_s);
    EXPECT_EQ(kept().size(), 3);
    removeOutdatedCopies(path(), QDate(2024, 11, 18), folder.filePath(u"2022-11-18 080000 每日.dat"_s));
    EXPECT_EQ(kept(), (QStringList{u"2024-11-17 080000 每日.dat"_s, u"2024-11-18 203608 每日.dat"_s}));
}

TEST_F(SafetyCopies, TheyAreToldAmongTheCopiesOfTheBook) {
    fill(3);
    const QString copy = keepCopy(path(), stamp(), IfDamaged::Tell).path;
    EXPECT_EQ(copiesOf(path()), QStringList{copy});
    EXPECT_TRUE(wayBack(path()).contains(copy));
}

class StateBefore : public SafetyCopies, public ::testing::WithParamInterface<int> {};

/// Once with pages that wait in memory, once with so many that they have reached the file already.
TEST_P(StateBefore, IsTheBookOfTheLastCommit) {
    const int rows = GetParam();
    fill(rows);
    const QString before = count(path());
    const qint64 sizeBefore = QFileInfo(path()).size();
    Recordset& set = control.open(u"srb"_s);
    for (; !set.eof(); set.moveNext())
        set.deleteCurrent();
    for (int i = 0; i < rows; ++i)
        add(set, {{u"项目"_s, QString(100, u'新')}, {u"金额"_s, 7}});
    ASSERT_TRUE(store.inTransaction());
    const bool hasReachedFile = QFileInfo(path()).size() > sizeBefore;
    EXPECT_EQ(hasReachedFile, rows > 1000);

    const SafetyCopy copy = keepStateBefore(store, stamp(u"保存出错以前"_s));
    EXPECT_TRUE(copy.isSound);
    EXPECT_EQ(kept(), QStringList{u"2024-11-18 203608 保存出错以前.dat"_s});
    EXPECT_EQ(count(copy.path), before);
    EXPECT_TRUE(store.inTransaction());
    store.commit();
    EXPECT_EQ(count(path()), u"%1|%2"_s.arg(rows).arg(7 * rows));
    EXPECT_EQ(OtherProgram(path()).row(u"pragma integrity_check"_s), u"ok"_s);
}

INSTANTIATE_TEST_SUITE_P(Saves, StateBefore, ::testing::Values(20, 100'000));

} // namespace
} // namespace qinghe
