#include "reminder_rig.h"

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

const ShownMessage Done{u"设置完毕！"_s, 64, u"系统提示"_s};

class ReminderChoice : public ReminderTest {
protected:
    CheckBox& onSchedule() { return rig.at(schedule::Remind); }
    CheckBox& onSettings() { return rig.at(settings::Remind); }
    QStringList stored() { return rig.sql(u"select * from txb"_s); }
    void startAgain() {
        rig.stop();
        rig.signIn();
    }
};

TEST_F(ReminderChoice, TickingStoresYesAndUntickingNo) {
    rig.click(onSchedule());
    EXPECT_EQ(stored(), QStringList{u"1"_s});
    rig.click(onSchedule());
    EXPECT_EQ(stored(), QStringList{u"0"_s});
    EXPECT_EQ(rig.messages->shown, (std::vector<ShownMessage>{Done, Done}));
}

TEST_F(ReminderChoice, BothBoxesDoTheSameAndTheLastOneClickedCounts) {
    onSettings().setValue(true);
    EXPECT_EQ(stored(), QStringList{u"1"_s});
    EXPECT_FALSE(onSchedule().Value());
    onSettings().setValue(false);
    EXPECT_EQ(stored(), QStringList{u"0"_s});
    EXPECT_EQ(rig.messages->shown, (std::vector<ShownMessage>{Done, Done}));
}

TEST_F(ReminderChoice, ATickForWhatIsAlreadyStoredIsSilent) {
    onSettings().setValue(true);
    rig.messages->shown.clear();
    onSchedule().setValue(true);
    EXPECT_TRUE(rig.messages->shown.empty());
    EXPECT_EQ(stored(), QStringList{u"1"_s});
}

TEST_F(ReminderChoice, OfSeveralRowsTheFirstTellsWhatIsStored) {
    rig.sql(u"delete from txb; insert into txb values(1),(0)"_s);
    onSettings().setValue(true);
    EXPECT_TRUE(rig.messages->shown.empty());
    EXPECT_EQ(stored(), (QStringList{u"1"_s, u"0"_s}));
}

TEST_F(ReminderChoice, TheClickConnectsItsTableItself) {
    rig.mainWindow().Adodc1->setConnectionString({});
    rig.click(onSchedule());
    EXPECT_EQ(stored(), QStringList{u"1"_s});
}

TEST_F(ReminderChoice, UntickingRewritesAndSaysSoEvenWhenNoIsStored) {
    onSettings().setValue(true);
    rig.sql(u"update txb set 日程提醒=0"_s);
    rig.messages->shown.clear();
    onSettings().setValue(false);
    EXPECT_EQ(rig.messages->shown, std::vector<ShownMessage>{Done});
}

TEST_F(ReminderChoice, AllRowsAreReplacedByOneAndAnEmptyTableGetsOne) {
    rig.sql(u"delete from txb; insert into txb values(0),(1),(0)"_s);
    onSchedule().setValue(true);
    EXPECT_EQ(stored(), QStringList{u"1"_s});
    rig.sql(u"delete from txb"_s);
    onSettings().setValue(true);
    EXPECT_EQ(stored(), QStringList{u"1"_s});
}

TEST_F(ReminderChoice, TheBoxesNeitherStartNorStopTheWatch) {
    onSchedule().setValue(true);
    EXPECT_FALSE(timer2().Enabled());
    watch();
    onSchedule().setValue(false);
    EXPECT_TRUE(timer2().Enabled());
}

TEST_F(ReminderChoice, AStartWithYesTicksBothBoxesWithoutAWordAndWatches) {
    rig.click(onSchedule());
    startAgain();
    EXPECT_TRUE(onSchedule().Value());
    EXPECT_TRUE(onSettings().Value());
    EXPECT_TRUE(timer2().Enabled());
    EXPECT_EQ(timer2().interval(), 1000);
    EXPECT_TRUE(rig.messages->shown.empty());
    EXPECT_EQ(stored(), QStringList{u"1"_s});
}

TEST_F(ReminderChoice, AStartWithNoOrWithTwoRowsWatchesNothing) {
    startAgain();
    EXPECT_FALSE(timer2().Enabled());
    rig.sql(u"delete from txb; insert into txb values(1),(1)"_s);
    startAgain();
    EXPECT_FALSE(timer2().Enabled());
    EXPECT_FALSE(onSchedule().Value());
}

} // namespace
} // namespace qinghe::testing
