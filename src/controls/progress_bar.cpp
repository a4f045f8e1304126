#include "controls/progress_bar.h"

#include <limits>

namespace qinghe {

namespace {

constexpr int ShortestPaintMs = 17; ///< no more than 60 times a second

} // namespace

ProgressBar::ProgressBar(QWidget* parent, const QString& name) : Control(parent, name) {
    setMouseTracking(true);
}

void ProgressBar::setMax(qint64 max) {
    m_step = max / std::numeric_limits<int>::max() + 1;
    setMaximum(static_cast<int>(max / m_step));
    m_sincePainted.invalidate();
}

void ProgressBar::setValue(qint64 value) {
    const bool tooSoon = m_sincePainted.isValid() && m_sincePainted.elapsed() < ShortestPaintMs;
    if (tooSoon && value > 0 && value / m_step < maximum())
        return;
    m_sincePainted.start();
    QProgressBar::setValue(static_cast<int>(value / m_step)); // paints where it is on view
}

} // namespace qinghe
