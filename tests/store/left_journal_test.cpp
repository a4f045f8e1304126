#include "store/data_file.h"
#include "store/failing_disk.h"
#include "store/header_toggle.h"
#include "store/journal_file.h"
#include "store/left_journal.h"
#include "store/rewritten_table.h"
#include "store/safety_folder.h"
#include "support/ordinary_user.h"

#include <QDir>
#include <QFile>
#include <QtEndian>

#include <filesystem>
#include <sys/stat.h>

namespace qinghe {
namespace {

constexpr int Rows = 150;
const QDateTime Now(QDate(2024, 11, 18), QTime(20, 36, 8));
const QByteArray Magic = QByteArray::fromHex("d9d505f920a163d7");

QByteArray number(quint32 value) {
    QByteArray bytes(4, Qt::Uninitialized);
    qToBigEndian(value, bytes.data());
    return bytes;
}

class LeftJournal : public StoreTest {
protected:
    ~LeftJournal() override { failing_disk::restorePower(); }

    QString journal() const { return journalOf(path()); }
    static void put(const QString& name, const QByteArray& bytes) {
        QFile file(name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    static QByteArray bytesOf(const QString& name) {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
    }
    /// A journal without pages, sound but for what it is told to say.
    static QByteArray headOnly(quint32 pageCount) {
        QByteArray bytes = Magic + number(0) + number(0) + number(pageCount) + number(512) + number(4096);
        return bytes.leftJustified(512, '\0');
    }
    /// Which, played back, has another file looked for and deleted.
    QByteArray naming(const QString& victim) const {
        const QByteArray name = QFile::encodeName(victim);
        quint32 sum = 0;
        for (const char c : name)
            sum += static_cast<quint32>(c);
        return headOnly(pages()) + number(0) + name + number(static_cast<quint32>(name.size())) + number(sum) + Magic;
    }
    quint32 pages() const { return static_cast<quint32>(fileBytes().size() / 4096); }

    /// A save that broke off while it wrote its pages into the file; gives what the table held before.
    void breakOff() {
        rewriteTable(store, control, u"旧"_s, Rows);
        for (int changes = 0; judgeJournal(journal(), path()) != JournalKind::Own; ++changes) {
            ASSERT_LT(changes, 100);
            rewriteTable(store, control, u"旧"_s, Rows);
            failing_disk::cutPowerAfter(changes);
            errorOf([&] { rewriteTable(store, control, u"新"_s, Rows); });
            store.close();
            failing_disk::restorePower();
        }
    }
    QStringList settled() const { return settleWhatWasLeft(path(), Now); }
    QStringList kept() const {
        return QDir(safetyFolderOf(path())).entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name);
    }
    /// The journal was set aside, the user hears of it, and the book opens with these rows.
    void expectSetAside(int rows) {
        const QStringList told = settled();
        ASSERT_EQ(told.size(), 1);
        EXPECT_TRUE(told[0].contains(u"不属于它"_s) && told[0].contains(u"放在一边的日志"_s));
        EXPECT_FALSE(QFileInfo(journal()).exists() || QFileInfo(journal()).isSymLink());
        EXPECT_EQ(control.open(u"srb"_s).recordCount(), rows);
    }
};

TEST_F(LeftJournal, OfASaveThatBrokeOffIsPlayedBackBehindACopyOfBothFiles) {
    ASSERT_NO_FATAL_FAILURE(breakOff());
    const QByteArray asItLay = fileBytes(), itsJournal = bytesOf(journal());
    const QStringList told = settled();
    ASSERT_EQ(told.size(), 1);
    EXPECT_TRUE(told[0].contains(u"2024-11-18 203608 撤销没有做完的保存以前.dat"_s));
    EXPECT_EQ(kept(), (QStringList{u"2024-11-18 203608 撤销没有做完的保存以前.dat"_s,
                                   u"2024-11-18 203608 撤销没有做完的保存以前.journal"_s}));
    const QDir copies(safetyFolderOf(path()));
    EXPECT_EQ(bytesOf(copies.filePath(kept()[0])), asItLay + asItLay.last(1)) << "the form of a backup";
    EXPECT_EQ(bytesOf(copies.filePath(kept()[1])), itsJournal);
    EXPECT_EQ(markOfTable(control, Rows), u"旧"_s);
    EXPECT_FALSE(QFile::exists(journal()));
}

TEST_F(LeftJournal, OfABookBehindWhichThereIsATailIsKnownToo) {
    setFileBytes(fileBytes() + QByteArray(5000, 'x'));
    ASSERT_NO_FATAL_FAILURE(breakOff());
    EXPECT_EQ(settled().size(), 1);
    EXPECT_EQ(markOfTable(control, Rows), u"旧"_s);
}

TEST_F(LeftJournal, ThatMayNotBeReadIsNotJudged) {
    ASSERT_NO_FATAL_FAILURE(breakOff());
    const QByteArray before = fileBytes();
    {
        const testing::AsOrdinaryUser user({folder.path(), path(), journal()});
        QFile::setPermissions(journal(), QFile::Permissions());
        EXPECT_EQ(errorOf([&] { settled(); }, u"权限"_s), RuntimeError::PathFileAccess);
        QFile::setPermissions(journal(), QFile::ReadOwner | QFile::WriteOwner);
    }
    EXPECT_EQ(fileBytes(), before);
    EXPECT_EQ(markOfTable(control, Rows), u"旧"_s);
}

TEST_F(LeftJournal, IsPlayedBackWhereNoCopyCanBeKept) {
    ASSERT_NO_FATAL_FAILURE(breakOff());
    put(safetyFolderOf(path()), "a file in the way");
    EXPECT_EQ(settled(),
              QStringList{u"上次有一次保存没有做完，已经撤销，鼠标停在这里看。\n账本回到了那次保存以前的样子。"_s});
    EXPECT_EQ(markOfTable(control, Rows), u"旧"_s);
}

TEST_F(LeftJournal, IsNotPlayedIntoABackupThatWasPutInThePlaceOfItsBook) {
    rewriteTable(store, control, u"备份"_s, 20);
    store.close();
    const QByteArray backup = fileBytes();
    ASSERT_NO_FATAL_FAILURE(breakOff());
    setFileBytes(backup + backup.last(1));
    spoilHeader(path()); // as its program had left it
    const QByteArray itsJournal = bytesOf(journal());
    EXPECT_EQ(settled().size(), 1);
    EXPECT_EQ(kept(), QStringList{u"2024-11-18 203608 放在一边的日志.journal"_s});
    EXPECT_EQ(bytesOf(QDir(safetyFolderOf(path())).filePath(kept()[0])), itsJournal);
    healHeader(path());
    EXPECT_EQ(markOfTable(control, 20), u"备份"_s);
}

TEST_F(LeftJournal, ThatNamesAnotherFileDeletesNothing) {
    const QString victim = folder.filePath(u"letter"_s);
    put(victim, "dear aunt");
    put(journal(), naming(victim));
    EXPECT_EQ(errorOf([&] { control.open(u"srb"_s); }, u"不是这个账本自己的"_s), RuntimeError::StoreFailure);
    EXPECT_EQ(bytesOf(victim), "dear aunt");
    EXPECT_TRUE(QFile::exists(journal()));
    expectSetAside(0);
    EXPECT_EQ(bytesOf(victim), "dear aunt");
}

TEST_F(LeftJournal, WithAFalseBeginningNeitherCutsTheBookNorBlowsItUp) {
    const QByteArray before = fileBytes();
    for (const quint32 count : {1u, pages() - 1, pages() + 1, 0x7fffffffu}) {
        store.close();
        put(journal(), headOnly(count));
        expectSetAside(0);
        EXPECT_EQ(fileBytes(), before) << count;
    }
    store.close();
    put(journal(), headOnly(pages()));
    EXPECT_EQ(settled(), QStringList()) << "this one changes nothing";
    EXPECT_EQ(control.open(u"srb"_s).recordCount(), 0);
}

TEST_F(LeftJournal, OfMorePartsOrPagesThanAWorkLeavesIsSetAside) {
    put(journal(), headOnly(pages()) + headOnly(pages()));
    expectSetAside(0);
    store.close();
    const QByteArray page = number(2) + QByteArray(4096, '\0') + number(0);
    QByteArray manyTimes = headOnly(pages()) + page.repeated(static_cast<qsizetype>(pages()) + 1);
    put(journal(), manyTimes.replace(8, 4, number(pages() + 1)));
    expectSetAside(0);
}

TEST_F(LeftJournal, ThatIsNoneIsSetAside) {
    put(journal(), QByteArray("no journal at all ").repeated(100));
    expectSetAside(0);
}

TEST_F(LeftJournal, ThatIsALinkAPipeOrAFolderIsSetAsideUnopened) {
    const QString victim = folder.filePath(u"letter"_s);
    put(victim, "dear aunt");
    ASSERT_TRUE(QFile::link(victim, journal()));
    expectSetAside(0);
    ASSERT_EQ(mkfifo(QFile::encodeName(journal()).constData(), 0600), 0);
    expectSetAside(0);
    ASSERT_TRUE(QDir().mkdir(journal()));
    expectSetAside(0);
    put(victim, {});
    std::filesystem::create_hard_link(victim.toStdString(), journal().toStdString());
    expectSetAside(0);
    addIncome(u"2024-5-3"_s, u"甲"_s, 1);
    store.commit();
    EXPECT_EQ(bytesOf(victim), QByteArray());
    EXPECT_EQ(kept().size(), 3) << "and a folder";
}

TEST_F(LeftJournal, LaidThereWhileTheBookIsOpenIsNeitherFollowedNorWaitedFor) {
    const QString victim = folder.filePath(u"letter"_s);
    put(victim, {});
    const auto refused = [&] {
        const int error = errorOf([&] { addIncome(u"2024-5-3"_s, u"甲"_s, 1); }, u"请重新启动程序"_s);
        EXPECT_EQ(error, RuntimeError::StoreFailure);
        EXPECT_EQ(bytesOf(victim), QByteArray());
        EXPECT_TRUE(QFile::remove(journal()));
    };
    control.open(u"srb"_s);
    ASSERT_TRUE(QFile::link(victim, journal()));
    refused();
    control.open(u"srb"_s);
    ASSERT_EQ(mkfifo(QFile::encodeName(journal()).constData(), 0600), 0);
    refused();
    EXPECT_EQ(control.open(u"srb"_s).recordCount(), 0);
}

TEST_F(LeftJournal, IsSetAsideBesideTheBookWhereTheFolderOfCopiesCannotBeUsed) {
    put(safetyFolderOf(path()), "a file in the way");
    put(journal(), headOnly(1));
    expectSetAside(0);
    EXPECT_TRUE(QFile::exists(folder.filePath(u"2024-11-18 203608 放在一边的日志.journal"_s)));
}

TEST_F(LeftJournal, ThatCannotBeSetAsideKeepsTheBookClosed) {
    put(journal(), headOnly(1));
    const QByteArray before = fileBytes();
    const testing::AsOrdinaryUser user({folder.path(), path(), journal()});
    QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::ExeOwner);
    EXPECT_EQ(errorOf([&] { settled(); }, u"请把它移到别处"_s), RuntimeError::PathFileAccess);
    QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    EXPECT_EQ(fileBytes(), before);
}

TEST_F(LeftJournal, OfAProgramThatIsJustWritingIsLeftAlone) {
    OtherProgram other(path());
    other.run(u"BEGIN; DELETE FROM srb; INSERT INTO srb (项目) VALUES ('甲')"_s);
    put(journal(), headOnly(1)); // whatever it looks like at this moment
    EXPECT_EQ(settled(), QStringList());
    EXPECT_TRUE(QFile::exists(journal()));
}

TEST_F(LeftJournal, IsNotSoughtBesideWhatIsNoBook) {
    const QByteArray photo("\xff\xd8\xff\xe0 a photo");
    setFileBytes(photo);
    put(journal(), headOnly(1));
    EXPECT_EQ(settled(), QStringList());
    EXPECT_TRUE(QFile::exists(journal()));
    EXPECT_EQ(fileBytes(), photo);
}

TEST_F(LeftJournal, LiesWhereTheBookReallyIs) {
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"real"_s));
    const QString real = folder.filePath(u"real/data.dll"_s);
    ASSERT_TRUE(QFile::rename(path(), real) && QFile::link(real, path()));
    put(journalOf(real), headOnly(1));
    EXPECT_EQ(settled().size(), 1);
    EXPECT_FALSE(QFile::exists(journalOf(real)));
}

TEST_F(LeftJournal, ALogOfAnotherProgramIsSetAsideToo) {
    put(path() + u"-wal"_s, "some log");
    const QStringList told = settled();
    ASSERT_EQ(told.size(), 1);
    EXPECT_TRUE(told[0].contains(u"data.dll-wal"_s));
    EXPECT_FALSE(QFile::exists(path() + u"-wal"_s));
    put(path() + u"-wal"_s, "another");
    EXPECT_EQ(control.open(u"srb"_s).recordCount(), 0) << "one that comes later is not looked at";
}

TEST_F(LeftJournal, ABookThatWasSwitchedToALogIsToldAsSuchAndKeepsItsLog) {
    const QString log = path() + u"-wal"_s;
    QByteArray bytes = fileBytes();
    bytes[18] = bytes[19] = 2;
    setFileBytes(bytes);
    put(log, "records");
    EXPECT_EQ(settled(), QStringList());
    EXPECT_EQ(errorOf([&] { control.open(u"srb"_s); }, u"不要删掉旁边的 data.dll-wal"_s), RuntimeError::StoreFailure);
    EXPECT_EQ(bytesOf(log), "records");
    EXPECT_EQ(fileBytes(), bytes);
}

} // namespace
} // namespace qinghe
