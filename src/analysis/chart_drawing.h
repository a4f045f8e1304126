#pragma once

#include "analysis/chart_layout.h"

#include <QFont>

#include <memory>

class QPaintDevice;

namespace qinghe {

struct ChartFonts {
    QFont value; ///< of the values and of the axis
    QFont label;
};

/// Paints a chart that has been laid out: columns, axis, lines and words. What is not in view costs nothing. One
/// drawing serves one matrix at a time.
///
/// The plotting library that stands behind it would cost every start of the program a millisecond. So the drawing is a
/// module of its own beside the program (src/analysis/plot) and is loaded when a chart is first painted.
class ChartDrawing {
public:
    virtual ~ChartDrawing() = default;

    /// The drawing of the module in a folder; nullptr when it is not there.
    static std::unique_ptr<ChartDrawing> load(const QString& folder);

    virtual void setMatrix(const ChartMatrix& matrix, const ChartFonts& fonts) = 0;
    /// Paints on a transparent ground. The layout must be of the matrix set.
    virtual void paint(QPaintDevice& device, const ChartLayout& layout, const QSize& size, double scroll) = 0;
};

} // namespace qinghe
