#include "core/main_window.h"

#include "core/find_bar.h"
#include "core/first_steps.h"
#include "core/stored_choice.h"
#include "core/stored_picture.h"
#include "core/window_keys.h"
#include "core/window_shape.h"
#include "platform/files.h"
#include "store/data_file.h"
#include "store/header_toggle.h"

#include <QShortcut>
#include <QTimer>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr double FormWidth = 12000, FormHeight = 8100; // twips
constexpr int Minimised = 1, Normal = 0;
constexpr int LateReportMs = 250;     ///< how long a busy window manager may still tell of the way to the tray
constexpr int AskAgainMs = 300;       ///< after another program held the book while the window was minimised
constexpr int LeftButtonDown = 513;   ///< the tray's message for a press of the left button
constexpr int OtherTrayMessage = 130; ///< brings the window back as well

bool bringsBack(double message) {
    return message == OtherTrayMessage || message == LeftButtonDown;
}

} // namespace

MainWindow::MainWindow(Shared& shared)
    : Form(names::Main, Kind::Frameless, Ground::Main),
      Adodc1(shared.newControl(u"Adodc1"_s, this)),
      Adodc2(shared.newControl(u"Adodc2"_s, this)),
      Adodc3(shared.newControl(u"Adodc3"_s, this)),
      Timer1(new Timer(this, u"Timer1"_s)),
      m_shared(shared),
      m_navigation(*this, shared),
      m_titleBand(*this, shared),
      m_desktop(new DesktopPage(shared, m_navigation, *Adodc1)) {
    setCaption(productName());
    placeInMiddle(FormWidth, FormHeight);
    bindEvents();
}

QSize MainWindow::sizeInPixels() {
    return pixelRect(0, 0, FormWidth, FormHeight).size();
}

void MainWindow::bindEvents() {
    Click = [this] { Form2_Form_Click(); };
    MouseDown = [this](double x, double y) { Form2_Form_MouseDown(x, y); };
    MouseMove = [this](double x, double y) { Form2_Form_MouseMove(x, y); };
    MouseUp = [this](double, double) { dragging = false; };
    Resize = [this] { Form2_Form_Resize(); };
    // The desktop may close the window (a shortcut of the window manager); the program ends like any other then: the
    // header stays healed and the pictures stay.
    CloseAsked = [] { throw handlers::ProgramEnd{0}; };
    Timer1->Tick = [this] { m_titleBand.showTime(); };
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this,
            [this] { handlers::enter([this] { openFindBar(); }); });
}

void MainWindow::openFindBar() {
    if (!m_findBar)
        m_findBar = new FindBar(*this);
    m_findBar->open();
}

void MainWindow::load() {
    refuseSecondCopy();
    if (const QString diary = m_shared.safeDiaryFolder(); !files::isFolder(diary))
        files::makeFolder(diary);
    shapeMainWindow(*this);
    setFocus(); // else the desktop's activating it would give the keyboard to the first control
    m_shared.store.close();
    healHeader(m_shared.dataFile());
    showForm();
    m_navigation.begin(*m_desktop);
    m_keys = new WindowKeys(*this);
    startClock();
    for (Page* page : m_navigation.pages())
        page->windowLoads();
    readTraySetting();
    setPicture(writeOutSkin(*Adodc1, m_shared, *this));
    m_desktop->Image2->setPicture(writeOut(DesktopPicture, *Adodc1, m_shared, *m_desktop->Image2));
    m_desktop->computeSums();
    m_desktop->listPlans(false);
    showNotes();
    // When the sign-in has ended.
    QTimer::singleShot(0, this, [this] { handlers::tick(&m_shared.safety, [this] { m_shared.safety.copyToday(); }); });
}

void MainWindow::showNotes() {
    m_shared.noted = [this, steps = firstSteps(m_shared)] {
        m_titleBand.showNotes(m_shared.notes.isEmpty() ? steps : m_shared.notes);
    };
    m_shared.noted();
}

void MainWindow::refuseSecondCopy() {
    if (m_shared.services.instance->tryTake())
        return;
    m_shared.services.say(u"程序已经运行，程序可能已经最小化到左下角或系统托盘！"_s);
    m_shared.services.instance->callHolder(); // its window comes forward
    throw handlers::ProgramEnd{0};
}

void MainWindow::startClock() {
    Timer1->setInterval(1000);
    Timer1->setEnabled(true);
    m_titleBand.showDateAndTime();
}

void MainWindow::readTraySetting() {
    if (!MinimiseToTray.isYes(*Adodc1))
        return;
    toTray();
    if (m_shared.services.tray->available())
        m_shared.services.tray->tell(u"程序已经启动，在这个图标里。点一下图标，窗口就出来。"_s);
}

void MainWindow::comeForward() {
    comeBack(LeftButtonDown);
    showForm();
}

void MainWindow::toTray() {
    if (!m_shared.services.tray->available()) {
        // Nobody is locked out of a window that has no icon to come back by.
        if (WindowState() != Minimised)
            setWindowState(Minimised);
        return;
    }
    m_shared.services.tray->add(productName(), [this](int message) { onTrayMessage(message); });
    // Hidden at the next turn: the window system is still at work on the change of state that brought us here.
    QTimer::singleShot(0, this, [this] { handlers::enter([this] { setShown(false); }); });
}

void MainWindow::onTrayMessage(int message) {
    comeBack(message);
    // For the rest it is a move of the pointer, to as many pixels.
    followPointer(message * TwipsPerPixel, 0);
    // A window on view may be covered. The pointer on its way over the window gives the same numbers, and must not pull
    // it over others.
    if (bringsBack(message))
        showForm();
}

void MainWindow::Form2_Form_Resize() {
    if (!Visible())
        return;
    if (WindowState() == Minimised && m_sinceReturn.isValid() && m_sinceReturn.elapsed() < LateReportMs)
        return setWindowState(Normal);
    bool yes = false;
    const bool known = m_shared.store.tryNow([&] { yes = MinimiseToTray.isYes(*Adodc1); });
    if (WindowState() != Minimised)
        return;
    if (!known)
        QTimer::singleShot(AskAgainMs, this, [this] { handlers::tick(this, [this] { Form2_Form_Resize(); }); });
    else if (yes)
        toTray();
}

void MainWindow::Form2_Form_Click() {
    for (Page* page : m_navigation.pages())
        page->formClicked();
}

void MainWindow::Form2_Form_MouseDown(double x, double y) {
    m_shared.hideDatePicker();
    dragging = true;
    dragStartX = roundedInt16(x);
    m_shared.emptyRowFlag = roundedInt16(y); // dragStartY
}

void MainWindow::Form2_Form_MouseMove(double x, double y) {
    comeBack(x / TwipsPerPixel);
    followPointer(x, y);
}

void MainWindow::comeBack(double message) {
    if (!bringsBack(message))
        return;
    if (WindowState() != Normal)
        setWindowState(Normal);
    if (!Visible()) {
        showForm();
        m_sinceReturn.start();
    }
}

void MainWindow::followPointer(double x, double y) {
    if (dragging)
        moveTo(Left() + x - dragStartX, Top() + y - m_shared.emptyRowFlag);
    m_navigation.markCurrent();
}

} // namespace qinghe
