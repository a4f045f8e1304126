#include "input.h"

#include "objects.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <QKeySequence>
#include <QPointer>
#include <QStyleHints>
#include <QTest>
#include <QWindow>

#include <memory>

namespace driver {

namespace {

/// The pointer's own clock, in ms: two gestures are never near enough to make a double click of two clicks.
int pointerTime(int wait) {
    static int now = 1000;
    return now += wait;
}

int betweenGestures() {
    return 2 * QGuiApplication::styleHints()->mouseDoubleClickInterval();
}

/// Hands one pointer event to a window, with the left button as it then stands. A press gives the window the keyboard,
/// as the desktop does.
void point(QWindow& window, const QPoint& inWindow, QEvent::Type type, int wait) {
    static Qt::MouseButtons held;
    if (type != QEvent::MouseMove)
        held = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
    if (type == QEvent::MouseButtonPress && !window.isActive() && !(window.flags() & Qt::WindowDoesNotAcceptFocus))
        window.requestActivate();
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    qt_handleMouseEvent(&window, inWindow, window.mapToGlobal(inWindow), held, button, type, Qt::NoModifier,
                        pointerTime(wait));
}

/// One step of a gesture at a place of the widget. When its window has gone meanwhile, the step meets whatever window
/// lies there now, as it does on a real desktop.
std::function<void()> pointing(QWidget& widget, const QPoint& place, QEvent::Type type, int wait = 1) {
    return [meant = QPointer<QWidget>(&widget), place, last = widget.mapToGlobal(place), type, wait] {
        if (const QWidget* there = meant; there && there->isVisible())
            point(*there->window()->windowHandle(), there->mapTo(there->window(), place), type, wait);
        else if (QWindow* beneath = QGuiApplication::topLevelAt(last))
            point(*beneath, beneath->mapFromGlobal(last), type, wait);
    };
}

QWindow& windowWithKeyboard() {
    if (QWindow* window = QGuiApplication::focusWindow())
        return *window;
    throw Refusal{QStringLiteral("no window of the program has the keyboard")};
}

/// A key press goes to whatever has the keyboard when its turn comes.
void strike(int code, const QString& text, Qt::KeyboardModifiers modifiers, bool repeated = false) {
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QWindow* window = QGuiApplication::focusWindow();
        if (!window)
            return;
        if (type == QEvent::KeyPress && qt_sendShortcutOverrideEvent(window, 0, code, modifiers, text, repeated))
            continue;
        qt_handleKeyEvent(window, type, code, modifiers, text, repeated);
    }
}

void commit(const QString& text) {
    QInputMethodEvent event;
    event.setCommitString(text);
    if (QObject* focus = QGuiApplication::focusObject())
        QCoreApplication::sendEvent(focus, &event);
}

/// What the key adds to a text, as the desktop sends it along.
QString textOf(int code) {
    switch (code) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return QStringLiteral("\r");
    case Qt::Key_Escape:
        return QStringLiteral("\x1b");
    case Qt::Key_Backspace:
        return QStringLiteral("\b");
    case Qt::Key_Tab:
        return QStringLiteral("\t");
    default:
        return code < 0x80 ? QString(QChar(code)) : QString();
    }
}

QKeyCombination keyOf(const QString& name) {
    windowWithKeyboard();
    const QKeySequence sequence(name);
    if (sequence.isEmpty() || sequence[0].key() == Qt::Key_unknown)
        throw Refusal{QStringLiteral("there is no key ") + name};
    return sequence[0];
}

} // namespace

Steps click(QWidget& widget, const QPoint& place, int times) {
    checkInReach(widget, place);
    Steps steps{pointing(widget, place, QEvent::MouseMove, betweenGestures())};
    for (int i = 0; i < times; ++i) {
        steps.push_back(pointing(widget, place, QEvent::MouseButtonPress));
        steps.push_back(pointing(widget, place, QEvent::MouseButtonRelease));
    }
    return steps;
}

Steps move(QWidget& widget, const QPoint& place) {
    checkInReach(widget, place);
    return {pointing(widget, place, QEvent::MouseMove)};
}

Steps drag(QWidget& widget, const QPoint& place, const QPoint& way) {
    checkInReach(widget, place);
    const auto start = std::make_shared<QPoint>();
    const auto onTheWay = [start, meant = QPointer<QWidget>(&widget)](const QPoint& gone, QEvent::Type type) {
        return [=] {
            if (QWindow* window = meant ? meant->window()->windowHandle() : nullptr)
                point(*window, window->mapFromGlobal(*start + gone), type, 1);
        };
    };
    return {
        pointing(widget, place, QEvent::MouseMove, betweenGestures()),
        pointing(widget, place, QEvent::MouseButtonPress),
        [start, meant = QPointer<QWidget>(&widget), place] { *start = meant ? meant->mapToGlobal(place) : QPoint(); },
        onTheWay(way / 2, QEvent::MouseMove),
        onTheWay(way, QEvent::MouseMove),
        onTheWay(way, QEvent::MouseButtonRelease)};
}

namespace {

/// What the desktop makes of the menu key.
void askForMenu() {
    if (QWidget* focus = QApplication::focusWidget()) {
        const QPoint middle = focus->rect().center();
        QContextMenuEvent event(QContextMenuEvent::Keyboard, middle, focus->mapToGlobal(middle));
        QCoreApplication::sendEvent(focus, &event);
    }
}

} // namespace

Steps key(const QString& name) {
    const QKeyCombination combination = keyOf(name);
    if (combination.key() == Qt::Key_Menu)
        return {askForMenu};
    const bool plain = combination.keyboardModifiers() == Qt::NoModifier;
    return {[=] {
        strike(combination.key(), plain ? textOf(combination.key()) : QString(), combination.keyboardModifiers());
    }};
}

Steps hold(const QString& name) {
    const int code = keyOf(name).key(), repetitions = 3;
    return Steps(repetitions, [=] { strike(code, textOf(code), Qt::NoModifier, true); });
}

Steps type(const QString& text) {
    windowWithKeyboard();
    for (const QChar character : text)
        if (character.unicode() >= 0x80)
            return {[text] { commit(text); }};
    Steps steps;
    for (const QChar character : text)
        steps.push_back([character] { strike(character.toUpper().unicode(), QString(character), Qt::NoModifier); });
    return steps;
}

} // namespace driver
