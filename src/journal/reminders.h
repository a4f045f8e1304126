#pragma once

#include "controls/mm_control.h"
#include "core/main_window.h"

namespace qinghe {

/// A moment as the schedule's lists write it: hour, blank, minute, without leading zeros: "8 5". A plan whose time
/// reads otherwise ("08 05") never rings.
QString reminderTime(const QTime& moment);

/// Watches the clock while the main window runs. `Timer2` compares it with today's plans in `rcb` once a second and
/// opens the reminder (`Form6`) at the planned minute; a row has no mark that it has rung. What keeps it from ringing
/// twice is the pause that `Timer3` counts after "知道了": 70 ticks, since it must outlast the minute. The price is
/// that other plans of that time are lost.
class Reminders : public QObject {
    Q_OBJECT

public:
    explicit Reminders(MainWindow& window);

    /// Watches from now on: a plan saved now counts at once.
    void watch();
    /// The pause after "知道了". It begins at once, not at its first tick: a comparison that waits would bring the
    /// reminder back.
    void pause();

    /// The row that is due while the reminder's window loads: `提醒音乐` and `日程内容` of the current one.
    Recordset& due() { return Adodc1.recordset(); }
    Shared& shared() { return m_shared; }
    MMControl* const MM1; // the music of schedule and reminder

    void Form2_Timer2_Timer();
    void Form2_Timer3_Timer();

private:
    /// Opens the plans of a day; false while another program holds the book: the next tick asks again.
    bool readPlans(const QDate& day, QStringView columns);
    void ringDue();

    Shared& m_shared;
    Adodc& Adodc1;
    Timer* const Timer2; // compares the clock with today's plans
    Timer* const Timer3; // the pause

    bool remindersChecked = false; ///< once a day with plans was met; from then on an empty day stops no watch
    Int16 reminderPauseTicks;      ///< of Timer3, up to 70
};

} // namespace qinghe
