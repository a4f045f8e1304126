#pragma once

#include "core/main_window.h"

namespace qinghe {

/// A moment as the schedule's lists write it: hour, blank, minute, without leading zeros: "8 5". A plan whose time
/// reads otherwise ("08 05") never rings.
QString reminderTime(const QTime& moment);

/// Watches the clock while the main window runs. `Timer2` compares it with today's plans in `rcb` once a second and
/// opens the reminder (`Form6`) at the planned minute; a row has no mark that it has rung. What keeps it from ringing
/// twice is the pause that `Timer3` counts after "知道了": 70 ticks, longer than any minute, in which other plans are
/// lost as well. That is meant.
class Reminders : public QObject {
    Q_OBJECT

public:
    explicit Reminders(MainWindow& window);

    void Form2_Check1_Click();
    void Form2_Check8_Click();
    void Form2_Timer2_Timer();
    void Form2_Timer3_Timer();

private:
    void storeTick(const CheckBox& box);
    bool anyPlanToday();
    void ringDue();

    MainWindow& window;
    Workbench& bench;
    Adodc& Adodc1;

    Int16 remindersChecked;   ///< 1 once a day with plans was met; from then on an empty day stops no watch
    Int16 reminderPauseTicks; ///< of Timer3, up to 70
};

} // namespace qinghe
