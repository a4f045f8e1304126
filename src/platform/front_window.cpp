#include "platform/front_window.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace qinghe {

namespace {

constexpr const char* KeptPart = "keptInSight"; ///< a property of the window
constexpr int Gap = 6, TitleBar = 40;           ///< pixels; the bar is the desktop's, and measured by nobody before

} // namespace

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

void keepInSight(QWidget& part) {
    part.window()->setProperty(KeptPart, QVariant::fromValue(&part));
}

void standClear(QMessageBox& box) {
    const QWidget* const window = box.parentWidget();
    const auto* const part = window ? window->property(KeptPart).value<QWidget*>() : nullptr;
    if (!part)
        return;
    box.ensurePolished();
    box.adjustSize();
    const QSize size = box.size() + QSize(0, TitleBar);
    const QRect kept(part->mapToGlobal(QPoint()), part->size()), room = window->screen()->availableGeometry();
    const int below = kept.bottom() + 1 + Gap, above = kept.top() - Gap - size.height();
    const bool fitsBelow = below + size.height() <= room.bottom() + 1;
    const int x = std::clamp(kept.center().x() - size.width() / 2, room.left(),
                             std::max(room.left(), room.right() + 1 - size.width()));
    box.move(x, fitsBelow ? below : std::max(room.top(), above));
}

} // namespace qinghe
