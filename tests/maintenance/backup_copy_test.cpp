#include "backup_rig.h"
#include "store/header_toggle.h"

// What backup and restore leave on the disk, and what the running program makes of it.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class BackupCopyTest : public BackupTest {
protected:
    void addBudget(const QString& item) { rig.sql(u"insert into ysb(预算项目) values('%1')"_s.arg(item)); }
    QString budget() { return rig.sql(u"select group_concat(预算项目) from ysb"_s).value(0); }
    /// What the budget page shows when it is entered now.
    QString shownBudget() {
        rig.click(rig.at(pages::Budget));
        auto& ms6 = rig.at(budget::Grid);
        QStringList items;
        for (int row = 1; row < ms6.Rows(); ++row)
            items << ms6.TextMatrix(row, 2);
        return items.join(u',');
    }
    qsizetype dataSize() const { return bytes(u"data.dll"_s).size(); }
};

TEST_F(BackupCopyTest, ABackupOfNBytesIntoANewFileGivesOneMore) {
    backUpTo(u"b.dat"_s);
    const QByteArray data = bytes(u"data.dll"_s);
    EXPECT_TRUE(bytes(u"b.dat"_s) == data + data.last(1));
}

TEST_F(BackupCopyTest, ASecondBackupToTheSameNameOverwritesFromTheStart) {
    backUpTo(u"b.dat"_s);
    addBudget(u"新"_s);
    rig.click(start());
    const QByteArray data = bytes(u"data.dll"_s);
    EXPECT_TRUE(bytes(u"b.dat"_s).first(data.size()) == data);
}

TEST_F(BackupCopyTest, ABackupOverALongerFileKeepsItsTail) {
    const QByteArray old(dataSize() + 1000, 'x');
    write(u"b.dat"_s, old);
    backUpTo(u"b.dat"_s);
    const QByteArray data = bytes(u"data.dll"_s);
    EXPECT_TRUE(bytes(u"b.dat"_s) == data + data.last(1) + old.last(999));
}

TEST_F(BackupCopyTest, ARestoreOfNBytesOverMGivesTheGreaterOfNPlusOneAndM) {
    const qsizetype before = dataSize();
    const QByteArray data = bytes(u"data.dll"_s);
    write(u"long.dat"_s, data + QByteArray(500, 'y'));
    restoreFrom(u"long.dat"_s);
    EXPECT_TRUE(bytes(u"data.dll"_s) == data + QByteArray(501, 'y'));
    write(u"short.dat"_s, data.first(before - 10));
    startWith(rig.file(u"short.dat"_s));
    EXPECT_EQ(dataSize(), before + 501);
    EXPECT_EQ(rig.lastMessage(), Restored);
    EXPECT_EQ(bytes(u"data.dll"_s).at(before - 10), data.at(before - 11));
    EXPECT_EQ(bytes(u"data.dll"_s).at(before - 9), data.at(before - 9));
}

TEST_F(BackupCopyTest, ABackupHoldsTheHealedHeader) {
    backUpTo(u"b.dat"_s);
    EXPECT_EQ(bytes(u"b.dat"_s).mid(1, 2), QByteArray("\x01\x00", 2));
}

TEST_F(BackupCopyTest, WhatWasSavedBeforeABackupIsInIt) {
    Adodc& control = *rig.mainWindow().Adodc1;
    handlers::enter([&] {
        Recordset& rows = control.open(u"ysb"_s);
        rows.addNew();
        rows.field(u"预算项目"_s).setValue(u"米"_s);
        rows.update();
        openFor(backup());
        startWith(rig.file(u"b.dat"_s));
    });
    addBudget(u"后来"_s);
    restoreFrom(u"b.dat"_s);
    EXPECT_EQ(budget(), u"米");
}

TEST_F(BackupCopyTest, ARestoreBringsTheOldRowsToThePageThatIsEnteredNext) {
    addBudget(u"米"_s);
    backUpTo(u"b.dat"_s);
    rig.sql(u"update ysb set 预算项目='面'"_s);
    EXPECT_EQ(shownBudget(), u"面");
    restoreFrom(u"b.dat"_s);
    EXPECT_EQ(shownBudget(), u"米");
    EXPECT_FALSE(rig.ended());
}

TEST_F(BackupCopyTest, ARestoreRedrawsNothingByItself) {
    addBudget(u"米"_s);
    backUpTo(u"b.dat"_s);
    rig.sql(u"delete from ysb"_s);
    addBudget(u"面"_s);
    shownBudget();
    restoreFrom(u"b.dat"_s);
    EXPECT_EQ(rig.at(budget::Grid).TextMatrix(1, 2), u"面");
}

TEST_F(BackupCopyTest, TheRestoredLedgerIsSavedIntoLikeAnyOther) {
    addBudget(u"米"_s);
    backUpTo(u"b.dat"_s);
    rig.sql(u"delete from ysb"_s);
    restoreFrom(u"b.dat"_s);
    addBudget(u"盐"_s);
    EXPECT_EQ(budget(), u"米,盐");
    EXPECT_EQ(rig.sql(u"pragma integrity_check"_s), QStringList{u"ok"_s});
    rig.click(rig.at(title::Close));
    EXPECT_EQ(rig.exitCode(), 0);
    EXPECT_EQ(rig.headerBytes(), QByteArray("\0\0", 2));
    rig.stop();
    rig.signIn();
    EXPECT_EQ(budget(), u"米,盐");
}

TEST_F(BackupCopyTest, ABackupLeavesRecordsThatWereReadBeforeGood) {
    addBudget(u"米"_s);
    Adodc& control = *rig.mainWindow().Adodc1;
    handlers::enter([&] { control.open(u"ysb"_s); });
    backUpTo(u"b.dat"_s);
    handlers::enter([&] { control.recordset().deleteCurrent(); });
    EXPECT_TRUE(rig.messages->errors.empty());
    EXPECT_EQ(budget(), u"NULL");
}

TEST_F(BackupCopyTest, ARestoreMakesRecordsThatWereReadBeforeVoid) {
    addBudget(u"米"_s);
    Adodc& control = *rig.mainWindow().Adodc1;
    handlers::enter([&] { control.open(u"ysb"_s); });
    backUpTo(u"b.dat"_s);
    restoreFrom(u"b.dat"_s);
    handlers::enter([&] { control.recordset().deleteCurrent(); });
    expectError(RuntimeError::StoreFailure);
    EXPECT_EQ(budget(), u"米");
}

TEST_F(BackupCopyTest, AJournalThatLiesBesideIsNotPlayedBackIntoTheRestoredFile) {
    backUpTo(u"b.dat"_s);
    openFor(restore());
    rig.chooser->whileShown = [this] { write(u"data.dll-journal"_s, "left over"); };
    startWith(rig.file(u"b.dat"_s));
    EXPECT_EQ(rig.lastMessage(), Restored);
    EXPECT_EQ(bytes(u"data.dll-journal"_s), "(missing)");
}

TEST_F(BackupCopyTest, ARestoreMakesADataFileThatHasGone) {
    addBudget(u"米"_s);
    backUpTo(u"b.dat"_s);
    ASSERT_TRUE(QFile::remove(rig.dataFile()));
    restoreFrom(u"b.dat"_s);
    EXPECT_EQ(shownBudget(), u"米");
}

TEST_F(BackupCopyTest, ACopyOfTheEndedProgramIsRestoredAsItIsAndReadFromTheNextStartOn) {
    addBudget(u"米"_s);
    rig.stop();
    spoilHeader(rig.dataFile());
    ASSERT_TRUE(QFile::copy(rig.dataFile(), rig.file(u"ended.dat"_s)));
    rig.signIn();
    rig.click(rig.at(pages::Settings));
    rig.sql(u"delete from ysb"_s);
    restoreFrom(u"ended.dat"_s);
    EXPECT_EQ(rig.lastMessage(), Restored);
    EXPECT_EQ(rig.headerBytes(), QByteArray("\0\0", 2));

    rig.click(rig.at(pages::Budget));
    expectError(RuntimeError::StoreFailure, u"请重新启动程序"_s);
    rig.stop();
    rig.signIn();
    EXPECT_EQ(shownBudget(), u"米");
}

} // namespace
} // namespace qinghe::testing
