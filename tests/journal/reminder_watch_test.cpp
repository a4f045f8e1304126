#include "reminder_rig.h"
#include "support/held_book.h"

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class ReminderWatch : public ReminderTest {
protected:
    /// Whether a plan of this time rings at 8:05 of its day.
    bool ringsAtFivePastEight(const QString& time) {
        rig.sql(u"delete from rcb"_s);
        plant(u"2024-06-18"_s, time, u"a"_s);
        setClock(u"2024-06-18T08:05:30"_s);
        watch();
        pass();
        const bool rang = rings();
        if (rang)
            closePopup();
        return rang;
    }
};

TEST(ReminderTime, IsHourAndMinuteWithoutLeadingZeros) {
    EXPECT_EQ(reminderTime(QTime(8, 5)), u"8 5"_s);
    EXPECT_EQ(reminderTime(QTime(12, 30, 59)), u"12 30"_s);
    EXPECT_EQ(reminderTime(QTime(9, 0)), u"9 0"_s);
    EXPECT_EQ(reminderTime(QTime(0, 0)), u"0 0"_s);
    EXPECT_EQ(reminderTime(QTime(23, 59)), u"23 59"_s);
}

TEST_F(ReminderWatch, APlanRingsInItsMinuteAndShowsItsText) {
    plant(u"2024-06-18"_s, u"20 37"_s, u"给爷爷打电话"_s);
    setClock(u"2024-06-18T20:36:58"_s);
    watch();
    pass();
    EXPECT_FALSE(rings());
    pass();
    ASSERT_TRUE(rings());
    EXPECT_EQ(shownPlan(), u"给爷爷打电话"_s);
    EXPECT_FALSE(rig.loaded(forms::Reminder)->isModal());
}

TEST_F(ReminderWatch, WhileAnotherProgramHoldsTheBookTicksEndNothingAndTheNextOneRings) {
    plant(u"2024-06-18"_s, u"20 37"_s, u"a"_s);
    setClock(u"2024-06-18T20:36:58"_s);
    watch();
    for (int held = 0; held < 2; ++held) { // at the first look at the day, and at a later one
        const HeldBook other(rig.dataFile());
        pass(held);
        tickAll();
    }
    EXPECT_FALSE(rings() || rig.ended());
    EXPECT_TRUE(timer2().Enabled());
    pass();
    EXPECT_TRUE(rings());
}

TEST_F(ReminderWatch, EverySecondOfTheMinuteMatches) {
    plant(u"2024-06-18"_s, u"20 37"_s, u"a"_s);
    setClock(u"2024-06-18T20:37:58"_s);
    watch();
    pass();
    EXPECT_TRUE(rings());
}

TEST_F(ReminderWatch, OnlyTheTimeAsTheListsWriteItMatches) {
    EXPECT_TRUE(ringsAtFivePastEight(u"8 5"_s));
    for (const QString& time : {u"08 05"_s, u"8 05"_s, u"8:5"_s, u"8 5 "_s, u"8  5"_s, u" "_s, u""_s, u"20 5"_s})
        EXPECT_FALSE(ringsAtFivePastEight(time)) << time.toStdString();
}

TEST_F(ReminderWatch, TheMinuteZeroOfTheListMatchesTheFullHour) {
    write(u"a"_s, u"2024-6-19"_s, u"9"_s, u"0"_s);
    rig.click(save());
    setClock(u"2024-06-19T08:59:59"_s);
    pass();
    EXPECT_TRUE(rings());
}

TEST_F(ReminderWatch, APlanOfAnotherDayDoesNotRing) {
    plant(u"2024-06-18"_s, u"1 0"_s, u"a"_s);
    plant(u"2024-06-19"_s, u"20 37"_s, u"b"_s);
    plant(u"2023-06-18"_s, u"20 37"_s, u"c"_s);
    setClock(u"2024-06-18T20:37:00"_s);
    watch();
    pass(70);
    EXPECT_FALSE(rings());
    EXPECT_TRUE(timer2().Enabled());
}

TEST_F(ReminderWatch, OfTwoPlansInOneMinuteTheFirstInTheTableRings) {
    plant(u"2024-06-18"_s, u"20 37"_s, u"first"_s, u"音乐2"_s);
    plant(u"2024-06-18"_s, u"20 37"_s, u"second"_s, u"音乐3"_s);
    setClock(u"2024-06-18T20:37:00"_s);
    watch();
    pass(3);
    EXPECT_EQ(shownPlan(), u"first"_s);
    EXPECT_EQ(rig.at(schedule::Player).FileName(), rig.file(u"音乐2.wav"_s));
    understand();
    // The pause swallows the rest of the minute, and with it the second plan.
    pass(200);
    EXPECT_FALSE(rings());
}

TEST_F(ReminderWatch, APlanOfTheNextMinuteDoesNotReplaceTheOneThatStands) {
    plant(u"2024-06-18"_s, u"20 37"_s, u"first"_s);
    plant(u"2024-06-18"_s, u"20 38"_s, u"second"_s);
    setClock(u"2024-06-18T20:37:00"_s);
    watch();
    pass(100);
    EXPECT_EQ(shownPlan(), u"first"_s);
}

TEST_F(ReminderWatch, APlanOfTheNextMinuteIsLostWhenTheAnswerFallsInTheFirst) {
    plant(u"2024-06-18"_s, u"20 37"_s, u"first"_s);
    plant(u"2024-06-18"_s, u"20 38"_s, u"second"_s);
    setClock(u"2024-06-18T20:37:48"_s);
    watch();
    pass();
    understand(); // at 20:37:49: the pause lasts to 20:38:59
    for (int i = 0; i < 70; ++i) {
        pass();
        ASSERT_FALSE(rings());
    }
    EXPECT_TRUE(timer2().Enabled());
    pass(200);
    EXPECT_FALSE(rings());
}

TEST_F(ReminderWatch, ThePauseBeginsAtOnceAndLastsSeventyTicks) {
    plant(u"2024-06-18"_s, u"20 37"_s, u"a"_s);
    setClock(u"2024-06-18T20:36:59"_s);
    watch();
    pass();
    ASSERT_TRUE(rings());
    timer3().setInterval(5);
    understand();
    EXPECT_FALSE(rig.loaded(forms::Reminder));
    EXPECT_FALSE(timer2().Enabled());
    EXPECT_TRUE(timer3().Enabled());
    EXPECT_EQ(timer3().interval(), 1000);
    pass(69);
    EXPECT_FALSE(timer2().Enabled());
    pass();
    EXPECT_TRUE(timer2().Enabled());
    EXPECT_FALSE(timer3().Enabled());
    EXPECT_FALSE(rings());
}

TEST_F(ReminderWatch, ASecondPauseIsAsLongAsTheFirst) {
    plant(u"2024-06-18"_s, u"20 37"_s, u"a"_s);
    plant(u"2024-06-18"_s, u"20 40"_s, u"b"_s);
    setClock(u"2024-06-18T20:36:59"_s);
    watch();
    pass();
    understand();
    pass(180);
    ASSERT_TRUE(rings());
    EXPECT_EQ(shownPlan(), u"b"_s);
    understand();
    pass(69);
    EXPECT_FALSE(timer2().Enabled());
    pass();
    EXPECT_TRUE(timer2().Enabled());
}

TEST_F(ReminderWatch, WithNoPlanTodayTheFirstTickEndsTheWatch) {
    plant(u"2024-06-19"_s, u"8 5"_s, u"tomorrow"_s);
    watch();
    pass();
    EXPECT_FALSE(timer2().Enabled());
}

TEST_F(ReminderWatch, APlanSavedForTodayStartsTheWatchAgainOneKeptByTheOtherButtonDoesNot) {
    watch();
    pass();
    write(u"a"_s, u"2024-6-18"_s, u"20"_s, u"36"_s);
    rig.click(fresh());
    EXPECT_FALSE(timer2().Enabled());
    pass();
    EXPECT_FALSE(rings());
    rig.click(fresh());
    write(u"b"_s, u"2024-6-18"_s, u"20"_s, u"36"_s);
    rig.click(save());
    pass();
    EXPECT_TRUE(rings());
}

TEST_F(ReminderWatch, TheFirstTickConnectsTheTableItself) {
    plant(u"2024-06-18"_s, u"20 36"_s, u"a"_s);
    Adodc& control = *rig.mainWindow().Adodc1;
    control.setConnectionString({});
    watch();
    pass();
    EXPECT_TRUE(rings());
    EXPECT_EQ(control.connectionString(), rig.program->shared().connection());
}

TEST_F(ReminderWatch, APlanSavedAMomentAgoCountsAtTheNextTick) {
    plant(u"2024-06-18"_s, u"1 0"_s, u"a"_s);
    watch();
    pass();
    plant(u"2024-06-18"_s, u"20 36"_s, u"b"_s);
    pass();
    EXPECT_TRUE(rings());
}

TEST_F(ReminderWatch, OnceADayHadPlansAnEmptyDayAfterMidnightEndsNoWatch) {
    plant(u"2024-06-18"_s, u"1 0"_s, u"a"_s);
    plant(u"2024-06-20"_s, u"0 0"_s, u"b"_s);
    setClock(u"2024-06-18T23:59:50"_s);
    watch();
    pass(20);
    EXPECT_TRUE(timer2().Enabled());
    EXPECT_FALSE(rings());
    setClock(u"2024-06-19T23:59:59"_s);
    pass();
    EXPECT_TRUE(rings());
}

TEST_F(ReminderWatch, TheLastDayOfFebruaryRings) {
    plant(u"2024-02-29"_s, u"23 59"_s, u"leap"_s);
    plant(u"2025-02-28"_s, u"23 59"_s, u"common"_s);
    setClock(u"2024-02-29T23:58:59"_s);
    watch();
    pass();
    EXPECT_EQ(shownPlan(), u"leap"_s);
    understand();
    pass(70);
    setClock(u"2025-02-28T23:58:59"_s);
    pass();
    EXPECT_EQ(shownPlan(), u"common"_s);
}

TEST_F(ReminderWatch, AClockThatIsSetBackRingsOnceMore) {
    plant(u"2024-06-18"_s, u"20 37"_s, u"a"_s);
    setClock(u"2024-06-18T20:36:59"_s);
    watch();
    pass();
    understand();
    pass(70);
    EXPECT_FALSE(rings());
    setClock(u"2024-06-18T20:36:59"_s);
    pass();
    EXPECT_TRUE(rings());
}

TEST_F(ReminderWatch, NoTickRunsInsideAnotherHandler) {
    plant(u"2024-06-18"_s, u"20 36"_s, u"a"_s);
    watch();
    bool during = true;
    rig.messages->whileShown = [&](const ShownMessage&) {
        QTest::qWait(1100);
        during = rings();
    };
    rig.click(fresh());
    EXPECT_FALSE(during);
    EXPECT_TRUE(rings());
}

TEST_F(ReminderWatch, ASaveBehindATickGoesIntoThePagesOwnTable) {
    plant(u"2024-06-18"_s, u"20 36"_s, u"plan"_s);
    rig.sql(u"insert into srb(编号,时间,项目,收款人,金额,账户) values('1','2024-06-01','工资','我',5,'现金')"_s);
    rig.click(rig.at(pages::Income));
    watch();
    pass();
    ASSERT_TRUE(rings());
    understand();
    rig.click(rig.at(income::Save));
    EXPECT_EQ(plans(u"日程内容"_s), QStringList{u"plan"_s});
    EXPECT_EQ(rig.sql(u"select 项目 from srb"_s), QStringList{u"工资"_s});
    EXPECT_TRUE(rig.messages->errors.empty());
}

TEST_F(ReminderWatch, ATickAsksOnTheControlThatThePagesUseToo) {
    auto& control = *rig.mainWindow().Adodc1;
    handlers::enter([&] { control.open(u"yhb"_s); });
    watch();
    pass();
    EXPECT_FALSE(timer2().Enabled());
    EXPECT_EQ(control.recordSource(), u"select * from rcb where 日程日期= # 2024-6-18 # ");
}

TEST_F(ReminderWatch, APopupThatStandsIsNotShownAnewAtEveryTick) {
    plant(u"2024-06-18"_s, u"20 36"_s, u"a"_s);
    watch();
    pass();
    ASSERT_TRUE(rings());
    // One that has gone behind another window is left there.
    struct Risings : QObject {
        bool eventFilter(QObject*, QEvent* event) override {
            count += event->type() == QEvent::ZOrderChange;
            return false;
        }
        int count = 0;
    } risings;
    rig.loaded(forms::Reminder)->installEventFilter(&risings);
    pass(10);
    EXPECT_EQ(risings.count, 0);
}

TEST_F(ReminderWatch, APauseEndsAWatchThatASaveHasBegunMeanwhile) {
    plant(u"2024-06-18"_s, u"20 36"_s, u"a"_s);
    watch();
    pass();
    understand();
    rig.click(fresh());
    write(u"b"_s, u"2024-6-18"_s, u"20"_s, u"36"_s);
    rig.click(save());
    ASSERT_TRUE(timer2().Enabled());
    tick(timer3());
    EXPECT_FALSE(timer2().Enabled());
    pass(5);
    EXPECT_FALSE(rings());
}

} // namespace
} // namespace qinghe::testing
