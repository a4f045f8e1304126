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
        if (Form* popup = rig.loaded(forms::Reminder))
            tick(*popup->findChild<Timer*>(reminder::Clock));
    }
    static void tick(Timer& timer) {
        if (timer.Enabled())
            timer.Tick.fromQt();
    }
    /// The watch runs, as after a sign-in with reminders.
    void watch() { timer2().setEnabled(true); }

    bool rings() { return rig.loaded(forms::Reminder) && rig.loaded(forms::Reminder)->isVisible(); }
    QString shownPlan() { return rig.at(reminder::Plan).Caption(); }
    void understand() { press(reminder::Understood); }
    void endMusic() { press(reminder::EndMusic); }
    void closePopup() { rig.loaded(forms::Reminder)->close(); }
    QStringList takeCalls() { return std::exchange(rig.sound->calls, {}); }

private:
    void press(const QString& button) { rig.click(rig.control<CommandButton>(forms::Reminder, button)); }
};

} // namespace qinghe::testing
