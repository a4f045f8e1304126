#pragma once

#include "journal/reminder_window.h"
#include "schedule_rig.h"

namespace qinghe::testing {

/// A program whose clock the test moves on, second by second, with the ticks of its timers.
class ReminderTest : public ScheduleTest {
protected:
    void setClock(const QString& dateAndTime) { rig.clock->time = QDateTime::fromString(dateAndTime, Qt::ISODate); }
    /// One second: the clock first, then every timer that is enabled ticks once.
    void pass(int seconds = 1) {
        for (int i = 0; i < seconds; ++i) {
            rig.clock->time = rig.clock->time.addSecs(1);
            tickAll();
        }
    }
    void tickAll() {
        tick(timer2());
        tick(timer3());
        if (Form* popup = rig.loaded(QStringLiteral("Form6")))
            tick(*popup->findChild<Timer*>(QStringLiteral("Timer1")));
    }
    static void tick(Timer& timer) {
        if (timer.Enabled())
            timer.Tick.fromQt();
    }
    /// The watch runs, as after a sign-in with reminders.
    void watch() { timer2().setEnabled(true); }

    bool rings() { return rig.loaded(QStringLiteral("Form6")) && rig.loaded(QStringLiteral("Form6"))->isVisible(); }
    QString shownPlan() { return rig.control<Label>(QStringLiteral("Form6"), QStringLiteral("Label1")).Caption(); }
    void understand() { press(QStringLiteral("Command1")); }
    void endMusic() { press(QStringLiteral("Command2")); }
    void closePopup() { rig.loaded(QStringLiteral("Form6"))->close(); }
    QStringList takeCalls() { return std::exchange(rig.sound->calls, {}); }

private:
    void press(const QString& button) { rig.click(rig.control<CommandButton>(QStringLiteral("Form6"), button)); }
};

} // namespace qinghe::testing
