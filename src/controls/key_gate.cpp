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

/// Whether Enter or Space does something there beyond entering text: presses a button, answers a box.
bool acts(const QWidget& control, int key) {
    const bool answers = key_presses::isEnter(key) && qobject_cast<const QDialog*>(control.window());
    return answers || !takesTyping(control);
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
    if (!key_presses::isEnter(key) && key != Qt::Key_Space)
        return false;
    // The desktop repeats a held key as pairs of a release and a press of one moment. Qt takes the two for a repetition
    // only where it sees both at once.
    const bool ofOneMoment = event.timestamp() != 0 && event.timestamp() == m_releasedAt && key == m_released;
    return (event.isAutoRepeat() || ofOneMoment) && acts(control, key);
}

} // namespace qinghe
