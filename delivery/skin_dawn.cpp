#include "delivery/pictures.h"
#include "delivery/strokes.h"

#include <QPainter>

#include <array>

namespace qinghe {
namespace {

constexpr QPointF sun(561, 80);
constexpr double horizon = 86;

void paintSky(QPainter& painter) {
    const QRectF sky(0, 0, SkinScene.width(), horizon);
    painter.fillRect(
        sky, downwards({{0, rgb(0xC3D9F1)}, {33, rgb(0xE3E0F0)}, {60, rgb(0xFBE1D4)}, {horizon, rgb(0xFFD2A6)}}));
    painter.setClipRect(sky);
    paintLight(painter, sun, 226, rgb(0xFFC586, 0.9));
    paintBirds(painter, {{{429.5, 25.5}, 7}, {{411.5, 34}, 5.4, 0.85}}, 0x8C8AAE);
}

/// Two ranges on either hand; the sun comes up between them.
void paintRanges(QPainter& painter) {
    const QBrush far = downwards({{40, rgb(0xB5BCDB)}, {62, rgb(0xC2C5DC)}, {horizon, rgb(0xD2CDDD)}});
    const QBrush near = downwards({{66, rgb(0xA3A8C8)}, {horizon, rgb(0xB5B5CD)}});
    painter.fillPath(
        hills({{0, 60}, {57, 46}, {112, 53}, {171, 40}, {243, 60}, {303, 52}, {378, 74}, {465, 83}, {500, horizon}},
              horizon),
        far);
    painter.fillPath(hills({{645, horizon}, {697, 62}, {752, 65.5}, {800, 48}}, horizon), far);
    painter.fillPath(hills({{0, 75}, {112, 68}, {215, 81}, {335, 84}, {430, horizon}}, horizon), near);
    painter.fillPath(hills({{655, horizon}, {725, 75.5}, {800, 70}}, horizon), near);
}

void paintSun(QPainter& painter) {
    paintLight(painter, sun, 100, rgb(0xFFEBD0), 0.3);
    painter.setBrush(rgb(0xFFF2E0));
    painter.drawEllipse(sun, 25, 25);
    painter.setClipping(false);
}

void paintWater(QPainter& painter) {
    painter.fillRect(QRectF(0, horizon, SkinScene.width(), SkinScene.height() - horizon),
                     downwards({{horizon, rgb(0xFFE7CF)},
                                {104, rgb(0xFDE8D4)},
                                {140, rgb(0xF4E8D9)},
                                {200, rgb(0xEBE8DD)},
                                {300, rgb(0xE0E8E3)},
                                {420, rgb(0xD8E9EA)},
                                {540, rgb(0xD1E8EC)}}));
}

/// A rim: the dam of a terrace, seen from the valley, with the light on the water below it.
void paintRim(QPainter& painter, const QPainterPath& rim, double width) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(rgb(0xFFFFFF, 0.3), width * 0.8));
    painter.drawPath(rim.translated(0, width * 0.8));
    painter.setPen(QPen(rgb(0x7FA765, 0.62), width));
    painter.drawPath(rim);
}

void paintRimSeedlings(QPainter& painter, const QPainterPath& rim, double height, double from) {
    const Profile heights(rim);
    double x = from;
    for (int i = 0; x < SkinScene.width() - 4; ++i) {
        paintSeedling(painter, {x, heights(x)}, height * (i % 2 == 0 ? 0.85 : 1.0),
                      {rgb(0x9CC383), rgb(0x7FAE68), rgb(0x86B56C)});
        x += i % 2 == 0 ? 59 : 129;
    }
}

/// A pool is a touch lighter than the one above it, right below its rim.
void paintPool(QPainter& painter, const QPainterPath& rim) {
    QPainterPath pool = rim;
    pool.lineTo(SkinScene.width(), SkinScene.height());
    pool.lineTo(0, SkinScene.height());
    const double top = rim.boundingRect().top();
    painter.fillPath(pool, downwards({{top, rgb(0xFFFFFF, 0.07)}, {top + 110, rgb(0xFFFFFF, 0)}}));
}

void paintTerraces(QPainter& painter) {
    const std::array rims = {
        bendingLine({94.5, 96.4, 95.2, 94.6, 91.6}),    bendingLine({112.6, 108.1, 105.4, 104.6, 113.9}),
        bendingLine({129.5, 123.9, 125.6, 138, 133.1}), bendingLine({168, 166.5, 160.8, 154.6, 147.6}),
        bendingLine({188, 181.5, 198, 203.3, 204.8}),   bendingLine({243.4, 235.5, 225.9, 240.8, 256.6}),
        bendingLine({271, 296, 306, 289.5, 283}),       bendingLine({368.7, 353.4, 347.9, 327.9, 334.3}),
        bendingLine({413.3, 403.4, 385.5, 412, 422.3}), bendingLine({492, 508, 481, 471.7, 468.7})};
    for (std::size_t i = 0; i < rims.size(); ++i) {
        const double near = static_cast<double>(i) / static_cast<double>(rims.size() - 1);
        paintPool(painter, rims[i]);
        paintRim(painter, rims[i], 1.3 + 4.9 * near);
        if (i >= 2) {
            paintRimSeedlings(painter, rims[i], 6.5 + 9 * near, 18 + static_cast<double>(i * 41 % 60));
        }
    }
}

void paintFarSeedlings(QPainter& painter) {
    for (int i = 0; i < 48; ++i) {
        const double x = 4 + 34.2 * (i / 2) + (i % 2 == 1 ? 19.5 : 0);
        paintSeedling(painter, {x, 91 + 1.2 * (i * 3 % 4)}, 6 + 1.2 * (i % 3), youngRice(0.6));
    }
}

} // namespace

void paintDawn(QPainter& painter) {
    paintSky(painter);
    paintRanges(painter);
    paintSun(painter);
    paintWater(painter);
    paintTerraces(painter);
    paintFarSeedlings(painter);
    painter.setClipRect(QRectF(0, horizon, SkinScene.width(), SkinScene.height()));
    paintLight(painter, {sun.x(), horizon}, 150, rgb(0xFFEACB, 0.8));
    painter.setClipping(false);
    paintForeground(painter, {rgb(0x93B97C), rgb(0x6B9C54), rgb(0x78A660)});
}

} // namespace qinghe
