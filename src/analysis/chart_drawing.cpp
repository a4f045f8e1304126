#include "analysis/chart_drawing.h"

#include "analysis/rounded_columns.h"
#include "look/colours.h"
#include "look/drawing.h"
#include "look/fonts.h"

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
constexpr int AxisGap = 7;
constexpr double SampleGap = 2;
constexpr double MarkSize = 10;

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

QFont chartValueFont() {
    return sans(type::Small);
}

QFont chartLabelFont(const ChartMatrix& matrix) {
    if (matrix.columnCount() == 1)
        return sans(type::Body);
    QFont font = figureFont();
    font.setBold(false);
    return font;
}

class ChartDrawing::Plot {
public:
    Plot();
    void setMatrix(const ChartMatrix& matrix);
    void paint(QPaintDevice& device, const ChartLayout& layout, const QSize& size, double scroll);

private:
    void layOut(const QSize& size);
    void showScale();
    void paintRules(QPainter& painter) const;
    void paintWords(QPainter& painter) const;
    void paintRow(QPainter& painter, int row) const;
    void paintLegend(QPainter& painter) const;

    QCustomPlot m_plot; ///< never shown itself: it paints where it is told
    QCPBarsGroup* m_group;
    std::vector<RoundedColumns*> m_series;
    QFont m_valueFont = chartValueFont(), m_labelFont;

    // While it paints.
    const ChartLayout* m_layout = nullptr;
    double m_scroll = 0;
};

ChartDrawing::Plot::Plot() : m_group(new QCPBarsGroup(&m_plot)) {
    m_plot.setBackground(Qt::NoBrush);
    m_plot.setNoAntialiasingOnDrag(false);
    m_plot.xAxis->setVisible(false);
    m_plot.xAxis->grid()->setVisible(false);
    m_plot.yAxis->grid()->setVisible(false);
    m_plot.yAxis->setBasePen(Qt::NoPen);
    m_plot.yAxis->setTickLength(0);
    m_plot.yAxis->setTickLabelFont(m_valueFont);
    m_plot.yAxis->setTickLabelColor(colour::Ink3);
    m_plot.yAxis->setTickLabelPadding(AxisGap);
    m_plot.axisRect()->setAutoMargins(QCP::msNone);
    m_group->setSpacingType(QCPBarsGroup::stAbsolute);
    m_group->setSpacing(SampleGap);
    // The plot owns what joins its layers. Once, after it was made, it draws for a window that it has not got.
    m_plot.setViewport(QRect(0, 0, 1, 1));
    const auto join = [this](const QString& layer, void (Plot::*part)(QPainter&) const) {
        new Painted(&m_plot, layer, [this, part](QPainter& painter) {
            if (m_layout)
                (this->*part)(painter);
        });
    };
    join(u"grid"_s, &Plot::paintRules);
    join(u"axes"_s, &Plot::paintWords);
}

void ChartDrawing::Plot::setMatrix(const ChartMatrix& matrix) {
    m_group->clear();
    m_plot.clearPlottables();
    m_series.clear();
    m_labelFont = chartLabelFont(matrix);
    QVector<double> rows(matrix.rowCount());
    std::iota(rows.begin(), rows.end(), 0);
    for (int i = 0; i < matrix.columnCount(); ++i) {
        auto* columns = new RoundedColumns(m_plot.xAxis, m_plot.yAxis, shadeOf(i, matrix.columnCount()));
        const std::vector<double>& values = matrix.values[static_cast<size_t>(i)];
        columns->setData(rows, QVector<double>(values.begin(), values.end()), true);
        columns->setBarsGroup(m_group);
        m_series.push_back(columns);
    }
}

void ChartDrawing::Plot::layOut(const QSize& size) {
    const QRectF& plot = m_layout->plot();
    // The library counts pixels, of which the lowest is the first line's own.
    const double right = size.width() - plot.right(), foot = size.height() - plot.bottom();
    m_plot.axisRect()->setMargins(
        QMargins(qRound(plot.left()), qRound(plot.top()) + 1, qRound(right), qRound(foot) - 1));
    const double pitch = m_layout->pitch();
    const double first = m_scroll / pitch - 0.5;
    m_plot.xAxis->setRange(first, first + plot.width() / pitch);
    for (RoundedColumns* columns : m_series)
        columns->setWidth(m_layout->columnWidth());
}

void ChartDrawing::Plot::showScale() {
    const AxisScale& scale = m_layout->scale();
    const auto ticker = QSharedPointer<QCPAxisTickerText>::create();
    for (int i = 0; i < scale.lineCount(); ++i)
        ticker->addTick(scale.line(i), scale.text(i));
    m_plot.yAxis->setTicker(ticker);
    m_plot.yAxis->setRange(scale.low(), scale.high());
}

void ChartDrawing::Plot::paint(QPaintDevice& device, const ChartLayout& layout, const QSize& size, double scroll) {
    m_layout = &layout;
    m_scroll = scroll;
    layOut(size);
    showScale();
    QCPPainter painter(&device);
    m_plot.toPainter(&painter, size.width(), size.height());
    m_layout = nullptr;
}

void ChartDrawing::Plot::paintRules(QPainter& painter) const {
    const QRectF& plot = m_layout->plot();
    for (int i = 0; i < m_layout->scale().lineCount(); ++i)
        paintRule(painter, plot.left(), plot.right(), m_layout->lineY(i), ChartRule);
}

void ChartDrawing::Plot::paintWords(QPainter& painter) const {
    const QRectF& plot = m_layout->plot();
    paintRule(painter, plot.left(), plot.right(), m_layout->y(0), ZeroRule);
    QRectF unit = m_layout->unitBox();
    unit.setLeft(unit.right() - QFontMetricsF(m_valueFont).horizontalAdvance(u"元"_s));
    paintWordsIn(painter, unit, u"元"_s, m_valueFont, colour::Ink3);
    if (!m_layout->writesValues())
        paintLegend(painter);
    painter.setClipRect(QRectF(plot.left(), 0, plot.width(), painter.device()->height()), Qt::IntersectClip);
    const ChartLayout::Rows rows = m_layout->rowsInView(m_scroll);
    for (int row = rows.first; row < rows.behindLast; ++row)
        paintRow(painter, row);
}

void ChartDrawing::Plot::paintRow(QPainter& painter, int row) const {
    if (const QString text = m_layout->valueText(row); !text.isEmpty())
        paintWordsIn(painter, m_layout->valueBox(row, m_scroll), text, m_valueFont, colour::Ink);
    const QStringList lines = m_layout->label(row).lines;
    for (int i = 0; i < lines.size(); ++i)
        paintWordsIn(painter, m_layout->labelBox(row, i, lines[i], m_scroll), lines[i], m_labelFont, colour::Ink);
}

void ChartDrawing::Plot::paintLegend(QPainter& painter) const {
    const ChartMatrix& matrix = m_layout->matrix();
    for (int i = 0; i < matrix.columnCount(); ++i) {
        const QRectF box = m_layout->legendBox(i);
        const QRectF mark(box.left(), box.center().y() - MarkSize / 2, MarkSize, MarkSize);
        paintPanel(painter, mark, 2, shadeOf(i, matrix.columnCount()).top, {}, 0);
        paintWordsIn(painter, box.adjusted(MarkSize + 4, 0, 0, 0), matrix.columns[i], m_labelFont, colour::Ink);
    }
}

ChartDrawing::ChartDrawing() : m_plot(std::make_unique<Plot>()) {}
ChartDrawing::~ChartDrawing() = default;

void ChartDrawing::setMatrix(const ChartMatrix& matrix) {
    m_plot->setMatrix(matrix);
}

void ChartDrawing::paint(QPaintDevice& device, const ChartLayout& layout, const QSize& size, double scroll) {
    m_plot->paint(device, layout, size, scroll);
}

} // namespace qinghe
