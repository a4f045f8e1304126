#include "delivery/lettering.h"

#include "look/fonts.h"

#include <QFont>
#include <QPainter>
#include <QPainterPath>
#include <QTransform>

namespace qinghe {
namespace {

/// The outline at `lettering.pixels`, its base line at 0. Drawn large and shrunk: no hint bends it.
QPainterPath outlineOf(const Lettering& lettering, QStringView words) {
    constexpr int large = 200;
    QFont font = lettering.family == Lettering::Sans ? sans(type::Body) : figureFont();
    font.setPixelSize(large);
    QPainterPath path;
    path.addText(0, 0, font, words.toString());
    path.setFillRule(Qt::WindingFill);
    return QTransform::fromScale(lettering.pixels / large, lettering.pixels / large).map(path);
}

/// The clear small sans has no bold of its own: its outline is thickened.
void paintOutline(QPainter& painter, const Lettering& lettering, const QPainterPath& outline) {
    const QPen thick(lettering.colour, lettering.pixels * 0.05, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    painter.setPen(lettering.bold ? thick : QPen(Qt::NoPen));
    painter.setBrush(lettering.colour);
    painter.drawPath(outline);
}

/// A character stands with its base line at 0.12 of its square.
double baseLine(const Lettering& lettering, double middle) {
    return middle + 0.38 * lettering.pixels;
}

} // namespace

void paintFrom(QPainter& painter, const Lettering& lettering, QPointF leftMiddle, QStringView words) {
    const QPainterPath outline = outlineOf(lettering, words);
    paintOutline(painter, lettering, outline.translated(leftMiddle.x(), baseLine(lettering, leftMiddle.y())));
}

void paintCentred(QPainter& painter, const Lettering& lettering, QPointF middle, QStringView words) {
    const QPainterPath outline = outlineOf(lettering, words);
    const double left = middle.x() - outline.boundingRect().center().x();
    paintOutline(painter, lettering, outline.translated(left, baseLine(lettering, middle.y())));
}

} // namespace qinghe
