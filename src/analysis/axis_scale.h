#pragma once

#include <QString>

namespace qinghe {

/// The value axis of a chart: lines at round distances (1, 2, 2.5 or 5 times a power of ten, a cent at least), 0 among
/// them. Every value of the range given lies between the first line and the last.
class AxisScale {
public:
    /// What lies beyond is drawn as far as this, infinite values too; the plot's own limit lies behind it.
    static constexpr double Farthest = 1e200;

    /// At most eight lines. Both must be numbers; with nothing to show the axis goes to 100.
    AxisScale(double lowest, double highest);

    /// Lines are counted from 0 at the foot.
    int lineCount() const { return m_last - m_first + 1; }
    double line(int index) const { return (m_first + index) * m_step; }
    /// The line's number, all with the same decimals.
    QString text(int index) const;

    double low() const { return m_first * m_step; }
    double high() const { return m_last * m_step; }
    /// How far up the axis a value stands: 0 at the first line, 1 at the last.
    double share(double value) const;
    /// The same of a line, which may lie beyond what is drawn.
    double lineShare(int index) const { return static_cast<double>(index) / (m_last - m_first); }

    /// One more line below the others, for what hangs from the lowest value.
    void addLineBelow() { --m_first; }

private:
    double m_step;
    int m_first, m_last; ///< lines as multiples of the step
};

} // namespace qinghe
