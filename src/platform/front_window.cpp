#include "platform/front_window.h"

#include <QApplication>
#include <QWidget>

namespace qinghe {

QWidget* windowInFront() {
    QWidget* active = QApplication::activeWindow();
    return active && active->isVisible() ? active : nullptr;
}

} // namespace qinghe
