#include "input.h"

#include "objects.h"

#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeySequence>
#include <QPointer>
#include <QStyleHints>
#include <QTest>
#include <QWindow>

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

/// Hands one pointer event to the window under the place; as on a real desktop that is another one than before when the
/// window that was pressed has gone meanwhile.
void point(const QPointer<QWindow>& pressed, const QPoint& place, QEvent::Type type, int wait) {
    QWindow* window = pressed && pressed->isVisible() ? pressed.data() : QGuiApplication::topLevelAt(place);
    if (!window)
        return;
    static Qt::MouseButtons held;
    held.setFlag(Qt::LeftButton, type == QEvent::MouseButtonPress || (type == QEvent::MouseMove && held));
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    qt_handleMouseEvent(window, window->mapFromGlobal(place), place, held, button, type, Qt::NoModifier,
                        pointerTime(wait));
}

std::function<void()> pointing(QWidget& widget, const QPoint& place, QEvent::Type type, int wait = 1) {
    return [window = QPointer<QWindow>(widget.window()->windowHandle()), at = widget.mapToGlobal(place), type, wait] {
        point(window, at, type, wait);
    };
}

QWindow& windowWithKeyboard() {
    if (QWindow* window = QGuiApplication::focusWindow())
        return *window;
    throw Refusal{QStringLiteral("no window of the program has the keyboard")};
}

/// A key press goes to whatever has the keyboard when its turn comes.
void strike(int code, const QString& text, Qt::KeyboardModifiers modifiers) {
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QWindow* window = QGuiApplication::focusWindow();
        if (!window)
            return;
        if (type == QEvent::KeyPress && qt_sendShortcutOverrideEvent(window, 0, code, modifiers, text))
            continue;
        qt_handleKeyEvent(window, type, code, modifiers, text);
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
    return {pointing(widget, place, QEvent::MouseMove, betweenGestures()),
            pointing(widget, place, QEvent::MouseButtonPress), pointing(widget, place + way / 2, QEvent::MouseMove),
            pointing(widget, place + way, QEvent::MouseMove),
            pointing(widget, place + way, QEvent::MouseButtonRelease)};
}

Steps key(const QString& name) {
    windowWithKeyboard();
    const QKeySequence sequence(name);
    if (sequence.isEmpty() || sequence[0].key() == Qt::Key_unknown)
        throw Refusal{QStringLiteral("there is no key ") + name};
    const QKeyCombination combination = sequence[0];
    const bool plain = combination.keyboardModifiers() == Qt::NoModifier;
    return {[=] {
        strike(combination.key(), plain ? textOf(combination.key()) : QString(), combination.keyboardModifiers());
    }};
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
