#include "controls/key_gate.h"

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

namespace qinghe {

namespace {

bool isOfKeyboard(QEvent::Type type) {
    return type == QEvent::KeyPress || type == QEvent::KeyRelease || type == QEvent::ShortcutOverride ||
           type == QEvent::InputMethod;
}

} // namespace

KeyGate::KeyGate() {
    QCoreApplication::instance()->installEventFilter(this);
}

bool KeyGate::eventFilter(QObject* watched, QEvent* event) {
    if (!isOfKeyboard(event->type()) || !watched->isWidgetType())
        return false;
    return !static_cast<const QWidget*>(watched)->isVisible();
}

} // namespace qinghe
