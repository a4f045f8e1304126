#pragma once

#include "controls/timer.h"
#include "core/desktop_page.h"
#include "core/navigation.h"
#include "core/shared.h"
#include "core/title_band.h"

#include <QElapsedTimer>

namespace qinghe {

class FindBar;
class WindowKeys;

/// The main window, `Form2`: its load, tray and drag, and what all pages share. The pages themselves stand above this
/// floor and enter themselves with the navigation.
class MainWindow : public Form {
    Q_OBJECT

public:
    explicit MainWindow(Shared& shared);

    /// At 100 %; no other window of the program is wider or higher.
    static QSize sizeInPixels();

    void load() override; ///< Form2_Form_Load
    /// Out of the tray, up from the bar or from under other windows, for a second copy that has been turned away.
    void comeForward();

    Shared& shared() { return m_shared; }
    Navigation& navigation() { return m_navigation; }
    const Navigation& navigation() const { return m_navigation; }
    /// The picture behind the desktop's figures.
    Image& desktopPicture() { return *m_desktop->Image2; }

    Adodc* Adodc1; // nearly every page's table
    Adodc* Adodc2; // the second recordset of a page
    Adodc* Adodc3; // the month statistics' sums
    Timer* Timer1; // the clock in the title band

protected:
    std::vector<QWidget*> tabStops() const override { return m_navigation.tabStops(); }

private:
    void bindEvents();
    void openFindBar();
    void refuseSecondCopy();
    void startClock();
    void showNotes();
    void readTraySetting();
    void toTray();
    void onTrayMessage(int message);
    /// Shows the window when a message of the tray asks for it. The pixel column of the pointer is taken for one too.
    void comeBack(double message);
    /// Drags the window, where it is being dragged, and takes away the marks of hovering. Twips inside the window.
    void followPointer(double x, double y);

    void Form2_Form_Click();
    void Form2_Form_MouseDown(double x, double y);
    void Form2_Form_MouseMove(double x, double y);
    void Form2_Form_Resize();

    Shared& m_shared;
    Navigation m_navigation;
    TitleBand m_titleBand;
    DesktopPage* m_desktop;
    WindowKeys* m_keys = nullptr;
    QPointer<FindBar> m_findBar; ///< made at its first use; a child of the page that it was last at

    QElapsedTimer m_sinceReturn; ///< from the tray

    bool dragging = false;
    Int16 dragStartX; // dragStartY is emptyRowFlag, which is shared
};

} // namespace qinghe
