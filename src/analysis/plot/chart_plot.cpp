#include "analysis/chart_drawing.h"
#include "look/colours.h"
#include "look/drawing.h"
#include "rounded_columns.h"

#include <QFontInfo>

#include <array>
#include <cmath>
#include <functional>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr QColor ChartRule = colour::fromRgb(0xE1EAD9), ZeroRule = colour::fromRgb(0x8FA884);
constexpr RoundedColumns::Shade Leaves{colour::fromRgb(0x6DB244), colour::fromRgb(0xA9D687)};
/// Of the series of a matrix, by turns.
constexpr std::array<QColor, 4> SeriesShades{colour::LeafDeep, colour::Leaf, colour::BarFrom,
                                             colour::fromRgb(0xC0E0A4)};
constexpr double SampleGap = 2;
constexpr double MarkSize = 10;
constexpr double YearMark = 6;     ///< below the foot, where a year begins
constexpr double SampleInk = 0.35; ///< what stands there only to show what a chart looks like

/// Something of ours among the layers of the plot.
class Painted : public QCPLayerable {
public:
    Painted(QCustomPlot* plot, const QString& layer, std::function<void(QPainter&)> paint)
        : QCPLayerable(plot, layer), m_paint(std::move(paint)) {}

protected:
    void applyDefaultAntialiasingHint(QCPPainter*) const override {}
    void draw(QCPPainter* painter) override { m_paint(*painter); }

private:
    std::function<void(QPainter&)> m_paint;
};

/// Words of one line in a box, 38 % of their characters' own height below its middle: the lines of some fonts are
/// higher than the box.
void paintWordsIn(QPainter& painter, const QRectF& box, const QString& words, const QFont& font, const QColor& colour) {
    const double baseline = box.center().y() + 0.38 * QFontInfo(font).pixelSize();
    painter.setFont(font);
    painter.setPen(colour);
    painter.drawText(QPointF(std::round(box.left()), std::round(baseline)), words);
}

RoundedColumns::Shade shadeOf(int column, int columns) {
    if (columns == 1)
        return Leaves;
    const QColor& plain = SeriesShades[static_cast<size_t>(column) % SeriesShades.size()];
    return {plain, plain};
}

} // namespace

class ChartPlot final : public ChartDrawing {
public:
    ChartPlot();
    void setMatrix(const ChartMatrix& matrix, const ChartFonts& fonts) override;
    void paint(QPaintDevice& device, const ChartLayout& layout, const QSize& size, double scroll) override;

private:
    void layOut(const QSize& size);
    QRegion withoutValues() const;
    void paintScale(QPainter& painter) const;
    void paintWords(QPainter& painter) const;
    void paintRow(QPainter& painter, int row) const;
    void paintYears(QPainter& painter) const;
    void paintLegend(QPainter& painter) const;

    QCustomPlot m_plot; ///< never shown itself: it paints where it is told
    QCPBarsGroup* m_group;
    std::vector<RoundedColumns*> m_series;
    ChartFonts m_fonts;

    // While it paints.
    const ChartLayout* m_layout = nullptr;
    double m_scroll = 0;
};

ChartPlot::ChartPlot() : m_group(new QCPBarsGroup(&m_plot)) {
    m_plot.setBackground(Qt::NoBrush);
    // The axes only count; lines and numbers are painted here, on whole pixels.
    for (QCPAxis* axis : {m_plot.xAxis, m_plot.yAxis}) {
        axis->setVisible(false);
        axis->grid()->setVisible(false);
    }
    m_plot.axisRect()->setAutoMargins(QCP::msNone);
    m_group->setSpacingType(QCPBarsGroup::stAbsolute);
    m_group->setSpacing(SampleGap);
    // The plot owns what joins its layers. Once, after it was made, it draws for a window that it has not got.
    m_plot.setViewport(QRect(0, 0, 1, 1));
    const auto join = [this](const QString& layer, void (ChartPlot::*part)(QPainter&) const) {
        new Painted(&m_plot, layer, [this, part](QPainter& painter) {
            if (m_layout)
                (this->*part)(painter);
        });
    };
    join(u"grid"_s, &ChartPlot::paintScale);
    join(u"axes"_s, &ChartPlot::paintWords);
}

void ChartPlot::setMatrix(const ChartMatrix& matrix, const ChartFonts& fonts) {
    m_group->clear();
    m_plot.clearPlottables();
    m_series.clear();
    m_fonts = fonts;
    QVector<double> rows(matrix.rowCount());
    std::iota(rows.begin(), rows.end(), 0);
    for (int i = 0; i < matrix.columnCount(); ++i) {
        auto* columns = new RoundedColumns(m_plot.xAxis, m_plot.yAxis, shadeOf(i, matrix.columnCount()));
        QVector<double> values;
        for (const double value : matrix.values[static_cast<size_t>(i)]) // one that is missing stays so
            values << std::clamp(value, -AxisScale::Farthest, AxisScale::Farthest);
        columns->setData(rows, values, true);
        columns->setBarsGroup(m_group);
        m_series.push_back(columns);
    }
}

void ChartPlot::layOut(const QSize& size) {
    const QRectF& plot = m_layout->plot();
    // The library counts pixels, of which the lowest is the first line's own.
    const double right = size.width() - plot.right(), foot = size.height() - plot.bottom();
    m_plot.axisRect()->setMargins(
        QMargins(qRound(plot.left()), qRound(plot.top()) + 1, qRound(right), qRound(foot) - 1));
    const double pitch = m_layout->pitch();
    const double first = m_scroll / pitch - 0.5;
    m_plot.xAxis->setRange(first, first + plot.width() / pitch);
    m_plot.yAxis->setRange(m_layout->scale().low(), m_layout->scale().high());
    for (RoundedColumns* columns : m_series)
        columns->setWidth(m_layout->columnWidth());
}

void ChartPlot::paint(QPaintDevice& device, const ChartLayout& layout, const QSize& size, double scroll) {
    m_layout = &layout;
    m_scroll = scroll;
    layOut(size);
    QCPPainter painter(&device);
    if (layout.matrix().isSample)
        painter.setOpacity(SampleInk);
    m_plot.toPainter(&painter, size.width(), size.height());
    m_layout = nullptr;
}

// Lines are left out behind the digits of values.
QRegion ChartPlot::withoutValues() const {
    QRegion region = m_plot.viewport();
    if (!m_layout->writesValues())
        return region;
    const ChartLayout::Rows rows = m_layout->rowsInView(m_scroll);
    for (int row = rows.first; row < rows.behindLast; ++row)
        if (!m_layout->valueText(row).isEmpty())
            region -= m_layout->valueBox(row, m_scroll).adjusted(-2, 1, 2, -1).toRect();
    return region;
}

void ChartPlot::paintScale(QPainter& painter) const {
    const QRectF& plot = m_layout->plot();
    const AxisScale& scale = m_layout->scale();
    paintWordsIn(painter, m_layout->unitBox(), ChartLayout::unit(), m_fonts.value, colour::Ink3);
    for (int i = 0; i < scale.lineCount(); ++i)
        paintWordsIn(painter, m_layout->axisBox(m_layout->lineY(i), scale.text(i)), scale.text(i), m_fonts.value,
                     colour::Ink3);
    painter.setClipRegion(withoutValues(), Qt::IntersectClip);
    for (int i = 0; i < scale.lineCount(); ++i)
        paintRule(painter, plot.left(), plot.right(), m_layout->lineY(i), ChartRule);
}

void ChartPlot::paintWords(QPainter& painter) const {
    const QRectF& plot = m_layout->plot();
    paintRule(painter, plot.left(), plot.right(), m_layout->y(0), ZeroRule);
    if (m_layout->hasLegend())
        paintLegend(painter);
    painter.setClipRect(QRectF(plot.left(), 0, plot.width(), painter.device()->height()), Qt::IntersectClip);
    const ChartLayout::Rows rows = m_layout->rowsInView(m_scroll);
    for (int row = rows.first; row < rows.behindLast; ++row)
        paintRow(painter, row);
    paintYears(painter);
}

void ChartPlot::paintYears(QPainter& painter) const {
    const double foot = m_layout->plot().bottom();
    for (const ChartLayout::Year& year : m_layout->years()) {
        paintUpright(painter, year.start, foot, foot + YearMark, ZeroRule);
        paintWordsIn(painter, year.box, year.words, m_fonts.label, colour::Ink);
    }
}

void ChartPlot::paintRow(QPainter& painter, int row) const {
    if (const QString text = m_layout->valueText(row); m_layout->writesValues() && !text.isEmpty())
        paintWordsIn(painter, m_layout->valueBox(row, m_scroll), text, m_fonts.value, colour::Ink);
    const QStringList lines = m_layout->label(row).lines;
    for (int i = 0; i < lines.size(); ++i)
        paintWordsIn(painter, m_layout->labelBox(row, i, lines[i], m_scroll), lines[i], m_fonts.label, colour::Ink);
}

void ChartPlot::paintLegend(QPainter& painter) const {
    const ChartMatrix& matrix = m_layout->matrix();
    for (int i = 0; i < matrix.columnCount(); ++i) {
        const QRectF box = m_layout->legendBox(i);
        const QRectF mark(box.left(), box.center().y() - MarkSize / 2, MarkSize, MarkSize);
        paintPanel(painter, mark, 2, shadeOf(i, matrix.columnCount()).top, {}, 0);
        paintWordsIn(painter, box.adjusted(MarkSize + 4, 0, 0, 0), matrix.columns[i], m_fonts.label, colour::Ink);
    }
}

} // namespace qinghe

/// The module's only name.
extern "C" Q_DECL_EXPORT qinghe::ChartDrawing* qingheChartDrawing() {
    return new qinghe::ChartPlot;
}
