#include "rounded_columns.h"

#include "look/colours.h"
#include "look/drawing.h"

#include <algorithm>
#include <cmath>

namespace qinghe {

namespace {

constexpr double Corner = 4;

/// A column that stands on its lower edge.
QPainterPath standing(const QRectF& rect) {
    const double round = std::min({Corner, rect.height(), rect.width() / 2});
    QPainterPath path(rect.bottomLeft());
    path.lineTo(rect.left(), rect.top() + round);
    path.arcTo(rect.left(), rect.top(), 2 * round, 2 * round, 180, -90);
    path.arcTo(rect.right() - 2 * round, rect.top(), 2 * round, 2 * round, 90, -90);
    path.lineTo(rect.bottomRight());
    path.closeSubpath();
    return path;
}

/// The same column upside down.
QPainterPath hangingFrom(const QRectF& rect) {
    QTransform turn(1, 0, 0, -1, 0, rect.top() + rect.bottom());
    return turn.map(standing(rect));
}

} // namespace

RoundedColumns::RoundedColumns(QCPAxis* rows, QCPAxis* values, Shade shade) : QCPBars(rows, values), m_shade(shade) {
    setWidthType(wtAbsolute);
    setAntialiased(false); // its half pixels are of no use: edges are put on pixels here
}

void RoundedColumns::draw(QCPPainter* painter) {
    QCPBarsDataContainer::const_iterator bar, end;
    getVisibleDataBounds(bar, end);
    painter->setRenderHint(QPainter::Antialiasing);
    for (; bar != end; ++bar)
        if (std::isfinite(bar->value) && bar->value != 0)
            paintColumn(*painter, getBarRect(bar->key, bar->value), bar->value < 0);
}

void RoundedColumns::paintColumn(QPainter& painter, const QRectF& room, bool hanging) const {
    QRectF rect = onPixels(painter, room);
    const double line = hair(painter);
    // The smallest amount still shows: a column stands on the line at 0, or hangs from below it.
    if (hanging) {
        rect = QRectF(rect.left(), rect.top() + line, rect.width(), std::max(line, rect.height() - line));
        painter.fillPath(hangingFrom(rect), colour::Amber);
        return;
    }
    rect.setTop(std::min(rect.top(), rect.bottom() - line));
    QLinearGradient shade(rect.topLeft(), rect.bottomLeft());
    shade.setColorAt(0, m_shade.top);
    shade.setColorAt(1, m_shade.foot);
    painter.fillPath(standing(rect), shade);
}

} // namespace qinghe
