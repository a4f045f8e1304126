#pragma once

#include "analysis/axis_scale.h"
#include "analysis/chart_matrix.h"
#include "analysis/label_lines.h"

#include <QRectF>

namespace qinghe {

/// Where everything in a chart stands, in pixels of its control: arithmetic alone, no painting. Columns have a pitch
/// that gives each value room beside its neighbours; rows that do not fit into the plot are reached by scrolling.
/// Nothing is worked out for rows that are not in view. Months can be laid out whole instead: as narrow as they must be
/// to stand side by side, with their years below them, and without values where these find no room.
///
/// The matrix and the rulers must outlive the layout. Values are written at the columns when there is one series;
/// several series have a legend instead.
class ChartLayout {
public:
    enum class Span { Scrolled, Whole };
    struct Rulers {
        const Ruler& value; ///< of the values and of the axis
        const Ruler& label;
    };
    ChartLayout(const ChartMatrix& matrix, const QSizeF& size, Rulers rulers, Span span = Span::Scrolled);

    static constexpr double WidestColumn = 46;
    static constexpr double ColumnShare = 0.56; ///< of the pitch
    static constexpr double ValueGap = 10;      ///< between two values that stand side by side
    static constexpr int StripHeight = 9;
    static constexpr int LineHeight = 16; ///< of labels
    static const QString& unit();         ///< yuan

    const ChartMatrix& matrix() const { return m_matrix; }
    const AxisScale& scale() const { return m_scale; }
    /// Between the first line and the last.
    const QRectF& plot() const { return m_plot; }
    double pitch() const { return m_pitch; }
    double columnWidth() const; ///< of one series
    bool hasLegend() const { return m_matrix.columnCount() > 1; }
    bool writesValues() const { return m_writesValues; }

    /// How far the rows can be scrolled to the left; 0 when all are in view.
    int longestScroll() const;
    QRectF strip() const; ///< the room of the scroll strip; empty when there is none

    double lineY(int index) const;
    double y(double value) const;
    /// Of words at the left of the axis, with their middle at this height.
    QRectF axisBox(double y, const QString& words) const;
    QRectF unitBox() const; ///< of the unit above the axis
    QRectF legendBox(int column) const;

    // The following are of a row, at a scroll of so many pixels. They may reach over the plot's sides, where they are
    // not painted.
    struct Rows {
        int first, behindLast;
    };
    Rows rowsInView(double scroll) const;
    /// The row whose slot holds this x, or -1.
    int rowAt(double x, double scroll) const;
    double middle(int row, double scroll) const;
    QString valueText(int row) const; ///< "" where there is no value; written or not
    QRectF valueBox(int row, double scroll) const;
    LabelLines label(int row) const;
    QRectF labelBox(int row, int line, const QString& words, double scroll) const;

    /// A year below its months, where these bear no labels of their own.
    struct Year {
        QString words;
        QRectF box;
        double start; ///< x of its first month's slot
        double room;  ///< of all its months
    };
    /// From left to right; a year that finds no room beside the one before has no words.
    std::vector<Year> years() const;

private:
    double value(int row) const { return m_matrix.values.front()[static_cast<size_t>(row)]; }
    AxisScale fittingScale() const;
    double axisWidth() const;
    void layPitch();
    bool namesRows() const { return m_span == Span::Scrolled || m_matrix.years.isEmpty(); }
    double widestValue() const;
    bool anyLabelBreaks() const;

    const ChartMatrix& m_matrix;
    QSizeF m_size;
    Rulers m_rulers;
    Span m_span;
    double m_lowest = 0, m_highest = 0;
    AxisScale m_scale;
    QRectF m_plot;
    double m_pitch = 0;
    bool m_writesValues;
    int m_labelLines = 1;
};

} // namespace qinghe
