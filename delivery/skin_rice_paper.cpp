#include "delivery/lettering.h"
#include "delivery/pictures.h"
#include "delivery/strokes.h"

#include <QPainter>
#include <QTransform>

#include <cmath>
#include <numbers>

namespace qinghe {
namespace {

constexpr QRgb ripe = 0xC79F52, pale = 0xCDAA66, green = 0xBFB070;

void paintPaper(QPainter& painter) {
    painter.fillRect(QRectF({0, 0}, SkinScene), downwards({{0, rgb(0xFBF1DC)},
                                                           {140, rgb(0xFCF4E2)},
                                                           {270, rgb(0xFDF6E8)},
                                                           {400, rgb(0xFAF1DE)},
                                                           {540, rgb(0xF6EAD1)}}));
}

void paintFibres(QPainter& painter) {
    Scatter scatter(19);
    painter.setBrush(Qt::NoBrush);
    for (int i = 0; i < 420; ++i) {
        const QPointF start(scatter() * SkinScene.width(), scatter() * SkinScene.height());
        const double angle = scatter.between(0, 2 * std::numbers::pi);
        const QPointF along = QPointF(std::cos(angle), std::sin(angle)) * scatter.between(8, 20);
        const QPointF aside = QPointF(-along.y(), along.x()) * scatter.between(-0.45, 0.45);
        QPainterPath fibre(start);
        fibre.quadTo(start + along / 2 + aside, start + along);
        const QColor colour = i % 4 == 0 ? rgb(0xFFFFFF, 0.5) : rgb(0xC9A35E, scatter.between(0.14, 0.3));
        painter.setPen(QPen(colour, 0.9, Qt::SolidLine, Qt::RoundCap));
        painter.drawPath(fibre);
    }
}

void paintRules(QPainter& painter) {
    for (double y = 73; y < SkinScene.height(); y += 18) {
        painter.fillRect(QRectF(0, y - 0.5, SkinScene.width(), 1), rgb(0xDDB984, 0.4));
    }
    for (const double x : {5.5, 794.5}) {
        painter.fillRect(QRectF(x - 0.6, 0, 1.2, SkinScene.height()), rgb(0xD98C7C, 0.42));
    }
}

/// An ear of rice: a stem from `foot` to `neck`, the ear from there to `tip`, and one leaf.
struct Ear {
    QPointF foot, neck, tip, leaf;
    double size; ///< thickness of the ear
    QRgb colour;
    double alpha;
};

void paintGrains(QPainter& painter, const Ear& ear) {
    const QPointF stem = ear.neck - ear.foot;
    const QPointF span = ear.tip - ear.neck;
    const double length = std::hypot(span.x(), span.y());
    QPainterPath spine(ear.neck);
    spine.quadTo(ear.neck + stem / std::hypot(stem.x(), stem.y()) * length * 0.55, ear.tip);

    QPainterPath grain;
    grain.addEllipse(QPointF(0.34, 0), 0.42, 0.19);
    const int pairs = static_cast<int>(std::lround(length / (ear.size * 0.42)));
    painter.setPen(Qt::NoPen);
    for (int i = 0; i <= pairs; ++i) {
        const double part = 0.95 * i / pairs;
        const QPointF at = spine.pointAtPercent(part);
        for (const double side : {-32.0, 32.0}) {
            QTransform place = QTransform::fromTranslate(at.x(), at.y());
            place.rotate(side - spine.angleAtPercent(part));
            place.scale(ear.size, ear.size);
            painter.fillPath(place.map(grain), rgb(ear.colour, ear.alpha * (side < 0 ? 0.86 : 1.0)));
        }
    }
}

void paintEar(QPainter& painter, const Ear& ear) {
    const QColor colour = rgb(ear.colour, ear.alpha);
    painter.setPen(QPen(colour, ear.size * 0.2, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(ear.foot, ear.neck);
    const QPointF bend((ear.foot.x() * 0.55 + ear.leaf.x() * 0.45) + ear.size * 1.1, (ear.foot.y() + ear.leaf.y()) / 2);
    painter.fillPath(blade(ear.foot, bend, ear.leaf, ear.size * 0.42), colour);
    paintGrains(painter, ear);
}

void paintEars(QPainter& painter) {
    for (const Ear& ear : {Ear{{300, 113}, {298.5, 69}, {316, 27}, {258, 74}, 9, pale, 0.75},
                           Ear{{330, 112}, {353, 54}, {397, 7}, {301, 44}, 11, ripe, 0.82},
                           Ear{{372, 112}, {405, 71}, {450, 46.5}, {366, 46}, 9.5, green, 0.8},
                           Ear{{561, 113}, {587, 66}, {629, 33}, {541, 49}, 10, pale, 0.9},
                           Ear{{591, 113}, {621, 84}, {661, 69.5}, {593, 65}, 8.5, green, 0.75},
                           Ear{{42, 542}, {72, 470}, {135, 413}, {-2, 447}, 15, ripe, 0.82},
                           Ear{{700, 542}, {701, 462}, {739, 387}, {625, 471}, 15, ripe, 0.82},
                           Ear{{643, 542}, {671, 491}, {722, 447}, {613, 469}, 13, green, 0.85}}) {
        paintEar(painter, ear);
    }
}

void paintSeal(QPainter& painter) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(rgb(0xC2473A));
    painter.drawRoundedRect(QRectF(228, 17, 17.4, 30), 2.4, 2.4);
    const Lettering carved{Lettering::Serif, 12.5, false, rgb(0xFFF8EC)};
    paintCentred(painter, carved, {236.7, 25.4}, u"青");
    paintCentred(painter, carved, {236.7, 38.8}, u"禾");
}

} // namespace

void paintRicePaper(QPainter& painter) {
    paintPaper(painter);
    paintFibres(painter);
    paintRules(painter);
    paintEars(painter);
    paintSeal(painter);
}

} // namespace qinghe
