#include "platform/front_window.h"

#include <QApplication>
#include <QPointer>
#include <QWidget>

namespace qinghe {

QWidget* windowInFront() {
    // For a moment after a box has closed no window is active: the one beneath it is still in front.
    static QPointer<QWidget> last;
    if (QWidget* active = QApplication::activeWindow(); active && active->isVisible())
        last = active;
    QWidget* const front = last;
    return front && front->isVisible() ? front : nullptr;
}

} // namespace qinghe
