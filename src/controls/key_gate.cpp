#include "controls/key_gate.h"

#include "controls/key_presses.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace qinghe {

namespace {

bool isOfKeyboard(QEvent::Type type) {
    return type == QEvent::KeyPress || type == QEvent::KeyRelease || type == QEvent::ShortcutOverride ||
           type == QEvent::InputMethod;
}

bool takesTyping(const QWidget& control) {
    const auto* list = qobject_cast<const QComboBox*>(&control);
    return qobject_cast<const QLineEdit*>(&control) || qobject_cast<const QPlainTextEdit*>(&control) ||
           (list && list->isEditable());
}

bool isLetter(int key) {
    return key >= Qt::Key_A && key <= Qt::Key_Z;
}

/// Whether a key does something there beyond entering text: presses a button, answers or closes a box.
bool acts(const QWidget& control, int key) {
    const bool inBox = qobject_cast<const QDialog*>(control.window()), typing = takesTyping(control);
    if (isLetter(key))
        return inBox && !typing;
    const bool answers = inBox && key != Qt::Key_Space;
    return answers || !typing;
}

} // namespace

KeyGate::KeyGate() {
    QCoreApplication::instance()->installEventFilter(this);
}

bool KeyGate::eventFilter(QObject* watched, QEvent* event) {
    if (!isOfKeyboard(event->type()) || !watched->isWidgetType())
        return false;
    const auto& control = static_cast<const QWidget&>(*watched);
    if (!control.isVisible())
        return true;
    if (event->type() == QEvent::KeyRelease)
        noteRelease(static_cast<const QKeyEvent&>(*event));
    return event->type() == QEvent::KeyPress && isHeldAgainst(control, static_cast<const QKeyEvent&>(*event));
}

void KeyGate::noteRelease(const QKeyEvent& event) {
    m_released = event.key();
    m_releasedAt = event.timestamp();
}

bool KeyGate::isHeldAgainst(const QWidget& control, const QKeyEvent& event) const {
    const int key = event.key();
    if (!key_presses::isEnter(key) && key != Qt::Key_Space && key != Qt::Key_Escape && !isLetter(key))
        return false;
    // The desktop repeats a held key as pairs of a release and a press of one moment. Qt takes the two for a repetition
    // only where it sees both at once.
    const bool ofOneMoment = event.timestamp() != 0 && event.timestamp() == m_releasedAt && key == m_released;
    return (event.isAutoRepeat() || ofOneMoment) && acts(control, key);
}

} // namespace qinghe
