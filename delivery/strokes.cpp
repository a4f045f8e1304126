#include "delivery/strokes.h"

#include <QLinearGradient>
#include <QPainter>
#include <QRadialGradient>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace qinghe {

QColor rgb(QRgb value, double alpha) {
    QColor colour = QColor::fromRgb(value);
    colour.setAlphaF(static_cast<float>(alpha));
    return colour;
}

QBrush downwards(ColourStops stops) {
    const double top = stops.begin()->first;
    const double height = std::prev(stops.end())->first - top;
    QLinearGradient gradient(0, top, 0, top + height);
    for (const auto& [y, colour] : stops) {
        gradient.setColorAt((y - top) / height, colour);
    }
    return gradient;
}

void paintLight(QPainter& painter, QPointF centre, double radius, const QColor& core, double solid) {
    QColor gone = core;
    gone.setAlpha(0);
    QRadialGradient light(centre, radius);
    light.setColorAt(0, core);
    light.setColorAt(solid, core);
    light.setColorAt(1, gone);
    painter.setPen(Qt::NoPen);
    painter.setBrush(light);
    painter.drawEllipse(centre, radius, radius);
}

void paintShadow(QPainter& painter, const QRectF& card, double radius) {
    constexpr int layers = 6;
    painter.setPen(Qt::NoPen);
    painter.setBrush(rgb(0x3A7426, 0.035));
    for (int layer = layers; layer > 0; --layer) {
        const double spread = layer - 2.0;
        painter.drawRoundedRect(card.adjusted(-spread, -spread, spread, spread).translated(0, 2), radius + spread,
                                radius + spread);
    }
}

QPainterPath hillLine(const Points& points) {
    QPainterPath line(points.front());
    for (std::size_t i = 1; i < points.size(); ++i) {
        const QPointF from = points[i - 1];
        const QPointF to = points[i];
        const double middle = (from.x() + to.x()) / 2;
        line.cubicTo(middle, from.y(), middle, to.y(), to.x(), to.y());
    }
    return line;
}

QPainterPath hills(const Points& points, double foot) {
    QPainterPath area = hillLine(points);
    area.lineTo(points.back().x(), foot);
    area.lineTo(points.front().x(), foot);
    area.closeSubpath();
    return area;
}

QPainterPath bendingLine(std::initializer_list<double> heights) {
    const std::vector<double> y(heights);
    const double step = SkinScene.width() / static_cast<double>(y.size() - 1);
    const auto slope = [&](std::size_t i) {
        const bool end = i == 0 || i + 1 == y.size();
        return end ? 0.0 : (y[i + 1] - y[i - 1]) / 2;
    };
    QPainterPath line(QPointF(0, y.front()));
    for (std::size_t i = 1; i < y.size(); ++i) {
        const double x = step * static_cast<double>(i);
        line.cubicTo(x - step * 2 / 3, y[i - 1] + slope(i - 1) / 3, x - step / 3, y[i] - slope(i) / 3, x, y[i]);
    }
    return line;
}

Profile::Profile(const QPainterPath& line) {
    constexpr double fine = 16; // flattened while large, so that no corner shows
    m_corners = QTransform::fromScale(1 / fine, 1 / fine)
                    .map(line.toSubpathPolygons(QTransform::fromScale(fine, fine)).front());
}

double Profile::operator()(double x) const {
    const auto behind = std::ranges::lower_bound(m_corners, x, {}, &QPointF::x);
    if (behind == m_corners.begin()) {
        return m_corners.front().y();
    }
    if (behind == m_corners.end()) {
        return m_corners.back().y();
    }
    const QPointF before = *std::prev(behind);
    return before.y() + (behind->y() - before.y()) * (x - before.x()) / (behind->x() - before.x());
}

BladeColours youngRice(double alpha) {
    return {rgb(YoungLeft, alpha), rgb(YoungMiddle, alpha), rgb(YoungRight, alpha)};
}

QPainterPath blade(QPointF foot, QPointF bend, QPointF tip, double width) {
    const QPointF half(width / 2, 0);
    QPainterPath path(foot - half);
    path.quadTo(bend - half * 0.8, tip);
    path.quadTo(bend + half * 0.8, foot + half);
    path.closeSubpath();
    return path;
}

void paintSeedling(QPainter& painter, QPointF foot, double height, const BladeColours& colours) {
    const auto at = [&](double x, double y) { return foot + QPointF(x, -y) * height; };
    painter.setPen(Qt::NoPen);
    painter.fillPath(blade(foot, at(-0.22, 0.42), at(-0.56, 0.56), height * 0.13), colours.left);
    painter.fillPath(blade(foot, at(0.22, 0.46), at(0.64, 0.64), height * 0.14), colours.right);
    painter.fillPath(blade(foot, at(-0.02, 0.5), at(0.08, 1.0), height * 0.12), colours.middle);
}

void paintForeground(QPainter& painter, const BladeColours& colours) {
    constexpr double golden = 1.618;
    Scatter scatter(7);
    for (int i = 0; i < 34; ++i) {
        const double x = 6 + 14.75 * std::ceil(golden * i);
        const double rise = std::pow(std::max(0.0, (x - 500) / 300), 1.4);
        const double height = (20 + 7 * scatter()) * (1 + 1.6 * rise);
        paintSeedling(painter, {x, SkinScene.height() + 1}, height, colours);
    }
}

void paintBirds(QPainter& painter, std::initializer_list<Bird> birds, QRgb colour) {
    for (const auto& [centre, span, alpha] : birds) {
        const auto at = [&, c = centre, s = span](double x, double y) { return c + QPointF(x, y) * s; };
        QPainterPath wings(at(-1, -0.18));
        wings.quadTo(at(-0.42, -0.5), at(0, 0.24));
        wings.quadTo(at(0.42, -0.62), at(1, -0.3));
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(rgb(colour, alpha), span * 0.17, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPath(wings);
    }
}

} // namespace qinghe
