#include "analysis/ms_chart.h"

#include "analysis/chart_accessible.h"
#include "analysis/chart_drawing.h"
#include "analysis/scroll_strip.h"
#include "look/colours.h"
#include "look/drawing.h"
#include "look/fonts.h"
#include "runtime/shown_value.h"

#include <QCoreApplication>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QTextDocument>
#include <QToolTip>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype TipLine = 40; ///< characters

ChartFonts fontsFor(const ChartMatrix& matrix) {
    QFont label = matrix.columnCount() == 1 ? sans(type::Body) : figureFont();
    label.setBold(false);
    return {sans(type::Small), label};
}

ChartMatrix matrixOf(const QVariantList& data, ChartLabels labels) {
    ChartMatrix matrix;
    std::vector<double> values;
    values.reserve(static_cast<size_t>(data.size()));
    for (const QVariant& entry : data) {
        const QVariantList row = entry.toList();
        bool isNumber = false;
        const double value = row.value(1).toDouble(&isNumber);
        const QString label = row.value(0).toString();
        matrix.rows << (labels == ChartLabels::Months ? monthLabel(label) : label);
        if (labels == ChartLabels::Months)
            matrix.years << yearLabel(label);
        values.push_back(isNumber ? value : ChartMatrix::NoValue);
    }
    matrix.values.push_back(std::move(values));
    return matrix;
}

void paintSampleMark(QPaintDevice& device, const QRect& chart) {
    QPainter painter(&device);
    QRect plate(0, 0, 72, 34);
    plate.moveCenter(chart.center());
    paintPanel(painter, plate, 5, colour::faded(colour::White, 88), colour::PanelLine);
    painter.setFont(sans(type::Page));
    painter.setPen(colour::Ink2);
    painter.drawText(plate, Qt::AlignCenter, u"示例"_s);
}

/// Text for a tool tip, in lines that no screen is too narrow for.
QString tipText(const QString& label, const QString& value) {
    const QString head = shownValue(label, MostInTip);
    QStringList lines;
    for (qsizetype at = 0; at < head.size(); at += TipLine)
        lines << head.mid(at, TipLine);
    lines << value;
    return Qt::convertFromPlainText(lines.join(u'\n').trimmed());
}

/// A scroll bar's own keys run the other way.
QAbstractSlider::SliderAction actionOf(int key) {
    switch (key) {
    case Qt::Key_Left:
        return QAbstractSlider::SliderSingleStepSub;
    case Qt::Key_Right:
        return QAbstractSlider::SliderSingleStepAdd;
    case Qt::Key_PageUp:
        return QAbstractSlider::SliderPageStepSub;
    case Qt::Key_PageDown:
        return QAbstractSlider::SliderPageStepAdd;
    case Qt::Key_Home:
        return QAbstractSlider::SliderToMinimum;
    case Qt::Key_End:
        return QAbstractSlider::SliderToMaximum;
    default:
        return QAbstractSlider::SliderNoAction;
    }
}

} // namespace

MSChart::MSChart(QWidget* parent, const QString& name, const QString& moduleFolder)
    : QWidget(parent), Placed(this), m_moduleFolder(moduleFolder), m_matrix(sampleMatrix()) {
    ChartAccessible::install();
    setObjectName(name);
    setMouseTracking(true);
    setFont(QFont(u"宋体"_s));
}

MSChart::~MSChart() = default;

void MSChart::setChartData(const QVariantList& rows, ChartLabels labels) {
    m_data = rows;
    m_matrix = rows.isEmpty() ? sampleMatrix() : matrixOf(rows, labels);
    m_span = ChartLayout::Span::Scrolled;
    m_rulers.reset();
    if (m_drawing)
        m_drawing->setMatrix(m_matrix, fontsFor(m_matrix));
    redraw();
}

void MSChart::redraw() {
    m_places.reset();
    // The newest month is the last one.
    scrollTo(m_matrix.years.isEmpty() ? 0 : places().longestScroll());
    update();
}

void MSChart::showWhole(bool whole) {
    m_span = whole ? ChartLayout::Span::Whole : ChartLayout::Span::Scrolled;
    redraw();
}

bool MSChart::overflows() {
    return places().longestScroll() > 0;
}

const ChartLayout& MSChart::places() {
    if (!m_rulers) {
        const ChartFonts fonts = fontsFor(m_matrix);
        m_rulers.emplace(FontRuler(fonts.value), FontRuler(fonts.label));
    }
    if (!m_places)
        m_places.emplace(m_matrix, size(), ChartLayout::Rulers{m_rulers->first, m_rulers->second}, m_span);
    return *m_places;
}

int MSChart::scrolled() const {
    return m_strip ? m_strip->value() : 0;
}

void MSChart::scrollTo(int pixels) {
    layOutStrip();
    m_strip->setValue(pixels);
}

void MSChart::layOutStrip() {
    if (!m_strip) {
        m_strip = new ScrollStrip(this);
        connect(m_strip, &QScrollBar::valueChanged, this, qOverload<>(&QWidget::update));
    }
    const int longest = places().longestScroll();
    m_strip->setRange(0, longest);
    m_strip->setPageStep(qRound(places().plot().width()));
    m_strip->setSingleStep(qRound(places().pitch()));
    m_strip->setGeometry(places().strip().toRect());
    m_strip->setVisible(longest > 0);
    setFocusPolicy(longest > 0 ? Qt::StrongFocus : Qt::NoFocus);
}

void MSChart::paintOn(QPaintDevice& device) {
    if (!m_drawingSought) {
        m_drawingSought = true;
        if ((m_drawing = ChartDrawing::load(m_moduleFolder)))
            m_drawing->setMatrix(m_matrix, fontsFor(m_matrix));
    }
    if (m_drawing) {
        m_drawing->paint(device, places(), size(), scrolled());
        if (m_matrix.isSample)
            paintSampleMark(device, rect());
        return;
    }
    QPainter painter(&device);
    painter.setFont(sans(type::Body));
    painter.setPen(colour::Ink2);
    painter.drawText(rect(), Qt::AlignCenter, u"无法载入程序文件夹里的 qinghe_charts，图表显示不出来。"_s);
}

void MSChart::paintEvent(QPaintEvent*) {
    paintOn(*this);
}

void MSChart::resizeEvent(QResizeEvent*) {
    m_places.reset();
    if (isVisible())
        layOutStrip();
}

void MSChart::showEvent(QShowEvent*) {
    layOutStrip();
}

int MSChart::cutRowAt(const QPoint& place) {
    const int row = place.y() < places().plot().top() ? -1 : places().rowAt(place.x(), scrolled());
    return row >= 0 && places().label(row).cut ? row : -1;
}

bool MSChart::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const int row = cutRowAt(help->pos());
    if (row < 0) {
        QToolTip::hideText();
        return true;
    }
    const double pitch = places().pitch();
    const QRectF slot(places().middle(row, scrolled()) - pitch / 2, 0, pitch, height());
    QToolTip::showText(help->globalPos(), tipText(m_matrix.rows[row], places().valueText(row)), this, slot.toRect());
    return true;
}

void MSChart::mousePressEvent(QMouseEvent* event) {
    m_press.press(*event);
    if (event->button() == Qt::LeftButton)
        m_dragged = event->position().x() + scrolled();
    event->accept();
}

void MSChart::mouseMoveEvent(QMouseEvent* event) {
    if (m_dragged)
        scrollTo(qRound(*m_dragged - event->position().x()));
    event->accept();
}

void MSChart::mouseReleaseEvent(QMouseEvent* event) {
    m_dragged.reset();
    event->accept();
}

void MSChart::mouseDoubleClickEvent(QMouseEvent* event) {
    event->accept();
}

void MSChart::wheelEvent(QWheelEvent* event) {
    layOutStrip();
    QCoreApplication::sendEvent(m_strip, event);
    event->accept();
}

void MSChart::keyPressEvent(QKeyEvent* event) {
    const QAbstractSlider::SliderAction action = actionOf(event->key());
    if (!m_strip || action == QAbstractSlider::SliderNoAction)
        QWidget::keyPressEvent(event);
    else
        m_strip->triggerAction(action);
}

void MSChart::focusInEvent(QFocusEvent*) {
    update();
}

void MSChart::focusOutEvent(QFocusEvent*) {
    update();
}

} // namespace qinghe
