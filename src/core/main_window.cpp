#include "core/main_window.h"

#include "core/stored_choice.h"
#include "core/stored_picture.h"
#include "core/tray_icon.h"
#include "core/window_shape.h"
#include "platform/files.h"
#include "store/header_toggle.h"

#include <QTimer>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr quint32 Red = 255;
constexpr double FormWidth = 12000, FormHeight = 8100; // twips
constexpr int Minimised = 1, Normal = 0;
constexpr int LateReportMs = 250;     ///< how long a busy window manager may still tell of the way to the tray
constexpr int LeftButtonDown = 513;   ///< the tray's message for a press of the left button
constexpr int OtherTrayMessage = 130; ///< compared as well, and meant

} // namespace

MainWindow::MainWindow(Workbench& bench)
    : Form(u"Form2"_s, Kind::Frameless, Ground::Main),
      Adodc1(new Adodc(bench.store, u"Adodc1"_s, this)),
      Adodc2(new Adodc(bench.store, u"Adodc2"_s, this)),
      Adodc3(new Adodc(bench.store, u"Adodc3"_s, this)),
      Timer1(new Timer(this, u"Timer1"_s)),
      Timer2(new Timer(this, u"Timer2"_s)),
      Timer3(new Timer(this, u"Timer3"_s)),
      MM1(new MMControl(*bench.services.sound, u"MM1"_s, this)),
      m_bench(bench),
      m_navigation(*this, bench),
      m_titleBand(*this, bench) {
    setCaption(productName());
    placeInMiddle(FormWidth, FormHeight);
    makeSettingsBoxes();
    m_desktop = std::make_unique<Desktop>(bench, m_navigation, *Adodc1);
    bindEvents();
}

MainWindow::~MainWindow() = default;

void MainWindow::makeSettingsBoxes() {
    const auto box = [this](const char16_t* frame, const char16_t* name, const char16_t* caption) {
        auto* made = new CheckBox(&m_navigation.frame(QString::fromUtf16(frame)), QString::fromUtf16(name),
                                  QString::fromUtf16(caption));
        made->setShown(false);
        return made;
    };
    Check1 = box(u"Frame17", u"Check1", u"登陆定时提醒日程");
    Check5 = box(u"Frame16", u"Check5", u"开机启动");
    Check7 = box(u"Frame16", u"Check7", u"最小化到系统托盘");
    Check8 = box(u"Frame16", u"Check8", u"登陆自动定时提醒今日日程");
}

void MainWindow::bindEvents() {
    Click = [this] { Form2_Form_Click(); };
    MouseDown = [this](double x, double y) { Form2_Form_MouseDown(x, y); };
    MouseMove = [this](double x, double y) { Form2_Form_MouseMove(x, y); };
    MouseUp = [this](double, double) { dragging = 0; };
    Resize = [this] { Form2_Form_Resize(); };
    // The desktop may close the window (a shortcut of the window manager); the program ends like any other then: the
    // header stays healed and the pictures stay.
    CloseAsked = [] { throw handlers::ProgramEnd{0}; };
    Timer1->Tick = [this] { m_titleBand.showTime(); };
}

void MainWindow::load() {
    Adodc1->setConnectionString(m_bench.connection());
    refuseSecondCopy();
    if (const QString diary = m_bench.beside(u"mydiary"_s); !files::isFolder(diary))
        files::makeFolder(diary);
    Check5->setShown(false);
    m_navigation.currentPage = 24;
    shapeMainWindow(*this);
    m_bench.store.close();
    healHeader(m_bench.beside(u"data.dll"_s));
    showForm();
    preparePages();
    startClock();
    readReminderSetting();
    readTraySetting();
    setPicture(writeOut(ChosenSkin, *Adodc1, m_bench, *this));
    m_desktop->Image2->setPicture(writeOut(DesktopPicture, *Adodc1, m_bench, *m_desktop->Image2));
    m_desktop->computeSums();
    m_desktop->listPlans(false);
}

void MainWindow::refuseSecondCopy() {
    if (m_bench.services.instance->tryTake())
        return;
    m_bench.services.say(u"程序已经运行，程序可能已经最小化到左下角或系统托盘！"_s);
    throw handlers::ProgramEnd{0};
}

void MainWindow::preparePages() {
    m_navigation.label(u"Label24"_s).setForeColor(Red);
    m_navigation.bringForward(24);
    for (const char16_t* name : {u"Frame7", u"Frame8", u"frame9", u"Frame10", u"Frame15", u"Frame16", u"Frame6",
                                 u"Frame3", u"Frame2", u"Frame17"})
        m_navigation.frame(QString::fromUtf16(name)).setShown(false);
    for (Adodc* control : {Adodc1, Adodc2, Adodc3})
        control->setVisible(false);
}

void MainWindow::startClock() {
    Timer1->setInterval(1000);
    Timer1->setEnabled(true);
    m_titleBand.showDateAndTime();
}

void MainWindow::readReminderSetting() {
    if (!RemindAtSignIn.isYes(*Adodc1) || Adodc1->recordset().recordCount() != 1)
        return;
    Check1->setValue(true);
    Check8->setValue(true);
    Timer2->setInterval(1000);
    Timer2->setEnabled(true);
}

void MainWindow::readTraySetting() {
    if (!MinimiseToTray.isYes(*Adodc1))
        return;
    Check7->setValue(true);
    toTray();
}

void MainWindow::toTray() {
    if (!m_bench.services.tray->available()) {
        // Nobody is locked out of a window that has no icon to come back by.
        if (WindowState() != Minimised)
            setWindowState(Minimised);
        return;
    }
    m_bench.services.tray->add(trayDataFor(*this),
                               [this](int message) { Form2_Form_MouseMove(message * TwipsPerPixel, 0); });
    // Hidden at the next turn: the window system is still at work on the change of state that brought us here.
    QTimer::singleShot(0, this, [this] { handlers::enter([this] { setShown(false); }); });
}

void MainWindow::Form2_Form_Resize() {
    if (!Visible())
        return;
    if (WindowState() == Minimised && m_sinceReturn.isValid() && m_sinceReturn.elapsed() < LateReportMs)
        return setWindowState(Normal);
    Adodc1->setConnectionString(m_bench.connection());
    // Pages save into the table that they last loaded: a minimised window must not leave another one in hand.
    const Adodc::Loan loan = Adodc1->borrow();
    if (MinimiseToTray.isYes(*Adodc1) && WindowState() == Minimised)
        toTray();
}

void MainWindow::Form2_Form_Click() {
    // The boxes of pages that are not in view are committed as well: the tests read the grids' own visibility.
    struct Closing {
        const char16_t* grid;
        const char16_t* frame; ///< its own visibility decides; nullptr: the grid's does
        bool focus;
        bool onlyEnabled;
    };
    constexpr std::array<Closing, 5> order{{
        {u"ms6", u"Frame8", false, false},
        {u"ms7", u"frame9", false, false},
        {u"ms5", u"Frame7", true, false},
        {u"ms1", nullptr, true, false},
        {u"ms2", nullptr, true, true},
    }};
    for (const Closing& entry : order) {
        const auto found = m_bench.editors.find(QString::fromUtf16(entry.grid));
        if (found == m_bench.editors.end())
            continue;
        const auto& [box, grid] = found->second;
        const bool inView =
            entry.frame ? m_navigation.frame(QString::fromUtf16(entry.frame)).Visible() : grid->Visible();
        if (!inView || (entry.onlyEnabled && !grid->isEnabled()))
            continue;
        grid->setText(box->Text());
        box->setShown(false);
        if (entry.focus)
            grid->takeFocus();
    }
}

void MainWindow::Form2_Form_MouseDown(double x, double y) {
    if (Form* picker = m_bench.forms.loaded(u"Form1"_s))
        picker->setShown(false);
    dragging = 1;
    dragStartX = roundedInt16(x);
    m_bench.emptyRowFlag = roundedInt16(y); // dragStartY
}

void MainWindow::Form2_Form_MouseMove(double x, double y) {
    // Tray events arrive here too, as a place that is the event's number in pixels.
    const double message = x / TwipsPerPixel;
    if (message == OtherTrayMessage || message == LeftButtonDown) {
        if (WindowState() != Normal)
            setWindowState(Normal);
        if (!Visible()) {
            showForm();
            m_sinceReturn.start();
        }
    }
    if (dragging == 1)
        moveTo(Left() + x - dragStartX, Top() + y - m_bench.emptyRowFlag);
    m_navigation.markCurrent();
}

} // namespace qinghe
