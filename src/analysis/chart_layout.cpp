#include "analysis/chart_layout.h"

#include "runtime/money.h"
#include "runtime/number_format.h"
#include "runtime/number_text.h"

#include <algorithm>
#include <cmath>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr double Top = 26, Right = 12; ///< margins of the plot
constexpr double Foot = 34;            ///< below a plot with one line of labels and no strip
constexpr double StripRoom = 12;       ///< what the strip takes of the height
constexpr double StripBottom = 2;
constexpr double LeastAxis = 57, AxisGap = 7;
constexpr double LeastPitch = 36;
constexpr double LabelGap = 4;     ///< between two labels side by side
constexpr double LabelMiddle = 15; ///< from the axis to the middle of the first line
constexpr double SmallHeight = 14, ValueDistance = 3;
constexpr double UnitMiddle = 9.5;
constexpr double LegendWidth = 40;
constexpr double TooLongForCents = 1e15;

QString textOf(double value) {
    if (std::isnan(value))
        return {};
    return std::abs(value) < TooLongForCents ? formatNumber(value, u"0.00"_s) : numberText(value);
}

/// A text as wide as the widest of that many digits.
QString widestOf(QString text) {
    for (QChar& character : text)
        if (character.isDigit())
            character = u'0';
    return text;
}

/// Years that are wide enough for their words keep them; the others keep them where there is room left.
void dropCrowdedWords(std::vector<ChartLayout::Year>& years) {
    std::vector<QRectF> taken;
    for (const bool wide : {true, false})
        for (ChartLayout::Year& year : years) {
            if ((year.box.width() <= year.room) != wide)
                continue;
            const QRectF box = year.box.adjusted(-LabelGap, 0, 0, 0);
            if (std::ranges::any_of(taken, [&](const QRectF& other) { return other.intersects(box); }))
                year.words.clear();
            else
                taken.push_back(box);
        }
}

/// The lowest value and the highest, 0 at least among them.
std::pair<double, double> range(const ChartMatrix& matrix) {
    std::pair<double, double> ends{0, 0};
    for (const auto& series : matrix.values)
        for (const double value : series)
            if (!std::isnan(value))
                ends = {std::min(ends.first, value), std::max(ends.second, value)};
    return ends;
}

} // namespace

ChartLayout::ChartLayout(const ChartMatrix& matrix, const QSizeF& size, Rulers rulers, Span span)
    : m_matrix(matrix),
      m_size(size),
      m_rulers(rulers),
      m_span(span),
      m_lowest(range(matrix).first),
      m_highest(range(matrix).second),
      m_scale(fittingScale()),
      m_writesValues(!hasLegend()) {
    const double left = std::max(LeastAxis, std::ceil(axisWidth() + AxisGap));
    m_plot = QRectF(left, Top, std::max(1.0, size.width() - left - Right), 1);
    layPitch();
    m_labelLines = namesRows() && anyLabelBreaks() ? 2 : 1;
    const double foot = Foot + (m_labelLines - 1) * LineHeight + (longestScroll() > 0 ? StripRoom : 0);
    m_plot.setHeight(std::max(1.0, size.height() - Top - foot));
}

AxisScale ChartLayout::fittingScale() const {
    AxisScale scale(m_lowest, m_highest);
    if (m_lowest >= 0 || hasLegend())
        return scale;
    // The lowest value's text hangs below its column and must not reach the labels.
    const double least = m_size.height() - Top - Foot - LineHeight - StripRoom;
    if (scale.share(m_lowest) * least < SmallHeight + ValueDistance)
        scale.addLineBelow();
    return scale;
}

double ChartLayout::axisWidth() const {
    double widest = 0;
    for (int i = 0; i < m_scale.lineCount(); ++i)
        widest = std::max(widest, m_rulers.value.width(m_scale.text(i)));
    return widest;
}

void ChartLayout::layPitch() {
    if (m_matrix.rows.isEmpty())
        return;
    const double share = m_plot.width() / m_matrix.rowCount();
    const double ofValue = hasLegend() ? 0 : widestValue() + ValueGap;
    if (m_span == Span::Scrolled) {
        m_pitch = std::max({LeastPitch, ofValue, share});
        return;
    }
    m_pitch = share;
    m_writesValues = m_writesValues && ofValue <= share;
}

double ChartLayout::widestValue() const {
    const auto width = [this](double value) { return m_rulers.value.atMost(widestOf(textOf(value))); };
    double widest = std::max(width(m_lowest), width(m_highest));
    // With cents no text is longer than that of the value farthest up or down; an exponent may be shorter than others.
    if (std::max(-m_lowest, m_highest) >= TooLongForCents)
        for (const double value : m_matrix.values.front())
            widest = std::max(widest, width(value));
    return widest;
}

bool ChartLayout::anyLabelBreaks() const {
    const double room = m_pitch - LabelGap;
    return std::any_of(m_matrix.rows.begin(), m_matrix.rows.end(), [&](const QString& row) {
        const QString words = drawnLabel(row);
        return m_rulers.label.atMost(words) > room && m_rulers.label.width(words) > room;
    });
}

double ChartLayout::columnWidth() const {
    return std::min(WidestColumn * (m_matrix.columnCount() > 1 ? 2 : 1), ColumnShare * m_pitch) /
           std::max(1, m_matrix.columnCount());
}

int ChartLayout::longestScroll() const {
    // Less than a pixel is no reason to scroll.
    return static_cast<int>(std::max(0.0, std::floor(m_pitch * m_matrix.rowCount() - m_plot.width() + 0.01)));
}

QRectF ChartLayout::strip() const {
    if (longestScroll() == 0)
        return {};
    return {m_plot.left(), m_size.height() - StripBottom - StripHeight, m_plot.width(), StripHeight};
}

double ChartLayout::y(double value) const {
    return m_plot.bottom() - m_scale.share(value) * m_plot.height();
}

double ChartLayout::lineY(int index) const {
    return m_plot.bottom() - m_scale.lineShare(index) * m_plot.height();
}

const QString& ChartLayout::unit() {
    static const QString Yuan = money::Sign.toString();
    return Yuan;
}

QRectF ChartLayout::axisBox(double y, const QString& words) const {
    const double width = m_rulers.value.width(words);
    return {m_plot.left() - AxisGap - width, y - SmallHeight / 2, width, SmallHeight};
}

QRectF ChartLayout::unitBox() const {
    return axisBox(UnitMiddle, unit());
}

QRectF ChartLayout::legendBox(int column) const {
    const double left = m_plot.right() - (m_matrix.columnCount() - column) * LegendWidth;
    return {left, UnitMiddle - SmallHeight / 2, LegendWidth, SmallHeight};
}

ChartLayout::Rows ChartLayout::rowsInView(double scroll) const {
    if (m_pitch <= 0)
        return {0, 0};
    const int first = static_cast<int>(std::floor(scroll / m_pitch));
    const int behindLast = static_cast<int>(std::ceil((scroll + m_plot.width()) / m_pitch - 1e-6));
    return {std::max(0, first), std::min(m_matrix.rowCount(), behindLast)};
}

int ChartLayout::rowAt(double x, double scroll) const {
    if (m_pitch <= 0 || x < m_plot.left() || x >= m_plot.right())
        return -1;
    const int row = static_cast<int>(std::floor((x - m_plot.left() + scroll) / m_pitch));
    return row < m_matrix.rowCount() ? row : -1;
}

double ChartLayout::middle(int row, double scroll) const {
    return m_plot.left() + (row + 0.5) * m_pitch - scroll;
}

QString ChartLayout::valueText(int row) const {
    return hasLegend() ? QString() : textOf(value(row));
}

QRectF ChartLayout::valueBox(int row, double scroll) const {
    const double width = m_rulers.value.width(valueText(row));
    const double left = middle(row, scroll) - width / 2;
    if (value(row) < 0)
        return {left, y(value(row)) + ValueDistance, width, SmallHeight};
    return {left, y(value(row)) - ValueDistance - SmallHeight, width, SmallHeight};
}

LabelLines ChartLayout::label(int row) const {
    if (!namesRows())
        return {{}, true};
    return breakLabel(drawnLabel(m_matrix.rows[row]), m_pitch - LabelGap, m_labelLines, m_rulers.label);
}

QRectF ChartLayout::labelBox(int row, int line, const QString& words, double scroll) const {
    const double width = m_rulers.label.width(words);
    const double top = m_plot.bottom() + LabelMiddle - LineHeight / 2.0 + line * LineHeight;
    return {middle(row, scroll) - width / 2, top, width, LineHeight};
}

std::vector<ChartLayout::Year> ChartLayout::years() const {
    std::vector<Year> years;
    if (namesRows())
        return years;
    for (int first = 0, behind = 0; first < m_matrix.rowCount(); first = behind) {
        const QString& words = m_matrix.years[first];
        while (behind < m_matrix.rowCount() && m_matrix.years[behind] == words)
            ++behind;
        const double width = m_rulers.label.width(words);
        const double start = m_plot.left() + first * m_pitch, room = (behind - first) * m_pitch;
        const double left = std::clamp(start + (room - width) / 2, m_plot.left(), m_plot.right() - width);
        const QRectF box(left, m_plot.bottom() + LabelMiddle - LineHeight / 2.0, width, LineHeight);
        years.push_back({words, box, start, room});
    }
    dropCrowdedWords(years);
    return years;
}

} // namespace qinghe
