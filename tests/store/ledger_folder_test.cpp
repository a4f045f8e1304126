#include "runtime/runtime_error.h"
#include "store/ledger_folder.h"
#include "support/folder_test.h"
#include "support/ordinary_user.h"

#include <QDateTime>

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

/// What a program brings along, in `brought`, and a home in which a ledger may lie.
class LedgerFolder : public FolderTest {
protected:
    void SetUp() override {
        for (const QString& name : {u"brought/web"_s, u"home"_s})
            QDir(dir.path()).mkpath(name);
        for (const QString& name : {u"data.dll"_s, u"音乐1.wav"_s, u"web/index.htm"_s})
            bringNow(name, "first " + name.toUtf8(), 100);
    }
    /// A version of the program brings this file, made so many days after the first.
    void bringNow(const QString& name, const QByteArray& bytes, int day) const {
        write(u"brought/"_s + name, bytes);
        setDay(u"brought/"_s + name, day);
    }
    void setDay(const QString& name, int day) const {
        QFile file(at(name));
        ASSERT_TRUE(file.open(QFile::ReadWrite));
        file.setFileTime(QDateTime(QDate(2024, 1, 1).addDays(day), QTime(12, 0)), QFile::FileModificationTime);
    }
    void start() const {
        readyLedgerFolder(at(u"home/账本"_s), [this](const QString& folder) { bringAlong(at(u"brought"_s), folder); });
    }
    QByteArray there(const QString& name) const { return bytes(u"home/账本/"_s + name); }
    QStringList home() const {
        return QDir(at(u"home"_s)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
};

TEST_F(LedgerFolder, IsMadeAtTheFirstStartWholeAndForItsOwnerAlone) {
    start();
    EXPECT_EQ(home(), QStringList{u"账本"_s});
    EXPECT_EQ(there(u"data.dll"_s), "first data.dll");
    EXPECT_EQ(there(u"web/index.htm"_s), "first web/index.htm");
    constexpr auto Others =
        QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
    EXPECT_FALSE(QFile::permissions(at(u"home/账本"_s)) & Others);
    EXPECT_FALSE(QFile::permissions(at(u"home/账本/data.dll"_s)) & Others);
}

TEST_F(LedgerFolder, ALaterVersionRenewsWhatItBringsAndNothingElse) {
    start();
    write(u"home/账本/data.dll"_s, "written");
    write(u"home/账本/mine.txt"_s, "mine");
    setDay(u"home/账本/data.dll"_s, 50); // older than what is brought
    bringNow(u"web/index.htm"_s, "second", 101);
    bringNow(u"web/new.htm"_s, "new", 90);
    bringNow(u"data.dll"_s, "second", 101);
    start();
    EXPECT_EQ(there(u"data.dll"_s), "written");
    EXPECT_EQ(there(u"mine.txt"_s), "mine");
    EXPECT_EQ(there(u"web/index.htm"_s), "second");
    EXPECT_EQ(there(u"web/new.htm"_s), "new");
}

TEST_F(LedgerFolder, AMusicOfTheUsersOwnStaysUntilTheProgramBringsANewerOne) {
    start();
    write(u"home/账本/音乐1.wav"_s, "mine");
    setDay(u"home/账本/音乐1.wav"_s, 200);
    start();
    EXPECT_EQ(there(u"音乐1.wav"_s), "mine");
    bringNow(u"音乐1.wav"_s, "second", 300);
    start();
    EXPECT_EQ(there(u"音乐1.wav"_s), "second");
}

TEST_F(LedgerFolder, ABookThatIsGoneIsNotReplaced) {
    start();
    QFile::remove(at(u"home/账本/data.dll"_s));
    QFile::remove(at(u"home/账本/音乐1.wav"_s));
    start();
    EXPECT_EQ(there(u"data.dll"_s), "(missing)");
    EXPECT_EQ(there(u"音乐1.wav"_s), "(missing)");
}

TEST_F(LedgerFolder, ALinkToADiskThatIsNotThereIsNoReasonForANewLedger) {
    QFile::link(at(u"disk/账本"_s), at(u"home/账本"_s));
    start();
    EXPECT_TRUE(QFileInfo(at(u"home/账本"_s)).isSymLink());
    EXPECT_EQ(home(), QStringList()) << "a link that leads nowhere is no entry";
}

TEST_F(LedgerFolder, AHomeThatCannotBeWrittenIsTold) {
    QFile::setPermissions(at(u"home"_s), QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther);
    const AsOrdinaryUser user({at(u"home"_s)});
    try {
        start();
        ADD_FAILURE() << "no error";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), RuntimeError::PathFileAccess);
        EXPECT_TRUE(error.text().contains(u"无法在“"_s + at(u"home"_s))) << error.what();
    }
}

TEST_F(LedgerFolder, AFirstStartThatFailsLeavesNothingBehind) {
    const auto fail = [](const QString&) { throw RuntimeError(RuntimeError::DiskFull, u"磁盘已满"_s); };
    EXPECT_THROW(readyLedgerFolder(at(u"home/账本"_s), fail), RuntimeError);
    EXPECT_EQ(home(), QStringList());
}

TEST_F(LedgerFolder, WhatCannotBeRenewedKeepsNobodyFromTheBook) {
    start();
    const auto fail = [](const QString&) { throw RuntimeError(RuntimeError::DiskFull, u"磁盘已满"_s); };
    EXPECT_NO_THROW(readyLedgerFolder(at(u"home/账本"_s), fail));
    EXPECT_EQ(there(u"data.dll"_s), "first data.dll");
}

TEST_F(LedgerFolder, TheFirstBookOfAPortableProgramComesWhereNoneHasEverBeen) {
    layFirstBook(at(u"brought"_s), at(u"home"_s));
    EXPECT_EQ(bytes(u"home/data.dll"_s), "first data.dll");
    bringNow(u"data.dll"_s, "second", 200);
    layFirstBook(at(u"brought"_s), at(u"home"_s));
    EXPECT_EQ(bytes(u"home/data.dll"_s), "first data.dll");
}

TEST_F(LedgerFolder, TheFirstBookOfAPortableProgramReplacesNoneThatIsGone) {
    for (const QString& trace : {u"home/安全副本"_s, u"home/data.dll-journal"_s}) {
        QDir(dir.path()).mkpath(trace);
        layFirstBook(at(u"brought"_s), at(u"home"_s));
        EXPECT_FALSE(QFile::exists(at(u"home/data.dll"_s))) << trace.toStdString();
        QDir().rmdir(at(trace));
    }
    layFirstBook(at(u"nowhere"_s), at(u"home"_s));
    EXPECT_EQ(home(), QStringList());
}

} // namespace
} // namespace qinghe::testing
