#include "analysis/axis_scale.h"

#include "runtime/number_text.h"

#include <algorithm>
#include <cmath>

namespace qinghe {

namespace {

constexpr double Cent = 0.01;
constexpr double NothingToShow = 100;
constexpr int MostSteps = 6; ///< in the range; rounding its ends outward may add one
constexpr double Slack = 1e-9;

/// The smallest round number that is not below.
double roundUp(double number) {
    const double power = std::pow(10, std::floor(std::log10(number)));
    for (const double round : {1.0, 2.0, 2.5, 5.0})
        if (number <= round * power * (1 + Slack))
            return round * power;
    return 10 * power;
}

} // namespace

AxisScale::AxisScale(double lowest, double highest) {
    const double low = std::clamp(lowest, -Farthest, 0.0);
    const double high = low == 0 && highest <= 0 ? NothingToShow : std::clamp(highest, 0.0, Farthest);
    m_step = roundUp(std::max(Cent, (high - low) / MostSteps));
    m_first = static_cast<int>(std::floor(low / m_step + Slack));
    m_last = std::max(m_first + 1, static_cast<int>(std::ceil(high / m_step - Slack)));
}

QString AxisScale::text(int index) const {
    const QString step = numberText(m_step), plain = numberText(line(index));
    const auto point = step.indexOf(u'.');
    if (point < 0 || step.contains(u'E') || plain.contains(u'E'))
        return plain;
    return QString::number(line(index), 'f', static_cast<int>(step.size() - point - 1));
}

double AxisScale::share(double value) const {
    return (std::clamp(value, -Farthest, Farthest) - low()) / (high() - low());
}

} // namespace qinghe
