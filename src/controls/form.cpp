#include "controls/form.h"

#include "controls/accessible.h"
#include "controls/forms.h"
#include "controls/tab_order.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QStyleOption>

namespace qinghe {

namespace {

Qt::WindowFlags flagsOf(Form::Kind kind, bool owned) {
    constexpr auto Titled =
        Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
    switch (kind) {
    case Form::Kind::Frameless:
        return Qt::Window | Qt::FramelessWindowHint | Qt::WindowMinimizeButtonHint;
    case Form::Kind::Dialog:
        return owned ? Qt::Dialog | Titled : Qt::Window | Titled | Qt::WindowMinimizeButtonHint;
    case Form::Kind::Tool:
        return Qt::Tool | Titled;
    case Form::Kind::QuietTool:
        return Qt::Tool | Titled | Qt::WindowDoesNotAcceptFocus;
    case Form::Kind::Notice:
        return Qt::Window | Titled | Qt::WindowStaysOnTopHint;
    }
    return Qt::Window;
}

/// The place for a window that wants to hang under a field: inside the room, and off the field as long as there is any
/// room below, above or beside it.
QPoint placeBeside(const QRect& field, const QRect& window, const QRect& room) {
    const auto inside = [&](QPoint at) {
        return QPoint(std::max(room.left(), std::min(at.x(), room.right() + 1 - window.width())),
                      std::max(room.top(), std::min(at.y(), room.bottom() + 1 - window.height())));
    };
    const QRect touched = field.adjusted(0, 2, 0, -2); // their edges are rounded each in its own window
    const QPoint below = window.topLeft(), above(below.x(), field.top() - window.height()),
                 right(field.right() + 1, below.y()), left(field.left() - window.width(), below.y());
    for (const QPoint& at : {below, above, right, left})
        if (const QRect placed(inside(at), window.size()); !placed.intersects(touched))
            return placed.topLeft();
    return inside(below);
}

} // namespace

Form::Form(const QString& name, Kind kind, Ground ground, QWidget* owner)
    : QWidget(owner, flagsOf(kind, owner != nullptr)), Placed(this), m_kind(kind), m_ground(ground) {
    accessible::install();
    setObjectName(name);
    setMouseTracking(true);
    setShown(false);
    setAttribute(Qt::WA_ShowWithoutActivating, kind == Kind::QuietTool || kind == Kind::Notice);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

Form::~Form() {
    // A window goes with its owner, if it was not unloaded before.
    if (m_forms)
        m_forms->forget(*this);
}

void Form::setPicture(QImage picture) {
    m_picture = std::move(picture);
    update();
}

int Form::WindowState() const {
    return isMinimized() ? 1 : 0;
}

void Form::setWindowState(int state) {
    const auto others = windowState() & ~Qt::WindowMinimized;
    QWidget::setWindowState(state == 1 ? others | Qt::WindowMinimized : others);
}

double Form::roomHeight() {
    return QGuiApplication::primaryScreen()->availableGeometry().height() * TwipsPerPixel;
}

void Form::placeInMiddle(double width, double height, const Form* of) {
    const QPointF screen = QPointF(QGuiApplication::primaryScreen()->availableGeometry().center()) * TwipsPerPixel;
    const QPointF centre = of ? QRectF(of->Left(), of->Top(), of->Width(), of->Height()).center() : screen;
    place(centre.x() - width / 2, centre.y() - height / 2, width, height);
}

void Form::showForm() {
    applyPlace();
    setShown(true);
    raise();
    if (!testAttribute(Qt::WA_ShowWithoutActivating))
        activateWindow();
}

void Form::setShape(const QPolygon& points) {
    setMask(QRegion(points, Qt::OddEvenFill));
}

void Form::keepOnScreen(const QRect& field) {
    m_hanging = {field, pos(), {}};
    hang();
}

void Form::hang() {
    Hanging& hanging = *m_hanging;
    hanging.frame = frameSize();
    const QScreen* screen = QGuiApplication::screenAt(hanging.asked);
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    const QPoint place =
        placeBeside(hanging.field, {hanging.asked, frameGeometry().size()}, screen->availableGeometry());
    if (place != pos())
        moveTo(place.x() * TwipsPerPixel, place.y() * TwipsPerPixel);
}

void Form::applyPlace() {
    const QRect place = pixelRect(Left(), Top(), Width(), Height());
    move(place.topLeft());
    if (place.size() != size())
        setFixedSize(place.size());
}

void Form::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    style()->drawPrimitive(static_cast<QStyle::PrimitiveElement>(PE_FormGround), &option, &painter, this);
    // By its first painting the desktop has put its frame round the window.
    if (m_hanging && frameSize() != m_hanging->frame)
        QMetaObject::invokeMethod(this, &Form::hang, Qt::QueuedConnection);
}

QPointF Form::twipsAt(const QMouseEvent* event) const {
    // The event's own place inside the window is the window system's, which did not know yet of moves that we have
    // asked for meanwhile: a window dragged by it would run ahead of the pointer. The pointer's place on the screen is
    // certain.
    const QPoint inside = pixelRect(Left(), Top(), Width(), Height()).topLeft() + geometry().topLeft() - pos();
    return (event->globalPosition() - inside) * TwipsPerPixel;
}

void Form::mousePressEvent(QMouseEvent* event) {
    event->accept();
    if (event->button() != Qt::LeftButton)
        return;
    m_press.press(*event);
    m_moved = false;
    const QPointF at = twipsAt(event);
    MouseDown.fromQt(at.x(), at.y());
}

void Form::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
    if (event->button() != Qt::LeftButton)
        return;
    const QPointF at = twipsAt(event);
    MouseUp.fromQt(at.x(), at.y());
    // The release that ends a move of the window is no click.
    if (m_press.releasedOn(*this, *event) && !m_moved)
        Click.fromQt();
}

void Form::mouseMoveEvent(QMouseEvent* event) {
    event->accept();
    const QPoint before = pos();
    const QPointF at = twipsAt(event);
    MouseMove.fromQt(at.x(), at.y());
    m_moved = m_moved || pos() != before;
}

void Form::moveEvent(QMoveEvent*) {
    // A place of our own making is kept to the twip; any other is the desktop's.
    const QPoint here = pos();
    if (here != pixelRect(Left(), Top(), Width(), Height()).topLeft())
        adoptPlace(here.x() * TwipsPerPixel, here.y() * TwipsPerPixel);
}

void Form::resizeEvent(QResizeEvent*) {
    Resize.fromQt();
}

void Form::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() != QEvent::WindowStateChange)
        return;
    // A form has one size. Some window managers take that, on a denser screen, for the wish to fill the screen.
    constexpr auto Filling = Qt::WindowFullScreen | Qt::WindowMaximized;
    if (windowState() & Filling)
        QWidget::setWindowState(windowState() & ~Filling);
    // Minimising gives a change of state and no resize.
    Resize.fromQt();
}

void Form::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (CloseAsked)
        CloseAsked.fromQt();
    else
        handlers::enter([this] { unload(); });
}

void Form::keyPressEvent(QKeyEvent* event) {
    if (m_kind != Kind::Dialog || event->key() != Qt::Key_Escape)
        return QWidget::keyPressEvent(event);
    if (!event->isAutoRepeat())
        close();
}

std::vector<QWidget*> Form::tabStops() const {
    return tabStopsIn(*this);
}

bool Form::focusNextPrevChild(bool next) {
    return goToNextStop(*this, tabStops(), next);
}

void Form::unload() {
    if (m_forms)
        m_forms->unload(objectName());
}

} // namespace qinghe
