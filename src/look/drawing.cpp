#include "look/drawing.h"

#include "look/colours.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPen>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace qinghe {

QRectF onPixels(const QPainter& painter, const QRectF& rect) {
    const QTransform toDevice = painter.deviceTransform();
    const QRectF device = toDevice.mapRect(rect);
    const QRectF whole(QPointF(std::round(device.left()), std::round(device.top())),
                       QPointF(std::round(device.right()), std::round(device.bottom())));
    return toDevice.inverted().mapRect(whole);
}

double hair(const QPainter& painter) {
    const double scale = std::max(0.1, painter.deviceTransform().m11());
    return std::max(1.0, std::round(scale)) / scale;
}

void paintPanel(QPainter& painter, const QRectF& rect, double radius, const QBrush& fill, const QColor& edge,
                double width) {
    const double pen = width == 1 ? hair(painter) : width;
    const double inset = pen / 2;
    const QRectF outline = onPixels(painter, rect).adjusted(inset, inset, -inset, -inset);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(fill);
    painter.setPen(edge.isValid() ? QPen(edge, pen) : QPen(Qt::NoPen));
    const double corner = std::max(0.0, radius - inset);
    if (corner > 0)
        painter.drawRoundedRect(outline, corner, corner);
    else
        painter.drawRect(outline);
    painter.restore();
}

void paintKeyboardRing(QPainter& painter, const QRectF& rect) {
    const QColor light = colour::faded(colour::White, 85);
    paintPanel(painter, rect, 5, Qt::NoBrush, light);
    paintPanel(painter, rect.adjusted(1, 1, -1, -1), 4, Qt::NoBrush, colour::LeafDeep, 1.8);
    paintPanel(painter, rect.adjusted(2.8, 2.8, -2.8, -2.8), 2.5, Qt::NoBrush, light);
}

void paintKeyboardLine(QPainter& painter, const QRectF& rect) {
    paintPanel(painter, {rect.left(), rect.bottom() - 4, rect.width(), 4}, 2, colour::LeafDeep,
               colour::faded(colour::White, 85));
}

void paintRule(QPainter& painter, double left, double right, double y, const QColor& colour) {
    const QRectF pixel = onPixels(painter, QRectF(left, y, right - left, 1));
    painter.fillRect(QRectF(pixel.left(), pixel.bottom() - hair(painter), pixel.width(), hair(painter)), colour);
}

void paintUpright(QPainter& painter, double x, double top, double bottom, const QColor& colour) {
    const QRectF pixel = onPixels(painter, QRectF(x, top, 1, bottom - top));
    painter.fillRect(QRectF(pixel.right() - hair(painter), pixel.top(), hair(painter), pixel.height()), colour);
}

void paintLine(QPainter& painter, const QRect& room, Qt::Alignment alignment, const QString& words, const QFont& font,
               const QColor& colour) {
    const QFontMetrics metrics(font);
    // No character is narrower than a pixel: of a text as long as a book its head says that it has no room.
    const QString head = words.left(std::max(0, room.width()) + 1);
    const QString shown = metrics.elidedText(head, Qt::ElideRight, room.width());
    // QLineEdit's own sums, half pixels rounded as there.
    const double advance = QFontMetricsF(font).horizontalAdvance(shown);
    const int used = qRound(advance) + 1;
    int x = room.left();
    if (alignment & Qt::AlignRight)
        x += std::max(0, room.width() - used - 1);
    else if (alignment & Qt::AlignHCenter)
        x += std::max(0, qRound((room.width() - advance) / 2));
    const int y = room.top() + (room.height() - metrics.height() + 1) / 2 + metrics.ascent();
    painter.setFont(font);
    painter.setPen(colour);
    painter.drawText(QPointF(x, y), shown);
}

} // namespace qinghe
