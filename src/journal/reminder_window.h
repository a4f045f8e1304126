#pragma once

#include "controls/controls.h"
#include "controls/form.h"
#include "controls/mm_control.h"
#include "controls/scroll_pane.h"
#include "controls/timer.h"

namespace qinghe {

class Reminders;

/// `Form6`: shows the plan that is due and plays its music over and over, until the user reacts. It has no media
/// control of its own and moves the main window's. Closed by its window button it comes back within its minute, since
/// only "知道了" begins the pause. It comes up over all windows and leaves the keyboard where it is: nobody who types
/// presses its buttons by chance; F8 answers it from the other windows of the program. It is as high as its plan is
/// long, up to a share of the screen; a longer one scrolls.
class ReminderWindow : public Form {
    Q_OBJECT

public:
    explicit ReminderWindow(Reminders& reminders);

    /// Reads plan and music from the row that is due.
    void load() override;
    void unloaded() override;

    void Form6_Timer1_Timer();
    void Form6_Command1_Click();
    void Form6_Command2_Click();

private:
    void bindKey();
    void layOut(double textHeight);
    void showPlan(const QString& plan);
    void endMusic();

    Reminders& m_reminders;
    MMControl& MM1;
    Timer* Timer1; // plays the music and begins it again
    Frame* m_panel;
    ScrollPane* m_pane;
    Label* Label1;           // the plan
    CommandButton* Command1; // 知道了
    CommandButton* Command2; // 停止音乐
};

} // namespace qinghe
