#include "controls/press_tracker.h"

#include <utility>

namespace qinghe {

PressTracker::~PressTracker() {
    if (isLast())
        lastPressed = nullptr;
}

void PressTracker::press(const QMouseEvent& event) {
    lastPressed = this;
    m_at.reset();
    if (event.button() == Qt::LeftButton)
        m_at = event.position().toPoint();
}

std::optional<QPoint> PressTracker::release(const QMouseEvent& event) {
    const std::optional<QPoint> at = std::exchange(m_at, std::nullopt);
    return event.button() == Qt::LeftButton ? at : std::nullopt;
}

bool PressTracker::releasedOn(const QWidget& control, const QMouseEvent& event) {
    return release(event) && control.rect().contains(event.position().toPoint());
}

} // namespace qinghe
