#include "store/failing_disk.h"
#include "store/rewritten_table.h"
#include "support/small_disk.h"

using namespace Qt::StringLiterals;

namespace qinghe {
namespace {

constexpr int Rows = 150;

class DiskFull : public StoreTest, public ::testing::WithParamInterface<bool> {
protected:
    ~DiskFull() override { failing_disk::makeSpace(); }
    bool once() const { return GetParam(); }
    void expectSound() { EXPECT_EQ(OtherProgram(path()).row(u"PRAGMA integrity_check"_s), u"ok"_s); }
};

TEST_P(DiskFull, AtAnyWriteOfASaveLeavesTheOldTableOrTheNewOne) {
    rewriteTable(store, control, u"0"_s, Rows);
    int failures = 0;
    for (bool failed = true; failed; ++failures) {
        const QString before = markOfTable(control, Rows);
        const QString mark = QString::number(failures + 1);
        failing_disk::fillUpAfter(failures, once());
        const int error = errorOf([&] { rewriteTable(store, control, mark, Rows); });
        EXPECT_FALSE(store.inTransaction());
        failed = failing_disk::makeSpace();
        EXPECT_EQ(error, failed ? RuntimeError::DiskFull : 0);
        EXPECT_EQ(markOfTable(control, Rows), error ? before : mark) << "after write " << failures;
        if (::testing::Test::HasFailure())
            return;
    }
    EXPECT_GT(failures, 20);
    expectSound();
}

TEST_P(DiskFull, InASaveLargerThanTheMemoryKeptForItLeavesTheOldTable) {
    const auto savePicture = [&](char byte) {
        Recordset& set = control.open(u"皮肤选择"_s);
        for (; !set.eof(); set.moveNext())
            set.deleteCurrent();
        for (int i = 0; i < 3; ++i)
            add(set, {{u"皮肤文件"_s, QByteArray(8'000'000, byte)}});
        store.commit();
    };
    savePicture('a');
    for (const int healthyWrites : {0, 1, 100, 1000, 5000, 7000, 9000}) {
        failing_disk::fillUpAfter(healthyWrites, once());
        EXPECT_EQ(errorOf([&] { savePicture('b'); }, u"磁盘已满"_s), RuntimeError::DiskFull) << healthyWrites;
        EXPECT_TRUE(failing_disk::makeSpace());
        Recordset& set = control.open(u"皮肤选择"_s);
        EXPECT_EQ(set.recordCount(), 3);
        EXPECT_EQ(set.field(2).getChunk(8'000'000), QByteArray(8'000'000, 'a')) << healthyWrites;
    }
    expectSound();
}

TEST_P(DiskFull, LeavesTheStoreUsableOnceThereIsSpace) {
    rewriteTable(store, control, u"旧"_s, Rows);
    failing_disk::fillUpAfter(5, once());
    EXPECT_EQ(errorOf([&] { rewriteTable(store, control, u"新"_s, Rows); }, u"data.dll"_s), RuntimeError::DiskFull);
    failing_disk::makeSpace();
    rewriteTable(store, control, u"新"_s, Rows);
    store.close();
    EXPECT_EQ(markOfTable(control, Rows), u"新"_s);
}

TEST_F(StoreTest, TheEndOfAnAccountsRoomIsAFullDisk) {
    rewriteTable(store, control, u"旧"_s, Rows);
    {
        const testing::SmallDisk disk(static_cast<rlim_t>(fileBytes().size()) + 10'000);
        EXPECT_EQ(errorOf([&] { rewriteTable(store, control, QString(1000, u'新'), Rows); }, u"磁盘已满"_s),
                  RuntimeError::DiskFull);
    }
    EXPECT_EQ(markOfTable(control, Rows), u"旧"_s);
}

INSTANTIATE_TEST_SUITE_P(OnceAndLasting, DiskFull, ::testing::Bool());

} // namespace
} // namespace qinghe
