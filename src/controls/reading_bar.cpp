#include "controls/reading_bar.h"

#include <QKeyEvent>
#include <QMouseEvent>

namespace qinghe {

void ReadingBar::listenToContainer() {
    QWidget* const container = m_list.parentWidget();
    container->removeEventFilter(this);
    if (!m_list.isEnabled())
        container->installEventFilter(this);
}

bool ReadingBar::event(QEvent* event) {
    if (isEnabled())
        return QScrollBar::event(event);
    // Qt gives a disabled bar none of these.
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        mousePressEvent(static_cast<QMouseEvent*>(event));
        return true;
    case QEvent::MouseMove:
        mouseMoveEvent(static_cast<QMouseEvent*>(event));
        return true;
    case QEvent::MouseButtonRelease:
        mouseReleaseEvent(static_cast<QMouseEvent*>(event));
        return true;
    case QEvent::Wheel:
        wheelEvent(static_cast<QWheelEvent*>(event));
        return true;
    default:
        return QScrollBar::event(event);
    }
}

bool ReadingBar::eventFilter(QObject* watched, QEvent* event) {
    if (watched != m_list.parentWidget() || event->type() != QEvent::KeyPress || m_list.isEnabled() ||
        !m_list.isVisible())
        return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_PageUp && key != Qt::Key_PageDown)
        return false;
    triggerAction(key == Qt::Key_PageUp ? SliderPageStepSub : SliderPageStepAdd);
    return true;
}

} // namespace qinghe
