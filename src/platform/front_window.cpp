#include "platform/front_window.h"

#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QWidget>

#include <algorithm>

namespace qinghe {

QWidget* windowInFront() {
    // For a moment after a box has closed no window is active: the one beneath it is still in front.
    static QPointer<QWidget> last;
    if (QWidget* active = QApplication::activeWindow(); active && active->isVisible())
        last = active;
    QWidget* const front = last;
    return front && front->isVisible() ? front : nullptr;
}

void bringOverNotices(QDialog& dialog) {
    const QWidgetList windows = QApplication::topLevelWidgets();
    if (std::any_of(windows.begin(), windows.end(), [](const QWidget* window) {
            return window->isVisible() && window->windowFlags() & Qt::WindowStaysOnTopHint;
        }))
        dialog.setWindowFlag(Qt::WindowStaysOnTopHint);
}

} // namespace qinghe
