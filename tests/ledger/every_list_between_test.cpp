#include "ledger/ledger_lists.h"
#include "support/page_rig.h"

// What comes between the opening of a page and its save, from other pages and windows: the save goes into the table of
// the page all the same.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class EveryListBetweenTest : public EveryListTest {
protected:
    /// Opens the backup window, which stays open, and makes a copy of the ledger as it is.
    void backUp() {
        press(rig.at(pages::Settings));
        chooseWindow(settings::Backup);
        copy();
        chooseWindow(settings::Restore);
    }
    /// With the window that stayed open.
    void restore() { copy(); }

    void edit() { fillCell(1, list.text, u"改过"_s); }
    void expectSavedWithEdit() {
        press(save());
        EXPECT_TRUE(rig.messages->errors.empty());
        EXPECT_EQ(rig.lastMessage(), SaveDone);
        ASSERT_EQ(stored().size(), 2);
        EXPECT_TRUE(stored().front().contains(u"改过"_s));
    }

private:
    void chooseWindow(const Name<OptionButton>& name) {
        auto& way = option(name);
        QTest::mouseClick(&way, Qt::LeftButton, {}, {8, way.height() / 2});
        rig.settle();
    }
    void copy() {
        rig.chooser->names = {rig.file(u"b.dat"_s)};
        press(rig.at(backup::Start));
    }
};

INSTANTIATE_TEST_SUITE_P(Lists, EveryListBetweenTest, ::testing::ValuesIn(LedgerLists), listName);

TEST_P(EveryListBetweenTest, ASaveAfterARestoreGoesIntoTheRestoredFile) {
    store(2);
    backUp();
    rig.sql(u"delete from %1"_s.arg(list.table.toString()));
    store(1);
    open();
    fillCell(1, list.text, u"改过"_s);
    restore();
    ASSERT_EQ(stored().size(), 2);
    press(save());
    EXPECT_TRUE(rig.messages->errors.empty());
    EXPECT_EQ(rig.lastMessage(), SaveDone);
    ASSERT_EQ(stored().size(), 1); // what stood in the grid
    EXPECT_TRUE(stored().front().contains(u"改过"_s));
    EXPECT_EQ(rig.sql(u"pragma integrity_check"_s), QStringList{u"ok"_s});
}

TEST_P(EveryListBetweenTest, ADeletionAfterARestoreTakesTheRowOfTheRestoredFile) {
    store(2);
    backUp();
    open();
    restore();
    clickCell(2, list.text);
    press(remove());
    EXPECT_TRUE(rig.messages->errors.empty());
    EXPECT_EQ(stored().size(), 1);
}

TEST_P(EveryListBetweenTest, ASaveAfterATickOfTheRemindersGoesIntoItsTable) {
    rig.sql(u"insert into rcb(日程日期,提醒时间,日程内容) values('2024-06-18','1 1','交电费')"_s);
    openWith(2);
    edit();
    auto& watch = rig.at(schedule::Watch);
    watch.setEnabled(true);
    watch.Tick.fromQt();
    expectSavedWithEdit();
    EXPECT_EQ(rig.sql(u"select count(*) from rcb"_s), QStringList{u"1"_s});
}

TEST_P(EveryListBetweenTest, ASaveAfterRowsWentBehindItsBackWritesTheGrid) {
    openWith(2);
    edit();
    rig.sql(u"delete from %1"_s.arg(list.table.toString())); // as a purge does
    expectSavedWithEdit();
}

} // namespace
} // namespace qinghe::testing
