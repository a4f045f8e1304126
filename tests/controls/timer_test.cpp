#include "controls/timer.h"
#include "support/guard_fixture.h"

#include <QTest>

namespace qinghe::testing {
namespace {

class TimerTest : public GuardTest {
protected:
    TimerTest() {
        timer.setInterval(1);
        timer.Tick = [this] { ++ticks; };
    }
    /// Lets the timer come round several times.
    static void wait() { QTest::qWait(20); }

    QObject form;
    Timer timer{&form, u"Timer1"_s};
    int ticks = 0;
};

TEST_F(TimerTest, IsReachedByNameAndStandsStillAtFirst) {
    EXPECT_EQ(form.findChild<QTimer*>(u"Timer1"_s), &timer);
    wait();
    EXPECT_FALSE(timer.Enabled());
    EXPECT_EQ(ticks, 0);
}

TEST_F(TimerTest, TicksWhileItIsEnabled) {
    timer.setEnabled(true);
    EXPECT_TRUE(QTest::qWaitFor([this] { return ticks >= 3; }));
    timer.setEnabled(false);
    ticks = 0;
    wait();
    EXPECT_EQ(ticks, 0);
}

TEST_F(TimerTest, CanBeDrivenByItsPropertiesFromOutside) {
    EXPECT_TRUE(timer.setProperty("Interval", 250));
    EXPECT_TRUE(timer.setProperty("Enabled", true));
    EXPECT_EQ(timer.interval(), 250);
    EXPECT_TRUE(timer.isActive());
    EXPECT_TRUE(timer.property("Enabled").toBool());
}

TEST_F(TimerTest, EnablingARunningTimerDoesNotStartItAfresh) {
    timer.setTimerType(Qt::PreciseTimer);
    timer.setInterval(10000);
    timer.setEnabled(true);
    wait();
    const int left = timer.remainingTime();
    ASSERT_LT(left, 10000);
    timer.setEnabled(true);
    EXPECT_LE(timer.remainingTime(), left);
}

TEST_F(TimerTest, WhileAHandlerIsAtWorkTicksWaitAndOneIsKept) {
    handlers::enter([this] {
        timer.setEnabled(true);
        wait();
        EXPECT_EQ(ticks, 0);
        timer.stop();
        timer.start(10000); // no further tick of its own
    });
    EXPECT_EQ(ticks, 1);
}

TEST_F(TimerTest, AWaitingTickIsDroppedWhenTheTimerIsDisabledMeanwhile) {
    handlers::enter([this] {
        timer.setEnabled(true);
        wait();
        timer.setEnabled(false);
    });
    EXPECT_EQ(ticks, 0);
}

TEST_F(TimerTest, AWaitingTickIsDroppedAlsoWhenTheTimerIsEnabledAgain) {
    handlers::enter([this] {
        timer.setEnabled(true);
        wait();
        timer.setEnabled(false);
        timer.setInterval(10000);
        timer.setEnabled(true);
    });
    EXPECT_EQ(ticks, 0);
}

TEST_F(TimerTest, AWaitingTickGoesWithItsTimer) {
    auto* doomed = new Timer(&form, u"Timer2"_s);
    doomed->setInterval(1);
    doomed->Tick = [this] { ++ticks; };
    handlers::enter([doomed] {
        doomed->setEnabled(true);
        wait();
        delete doomed;
    });
    EXPECT_EQ(ticks, 0);
}

TEST_F(TimerTest, AnErrorInATickEndsTheProgram) {
    timer.Tick = [] { throw RuntimeError(RuntimeError::Overflow, u"溢出"_s); };
    timer.setEnabled(true);
    EXPECT_TRUE(QTest::qWaitFor([this] { return log.contains(u"end 1"_s); }));
    timer.setEnabled(false);
    EXPECT_EQ(log.count(u"end 1"_s), 1);
}

} // namespace
} // namespace qinghe::testing
