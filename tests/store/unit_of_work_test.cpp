#include "store/store_fixture.h"

#include <QElapsedTimer>
#include <QFile>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace qinghe {
namespace {

class UnitOfWork : public StoreTest {
protected:
    QString journal() const { return path() + u"-journal"_s; }
    QString outside(const QString& sql = u"SELECT count(*) FROM srb"_s) const { return OtherProgram(path()).row(sql); }
};

TEST_F(UnitOfWork, BeginsWithTheFirstWriteOnly) {
    Recordset& set = control.open(u"srb"_s);
    EXPECT_FALSE(store.inTransaction());
    set.addNew();
    set.field(u"项目").setValue(u"工资"_s);
    EXPECT_FALSE(store.inTransaction());
    set.update();
    EXPECT_TRUE(store.inTransaction());
    store.commit();
    EXPECT_FALSE(store.inTransaction());
    control.refresh();
    control.recordset().deleteCurrent();
    EXPECT_TRUE(store.inTransaction());
}

TEST_F(UnitOfWork, IsSeenOutsideOnceCommitted) {
    addIncome(u"2024-5-3"_s, u"工资"_s, 1);
    EXPECT_EQ(outside(), u"0"_s);
    EXPECT_TRUE(QFile::exists(journal()));
    store.commit();
    EXPECT_EQ(outside(), u"1"_s);
    EXPECT_FALSE(QFile::exists(journal()));
}

TEST_F(UnitOfWork, CommitsDeletionsThatWereOnlyCollected) {
    addIncome(u"2024-5-3"_s, u"工资"_s, 1);
    store.commit();
    control.refresh();
    control.recordset().deleteCurrent();
    EXPECT_EQ(outside(), u"1"_s);
    store.commit();
    EXPECT_EQ(outside(), u"0"_s);
}

TEST_F(UnitOfWork, CommitOfNothingIsNothing) {
    store.commit();
    control.open(u"srb"_s);
    store.commit();
    store.close();
    store.commit();
    EXPECT_EQ(outside(), u"0"_s);
}

TEST_F(UnitOfWork, ClosingCommits) {
    addIncome(u"2024-5-3"_s, u"工资"_s, 1);
    store.close();
    EXPECT_EQ(outside(), u"1"_s);
}

TEST_F(UnitOfWork, AStoreThatGoesAwayCommitsNothing) {
    {
        Store other;
        Adodc adodc(other, u"Adodc1"_s, connectionText(folder.path()));
        add(adodc.open(u"srb"_s), {{u"项目"_s, u"工资"_s}});
    }
    EXPECT_EQ(outside(), u"0"_s);
}

TEST_F(UnitOfWork, ReadsItsOwnWrites) {
    addIncome(u"2024-5-3"_s, u"工资"_s, 1);
    Recordset& set = control.open(u"select sum(金额) as 金额 from srb"_s);
    EXPECT_EQ(set.field(0).text(), u"1"_s);
    control.open(u"srb"_s).deleteCurrent();
    EXPECT_TRUE(second.open(u"select sum(金额) as 金额 from srb"_s).field(0).isNull());
    EXPECT_EQ(outside(), u"0"_s);
}

TEST_F(UnitOfWork, DeletionsOfSeveralTablesAllReachTheFile) {
    addIncome(u"2024-5-3"_s, u"工资"_s, 1);
    add(second.open(u"yhb"_s), {{u"用户名"_s, u"甲"_s}});
    add(second.recordset(), {{u"用户名"_s, u"乙"_s}});
    store.commit();
    control.refresh();
    second.refresh();
    second.recordset().deleteCurrent();
    control.recordset().deleteCurrent();
    second.recordset().moveNext();
    second.recordset().deleteCurrent();
    store.commit();
    EXPECT_EQ(outside(u"SELECT (SELECT count(*) FROM srb) + (SELECT count(*) FROM yhb)"_s), u"0"_s);
}

TEST_F(UnitOfWork, SetsFromBeforeAClosingCanBeReadButNotWritten) {
    addIncome(u"2024-5-3"_s, u"工资"_s, 1);
    Recordset& set = control.open(u"srb"_s);
    const int before = store.generation();
    store.close();
    EXPECT_NE(store.generation(), before);
    EXPECT_EQ(set.field(u"项目").text(), u"工资"_s);
    EXPECT_EQ(errorOf([&] { set.deleteCurrent(); }), RuntimeError::StoreFailure);
    EXPECT_EQ(errorOf([&] { set.addNew(); }), RuntimeError::StoreFailure);
    EXPECT_EQ(errorOf([&] { set.field(u"项目").setValue(u"x"_s); }), RuntimeError::StoreFailure);
    control.refresh();
    control.recordset().deleteCurrent();
    store.commit();
    EXPECT_EQ(outside(), u"0"_s);
}

TEST_F(UnitOfWork, RowPendingOverAClosingIsRefused) {
    Recordset& set = control.open(u"srb"_s);
    set.addNew();
    store.close();
    EXPECT_EQ(errorOf([&] { set.update(); }), RuntimeError::StoreFailure);
    EXPECT_EQ(outside(), u"0"_s);
}

TEST_F(UnitOfWork, WriteOfAnotherProcessIsSeenByTheNextRefresh) {
    control.open(u"srb"_s);
    OtherProgram other(path());
    other.run(u"INSERT INTO srb (项目) VALUES ('外')"_s);
    EXPECT_EQ(control.open(u"srb"_s).recordCount(), 1);
    other.run(u"DELETE FROM srb"_s);
    EXPECT_EQ(control.open(u"srb"_s).recordCount(), 0);
}

TEST_F(UnitOfWork, NewRowsDoNotClashWithThoseOfAnotherProcess) {
    addIncome(u"2024-5-3"_s, u"甲"_s, 1);
    store.commit();
    OtherProgram(path()).run(u"INSERT INTO srb (项目) VALUES ('外')"_s);
    addIncome(u"2024-5-3"_s, u"乙"_s, 1);
    store.commit();
    EXPECT_EQ(column(control.open(u"srb"_s), u"项目"_s), QStringList({u"甲"_s, u"外"_s, u"乙"_s}));
}

TEST_F(UnitOfWork, ResultsAreGivenUpWithTheirRecordsets) {
    control.open(u"srb"_s);
    const std::weak_ptr<const ResultSet> result = store.fetch(u"srb"_s);
    EXPECT_TRUE(result.expired());
}

TEST_F(UnitOfWork, SetsOfOneSourceKnowNothingOfEachOther) {
    addIncome(u"2024-5-3"_s, u"甲"_s, 1);
    Recordset& one = control.open(u"srb"_s);
    Recordset& other = second.open(u"srb"_s);
    one.field(u"项目"_s).setValue(u"乙"_s);
    one.update();
    one.addNew();
    one.update();
    EXPECT_EQ(other.field(u"项目"_s).text(), u"甲"_s);
    EXPECT_EQ(other.recordCount(), 1);
    EXPECT_EQ(column(second.open(u"srb"_s), u"项目"_s), QStringList({u"乙"_s, u"NULL"_s}));
}

TEST_F(UnitOfWork, IsRefusedFromItsFirstRowWhileAnotherProgramWrites) {
    store.setPatience(0ms);
    addIncome(u"2024-5-3"_s, u"甲"_s, 1);
    store.commit();
    Recordset& set = control.open(u"srb"_s);
    OtherProgram other(path());
    other.run(u"BEGIN IMMEDIATE"_s);
    EXPECT_EQ(errorOf([&] { set.deleteCurrent(); }, u"占用"_s), RuntimeError::FileLocked);
    EXPECT_FALSE(store.inTransaction());
    EXPECT_EQ(set.recordCount(), 1);
    other.run(u"ROLLBACK"_s);
    set.deleteCurrent();
    store.commit();
    EXPECT_EQ(outside(), u"0"_s);
}

TEST_F(UnitOfWork, CommitThatFailsIsUndoneAsAWhole) {
    store.setPatience(0ms);
    addIncome(u"2024-5-3"_s, u"甲"_s, 1);
    store.commit();
    OtherProgram reader(path());
    reader.run(u"BEGIN"_s);
    reader.row(u"SELECT count(*) FROM srb"_s); // keeps the file from being changed
    addIncome(u"2024-5-3"_s, u"乙"_s, 1);
    EXPECT_EQ(errorOf([&] { store.commit(); }), RuntimeError::FileLocked);
    EXPECT_FALSE(store.inTransaction());
    reader.run(u"ROLLBACK"_s);
    EXPECT_EQ(column(control.open(u"srb"_s), u"项目"_s), QStringList(u"甲"_s));
    addIncome(u"2024-5-3"_s, u"丙"_s, 1);
    store.commit();
    EXPECT_EQ(outside(), u"2"_s);
}

TEST_F(UnitOfWork, ReadingThatComesAgainByItselfDoesNotWaitForAnotherProgram) {
    control.open(u"srb"_s);
    OtherProgram other(path());
    other.run(u"BEGIN EXCLUSIVE"_s);
    const auto read = [this] { control.open(u"srb"_s); };
    QElapsedTimer watch;
    watch.start();
    EXPECT_FALSE(store.tryNow(read));
    EXPECT_LT(watch.elapsed(), 1000);
    EXPECT_FALSE(store.hasUndone());
    EXPECT_EQ(errorOf([&] { store.tryNow([this] { control.open(u"没有"_s); }); }), 0);
    other.run(u"ROLLBACK"_s);
    EXPECT_TRUE(store.tryNow(read));
    EXPECT_EQ(errorOf([&] { store.tryNow([this] { control.open(u"没有"_s); }); }), RuntimeError::QueryFailure);
}

TEST_F(UnitOfWork, TheFileIsHeldStillWhileItsBytesAreCopied) {
    addIncome(u"2024-5-3"_s, u"甲"_s, 1);
    OtherProgram other(path());
    const QString write = u"INSERT INTO srb (项目) VALUES ('乙')"_s;
    {
        const Store::Stillness still = store.holdStill();
        EXPECT_EQ(outside(), u"1"_s) << "what was open is ended first, and others still read";
        const QByteArray before = fileBytes();
        EXPECT_ANY_THROW(other.run(write));
        EXPECT_EQ(fileBytes(), before);
    }
    EXPECT_FALSE(store.inTransaction());
    other.run(write);
    EXPECT_EQ(outside(), u"2"_s);
}

TEST_F(UnitOfWork, WhatCannotBeReadIsNotHeldAndMayBeCopiedAsItIs) {
    setFileBytes(QByteArray("no book at all ").repeated(100));
    EXPECT_EQ(errorOf([&] { const Store::Stillness still = store.holdStill(); }), 0);
    EXPECT_FALSE(store.hasUndone());
}

TEST_F(UnitOfWork, FailedClosingLeavesTheFileClosed) {
    store.setPatience(0ms);
    OtherProgram reader(path());
    addIncome(u"2024-5-3"_s, u"甲"_s, 1);
    reader.run(u"BEGIN"_s);
    reader.row(u"SELECT count(*) FROM srb"_s);
    const int before = store.generation();
    EXPECT_EQ(errorOf([&] { store.close(); }), RuntimeError::FileLocked);
    EXPECT_NE(store.generation(), before);
    reader.run(u"ROLLBACK"_s);
    EXPECT_EQ(control.open(u"srb"_s).recordCount(), 0);
}

} // namespace
} // namespace qinghe
