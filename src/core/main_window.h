#pragma once

#include "core/desktop.h"
#include "core/navigation.h"
#include "core/workbench.h"
#include "platform/timer.h"

#include <memory>

namespace qinghe {

/// The main window, `Form2`: title band, window images, tray, drag, and the frames of all pages. The pages themselves
/// stand above this floor and put their controls into the frames.
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

    CheckBox* Check1; // reminders, on the schedule page
    CheckBox* Check5; // hidden for good
    CheckBox* Check7; // minimise to the tray, on the settings page
    CheckBox* Check8; // reminders, on the settings page

    void Form2_Image3_Click(); ///< the only way out
    void Form2_Image4_Click();
    void Form2_Image5_Click();
    void Form2_Image7_Click();
    void Form2_Label20_Click();

private:
    void makeTitleBand();
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

    Image* Picture3; // the band of date, time and address
    Label* Label16;  // date of the load
    Label* Label17;  // time
    Label* Label20;  // the makers' address
    Label* Label26;  // the program's name
    Image* Image3;   // exit
    Image* Image4;   // minimise
    Image* Image5;   // tools
    Image* Image7;   // introduction
    std::unique_ptr<Desktop> m_desktop;

    Int16 dragging;
    Int16 dragStartX; // dragStartY is the bench's emptyRowFlag
};

} // namespace qinghe
