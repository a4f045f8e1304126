#pragma once

#include <QFontMetricsF>
#include <QString>

#include <array>

namespace qinghe {

/// Measures words of one font, in pixels.
class Ruler {
public:
    virtual ~Ruler() = default;
    virtual double width(const QString& words) const = 0;
    /// A width that the words do not exceed; quick, for asking of many words whether they fit.
    virtual double atMost(const QString& words) const = 0;
};

class FontRuler final : public Ruler {
public:
    explicit FontRuler(const QFont& font);

    double width(const QString& words) const override { return m_metrics.horizontalAdvance(words); }
    double atMost(const QString& words) const override;

private:
    QFontMetricsF m_metrics;
    std::array<double, 128> m_ascii{};
    double m_widest = 0; ///< of the characters beyond ASCII
};

} // namespace qinghe
