#include "backup_rig.h"
#include "support/held_book.h"
#include "support/ordinary_user.h"
#include "support/small_disk.h"

#include <QDir>

#include <optional>
#include <unistd.h>

// Backup and restore that cannot be done.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

/// The disk takes no more from the moment at which a file was opened to be copied into, and so closed to others, and
/// the window is painted.
class DiskFailingInTheMidst : public QObject {
public:
    DiskFailingInTheMidst(QWidget& window, const QString& file, rlim_t largest) : m_file(file), m_largest(largest) {
        QFile::setPermissions(m_file, QFile::permissions(m_file) | QFile::ReadOther);
        window.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint && !m_disk && !(QFile::permissions(m_file) & QFile::ReadOther))
            m_disk.emplace(m_largest);
        return false;
    }

private:
    QString m_file;
    rlim_t m_largest;
    std::optional<SmallDisk> m_disk;
};

class BackupFailureTest : public BackupTest {
protected:
    BackupFailureTest() : before(bytes(u"data.dll"_s)) {}

    /// The program has told of it, has said nothing of a success, and has ended.
    void refused(int number, const QString& said) {
        expectError(number, said);
        for (const ShownMessage& success : {BackedUp, Restored})
            EXPECT_EQ(std::ranges::count(rig.messages->shown, success), 0);
    }
    void enterBudget() { rig.click(rig.at(pages::Budget)); }

    const QByteArray before;
};

TEST_F(BackupFailureTest, ABackupIntoAFolderThatMayNotBeWrittenIsRefused) {
    ASSERT_TRUE(QDir(rig.folder()).mkdir(u"closed"_s));
    const AsOrdinaryUser user({rig.folder(), rig.dataFile(), rig.file(u"closed"_s)});
    ASSERT_TRUE(QFile::setPermissions(rig.file(u"closed"_s), QFile::ReadOwner | QFile::ExeOwner));
    backUpTo(u"closed/b.dat"_s);
    refused(RuntimeError::PathFileAccess, u"权限"_s);
}

TEST_F(BackupFailureTest, WhileAnotherProgramWritesNoBackupIsMade) {
    shared().store.setPatience(std::chrono::milliseconds(0));
    const HeldBook held(rig.dataFile());
    backUpTo(u"b.dat"_s);
    refused(RuntimeError::FileLocked, u"占用"_s);
    EXPECT_EQ(bytes(u"b.dat"_s), "(missing)");
}

TEST_F(BackupFailureTest, ABackupThatDoesNotFitIsRefusedAndLeavesNoPart) {
    openFor(backup());
    rig.chooser->names = {rig.file(u"b.dat"_s)};
    {
        const SmallDisk disk(static_cast<rlim_t>(before.size() / 2));
        rig.click(start());
    }
    refused(RuntimeError::DiskFull, u"磁盘空间不够"_s);
    EXPECT_EQ(bytes(u"b.dat"_s), "(missing)");
    EXPECT_TRUE(bytes(u"data.dll"_s) == before);
}

TEST_F(BackupFailureTest, ABackupIsNeverWrittenOverTheLedgerItself) {
    ASSERT_EQ(
        link(QFile::encodeName(rig.dataFile()).constData(), QFile::encodeName(rig.file(u"hard.dat"_s)).constData()), 0);
    backUpTo(u"hard.dat"_s);
    refused(RuntimeError::PathFileAccess, u"同一个文件"_s);
    EXPECT_TRUE(bytes(u"data.dll"_s) == before);
}

TEST_F(BackupFailureTest, ALedgerIsNeverRestoredFromItself) {
    ASSERT_TRUE(QFile::link(rig.dataFile(), rig.file(u"soft.dat"_s)));
    restoreFrom(u"soft.dat"_s);
    refused(RuntimeError::PathFileAccess, u"同一个文件"_s);
    EXPECT_TRUE(bytes(u"data.dll"_s) == before);
}

TEST_F(BackupFailureTest, ARestoreFromANameThatDoesNotExistChangesNothing) {
    restoreFrom(u"none.dat"_s);
    refused(RuntimeError::FileNotFound, u"none.dat"_s);
    EXPECT_TRUE(bytes(u"data.dll"_s) == before);
    EXPECT_FALSE(QFile::exists(rig.file(u"none.dat"_s)));
}

TEST_F(BackupFailureTest, ARestoreFromAnEmptyFileChangesNothing) {
    write(u"empty.dat"_s, {});
    restoreFrom(u"empty.dat"_s);
    refused(RuntimeError::PathFileAccess, u"空"_s);
    EXPECT_TRUE(bytes(u"data.dll"_s) == before);
}

TEST_F(BackupFailureTest, ARestoreFromAFolderChangesNothing) {
    restoreFrom(u"."_s);
    refused(RuntimeError::PathFileAccess, u"文件夹"_s);
    EXPECT_TRUE(bytes(u"data.dll"_s) == before);
}

TEST_F(BackupFailureTest, AJournalStaysWhenNothingIsRestored) {
    openFor(restore());
    rig.chooser->whileShown = [this] { write(u"data.dll-journal"_s, "of the ledger"); };
    startWith(rig.file(u"none.dat"_s));
    EXPECT_EQ(bytes(u"data.dll-journal"_s), "of the ledger");
}

TEST_F(BackupFailureTest, ALedgerThatMayNotBeWrittenIsNotRestored) {
    write(u"b.dat"_s, before);
    const AsOrdinaryUser user({rig.folder(), rig.dataFile(), rig.file(u"b.dat"_s)});
    ASSERT_TRUE(QFile::setPermissions(rig.dataFile(), QFile::ReadOwner));
    restoreFrom(u"b.dat"_s);
    refused(RuntimeError::PathFileAccess, u"data.dll"_s);
    EXPECT_TRUE(bytes(u"data.dll"_s) == before);
}

TEST_F(BackupFailureTest, ARestoreThatDoesNotFitIsRefusedAndTheLedgerStays) {
    write(u"b.dat"_s, before + QByteArray(100000, 'z'));
    openFor(restore());
    rig.chooser->names = {rig.file(u"b.dat"_s)};
    {
        const SmallDisk disk(static_cast<rlim_t>(before.size() + 100));
        rig.click(start());
    }
    refused(RuntimeError::DiskFull, u"原来的内容都还在"_s);
    EXPECT_TRUE(bytes(u"data.dll"_s) == before);
}

TEST_F(BackupFailureTest, ARestoreThatBreaksOffSaysThatTheLedgerIsIncompleteAndWhatToDo) {
    write(u"b.dat"_s, before + QByteArray(100000, 'z'));
    openFor(restore());
    rig.chooser->names = {rig.file(u"b.dat"_s)};
    const DiskFailingInTheMidst failing(*window(), rig.dataFile(), static_cast<rlim_t>(before.size() + 100));
    rig.click(start());
    refused(RuntimeError::StoreFailure, u"没有写完"_s);
    expectError(RuntimeError::StoreFailure, u"改名为 data.dll"_s);
    EXPECT_TRUE(bytes(u"data.dll"_s) == before + QByteArray(100, 'z'));
}

TEST_F(BackupFailureTest, ARestoreIsNeverWrittenThroughALink) {
    write(u"b.dat"_s, before);
    openFor(restore());
    QFile::rename(rig.dataFile(), rig.file(u"precious"_s));
    ASSERT_TRUE(QFile::link(rig.file(u"precious"_s), rig.dataFile()));
    startWith(rig.file(u"b.dat"_s));
    refused(RuntimeError::PathFileAccess, u"是一个链接"_s);
    EXPECT_TRUE(bytes(u"precious"_s) == before);
}

TEST_F(BackupFailureTest, AForeignFileIsRestoredAsToldAndTheNextReadingSaysWhatToDo) {
    const QByteArray letter = QByteArray("Dear aunt, ").repeated(before.size() / 5);
    write(u"letter.txt"_s, letter);
    restoreFrom(u"letter.txt"_s);
    EXPECT_EQ(rig.lastMessage(), Restored);
    EXPECT_TRUE(bytes(u"data.dll"_s) == letter + letter.last(1));
    EXPECT_FALSE(rig.ended());
    enterBudget();
    expectError(RuntimeError::StoreFailure, u"data.dll"_s);
    expectError(RuntimeError::StoreFailure, u"备份文件"_s);
}

TEST_F(BackupFailureTest, ABackupCutShortIsRestoredAsToldAndTheNextReadingSaysWhatToDo) {
    rig.sql(u"insert into ysb(预算项目) with recursive n(i) as (select 1 union all select i+1 from n where i<20000) "
            u"select '第 '||i||' 项' from n"_s);
    const QByteArray whole = bytes(u"data.dll"_s);
    rig.sql(u"delete from ysb"_s);
    rig.sql(u"vacuum"_s);
    ASSERT_LT(bytes(u"data.dll"_s).size(), whole.size() / 2);
    write(u"cut.dat"_s, whole.first(whole.size() * 2 / 3));
    restoreFrom(u"cut.dat"_s);
    EXPECT_EQ(rig.lastMessage(), Restored);
    enterBudget();
    expectError(RuntimeError::StoreFailure, u"备份文件"_s);
}

TEST_F(BackupFailureTest, AFileOfAFewBytesIsRestoredOverTheBeginningAlone) {
    write(u"tiny.dat"_s, "ab");
    restoreFrom(u"tiny.dat"_s);
    EXPECT_TRUE(bytes(u"data.dll"_s) == "abb" + before.mid(3));
    enterBudget();
    expectError(RuntimeError::StoreFailure);
}

} // namespace
} // namespace qinghe::testing
