#include "store/data_file.h"
#include "store/failing_disk.h"
#include "store/journal_file.h"
#include "store/rewritten_table.h"

using namespace Qt::StringLiterals;

namespace qinghe {
namespace {

constexpr int Rows = 150;

class PowerCut : public StoreTest {
protected:
    ~PowerCut() override { failing_disk::restorePower(); }
};

TEST_F(PowerCut, AtAnyChangeOfASaveLeavesTheOldTableOrTheNewOneAndNeverTakesBackACommit) {
    rewriteTable(store, control, u"0"_s, Rows);
    int cuts = 0, ownJournals = 0;
    for (bool cut = true; cut; ++cuts) {
        const QString before = markOfTable(control, Rows);
        const QString mark = QString::number(cuts + 1);
        failing_disk::cutPowerAfter(cuts);
        const int error = errorOf([&] { rewriteTable(store, control, mark, Rows); });
        store.close();
        cut = failing_disk::restorePower();
        const JournalKind left = judgeJournal(journalOf(path()), path());
        EXPECT_NE(left, JournalKind::Foreign) << "after change " << cuts;
        ownJournals += left == JournalKind::Own;
        const QString after = markOfTable(control, Rows);
        EXPECT_TRUE(after == mark || (error && after == before)) << "after change " << cuts;
        EXPECT_EQ(fileBytes().mid(1, 2), QByteArray("\x01\x00", 2));
        if (::testing::Test::HasFailure())
            return;
    }
    EXPECT_GT(cuts, 20);
    EXPECT_GT(ownJournals, 5);
    EXPECT_EQ(OtherProgram(path()).row(u"PRAGMA integrity_check"_s), u"ok"_s);
}

TEST_F(PowerCut, RightAfterACommitTakesNothingBack) {
    for (int round = 0; round < 20; ++round) {
        failing_disk::cutPowerAfter(1'000'000);
        rewriteTable(store, control, QString::number(round), Rows);
        store.close();
        failing_disk::restorePower();
        EXPECT_EQ(markOfTable(control, Rows), QString::number(round));
        store.close();
    }
}

} // namespace
} // namespace qinghe
