#pragma once

#include "core/desktop.h"
#include "core/navigation.h"
#include "core/title_band.h"
#include "core/workbench.h"
#include "platform/mm_control.h"
#include "platform/timer.h"

#include <QElapsedTimer>

#include <memory>

namespace qinghe {

/// The main window, `Form2`: its load, tray and drag, and the frames of all pages. The pages themselves stand above
/// this floor and put their controls into the frames.
class MainWindow : public Form {
    Q_OBJECT

public:
    explicit MainWindow(Workbench& bench);
    ~MainWindow() override;

    void load() override; ///< Form2_Form_Load

    Workbench& bench() { return m_bench; }
    Navigation& navigation() { return m_navigation; }

    Adodc* Adodc1; // nearly every page's table
    Adodc* Adodc2; // the second recordset of a page
    Adodc* Adodc3; // the month statistics' sums
    Timer* Timer1; // the clock in the title band
    Timer* Timer2; // compares the clock with today's plans
    Timer* Timer3; // the pause of the reminders

    MMControl* MM1; // the music of schedule and reminder

    CheckBox* Check1; // reminders, on the schedule page
    CheckBox* Check5; // hidden for good
    CheckBox* Check7; // minimise to the tray, on the settings page
    CheckBox* Check8; // reminders, on the settings page

private:
    void makeSettingsBoxes();
    void bindEvents();
    void refuseSecondCopy();
    void preparePages();
    void startClock();
    void readReminderSetting();
    void readTraySetting();
    void toTray();

    void Form2_Form_Click();
    void Form2_Form_MouseDown(double x, double y);
    void Form2_Form_MouseMove(double x, double y);
    void Form2_Form_Resize();

    Workbench& m_bench;
    Navigation m_navigation;
    TitleBand m_titleBand;
    std::unique_ptr<Desktop> m_desktop;

    QElapsedTimer m_sinceReturn; ///< from the tray

    Int16 dragging;
    Int16 dragStartX; // dragStartY is the bench's emptyRowFlag
};

} // namespace qinghe
