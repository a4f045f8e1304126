#pragma once

#include "analysis/chart_layout.h"

#include <memory>

class QPaintDevice;

namespace qinghe {

/// Paints a chart that has been laid out, by means of the plotting library: columns, axis, lines and words. What is not
/// in view costs nothing. One drawing serves one matrix at a time.
class ChartDrawing {
public:
    ChartDrawing();
    ~ChartDrawing();

    void setMatrix(const ChartMatrix& matrix);
    /// Paints on a transparent ground. The layout must be of the matrix set.
    void paint(QPaintDevice& device, const ChartLayout& layout, const QSize& size, double scroll);

private:
    class Plot;
    std::unique_ptr<Plot> m_plot;
};

/// The fonts of a chart's words.
QFont chartValueFont();
QFont chartLabelFont(const ChartMatrix& matrix);

} // namespace qinghe
