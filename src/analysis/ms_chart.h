#pragma once

#include "analysis/chart_layout.h"
#include "controls/placed.h"
#include "controls/press_tracker.h"

#include <QCoreApplication>
#include <QVariantList>
#include <QWidget>

#include <memory>
#include <optional>

namespace qinghe {

class ChartDrawing;
class ScrollStrip;

/// A chart of labelled values, as columns. It takes its data in one assignment and shows a sample matrix before the
/// first one, pale, and called a sample. Where the columns need more room than there is, the plot scrolls sideways: by
/// the strip at its foot, the wheel, by dragging it, and by keys. Months open with the newest in view, and can be shown
/// all at once.
class MSChart : public QWidget, public Placed {
    Q_OBJECT
    QINGHE_CONTROL
    Q_PROPERTY(QVariantList ChartData READ ChartData WRITE setChartData)

public:
    /// The folder holds the drawing's module; without it the chart says so and is otherwise whole.
    MSChart(QWidget* parent, const QString& name, const QString& moduleFolder = QCoreApplication::applicationDirPath());
    ~MSChart() override;

    /// Rows of [label, value]; a value that is no number (an invalid QVariant) has no column. Empty before the first
    /// data. What the labels are decides only how they are drawn.
    const QVariantList& ChartData() const { return m_data; }
    void setChartData(const QVariantList& rows, ChartLabels labels = ChartLabels::Words);

    /// Whether the columns, as they stand, need more room than there is.
    bool overflows();
    /// All columns in view, however narrow; the next data stand at their own width again. For months.
    void showWhole(bool whole);
    bool isWhole() const { return m_span == ChartLayout::Span::Whole; }

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
    void redraw();
    /// The row under a place whose label is cut or not there and is told whole, or -1.
    int cutRowAt(const QPoint& place);

    const QString m_moduleFolder;
    QVariantList m_data;
    ChartMatrix m_matrix;
    std::optional<std::pair<FontRuler, FontRuler>> m_rulers; ///< of the values and of the labels
    std::optional<ChartLayout> m_places;
    ChartLayout::Span m_span = ChartLayout::Span::Scrolled;
    std::unique_ptr<ChartDrawing> m_drawing; ///< loaded when the chart is first on view
    bool m_drawingSought = false;
    ScrollStrip* m_strip = nullptr;  ///< made likewise
    PressTracker m_press;            ///< a double click that began here is no other control's
    std::optional<double> m_dragged; ///< the row place under the pointer that drags
};

} // namespace qinghe
