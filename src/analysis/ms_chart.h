#pragma once

#include "analysis/chart_layout.h"
#include "platform/placed.h"

#include <QVariantList>
#include <QWidget>

#include <memory>
#include <optional>

namespace qinghe {

class ChartDrawing;
class ScrollStrip;

/// A chart of labelled values, as columns. It takes its data in one assignment and shows a sample matrix before the
/// first one. Where the columns need more room than there is, the plot scrolls sideways: by the strip at its foot, the
/// wheel, by dragging it, and by keys.
class MSChart : public QWidget, public Placed {
    Q_OBJECT
    QINGHE_CONTROL
    Q_PROPERTY(QVariantList ChartData READ ChartData WRITE setChartData)

public:
    MSChart(QWidget* parent, const QString& name);
    ~MSChart() override;

    /// Rows of [label, value]; a value that is no number (an invalid QVariant) has no column. Empty before the first
    /// data.
    const QVariantList& ChartData() const { return m_data; }
    void setChartData(const QVariantList& rows);

    /// Where everything is drawn, and how far the rows are scrolled to the left, in pixels.
    const ChartLayout& places();
    int scrolled() const;
    void scrollTo(int pixels);

    /// Paints the chart as it stands, without its strip, on a device of the control's size.
    void paintOn(QPaintDevice& device);

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    void showEvent(QShowEvent*) override;
    bool event(QEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void mouseDoubleClickEvent(QMouseEvent*) override;
    void wheelEvent(QWheelEvent*) override;
    void keyPressEvent(QKeyEvent*) override;
    void focusInEvent(QFocusEvent*) override;
    void focusOutEvent(QFocusEvent*) override;

private:
    void layOutStrip();
    /// What is told of a row whose label is cut, else "".
    QString tipAt(const QPoint& place);

    QVariantList m_data;
    ChartMatrix m_matrix;
    std::unique_ptr<Ruler> m_valueRuler, m_labelRuler;
    std::optional<ChartLayout> m_places;
    std::unique_ptr<ChartDrawing> m_drawing; ///< made when the chart is first on view
    ScrollStrip* m_strip = nullptr;          ///< likewise
    std::optional<double> m_dragged;         ///< the row place under the pointer that drags
};

} // namespace qinghe
