#pragma once

#include "core/desktop.h"
#include "core/navigation.h"
#include "core/title_band.h"
#include "core/workbench.h"
#include "platform/timer.h"

#include <QElapsedTimer>

namespace qinghe {

/// The main window, `Form2`: its load, tray and drag, and what all pages share. The pages themselves stand above this
/// floor and enter themselves with the navigation.
class MainWindow : public Form {
    Q_OBJECT

public:
    explicit MainWindow(Workbench& bench);

    void load() override; ///< Form2_Form_Load

    Workbench& bench() { return m_bench; }
    Navigation& navigation() { return m_navigation; }

    Adodc* Adodc1; // nearly every page's table
    Adodc* Adodc2; // the second recordset of a page
    Adodc* Adodc3; // the month statistics' sums
    Timer* Timer1; // the clock in the title band

private:
    void bindEvents();
    void refuseSecondCopy();
    void preparePages();
    void startClock();
    void readTraySetting();
    void toTray();
    void onTrayMessage(int message);

    void Form2_Form_Click();
    void Form2_Form_MouseDown(double x, double y);
    void Form2_Form_MouseMove(double x, double y);
    void Form2_Form_Resize();

    Workbench& m_bench;
    Navigation m_navigation;
    TitleBand m_titleBand;
    Desktop* m_desktop;

    QElapsedTimer m_sinceReturn; ///< from the tray

    Int16 dragging;
    Int16 dragStartX; // dragStartY is the bench's emptyRowFlag
};

} // namespace qinghe
