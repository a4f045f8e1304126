#include "delivery/pictures.h"
#include "delivery/strokes.h"

#include <QPainter>

namespace qinghe {
namespace {

constexpr QPointF sun(588, 54);

void paintSky(QPainter& painter) {
    const QRectF sky(0, 0, SkinScene.width(), 110);
    painter.fillRect(sky, downwards({{0, rgb(0xD6ECF0)}, {42, rgb(0xE9F5F2)}, {100, rgb(0xFFFAE8)}}));
    painter.setClipRect(sky);
    paintLight(painter, sun, 202, rgb(0xFFF0B0, 0.85));
    painter.setClipping(false);
    painter.setBrush(rgb(0xFFF9DD));
    painter.drawEllipse(sun, 20, 20);
}

void paintRidges(QPainter& painter) {
    painter.fillPath(hills({{0, 60},
                            {60, 46},
                            {117, 56},
                            {196, 35.5},
                            {262, 52},
                            {334, 64},
                            {419, 55},
                            {491, 69},
                            {602, 66.5},
                            {675, 50},
                            {738, 59.5},
                            {800, 46}},
                           100),
                     downwards({{36, rgb(0xC6DFE0)}, {80, rgb(0xD6E9E4)}}));
    painter.fillPath(
        hills({{0, 74.5}, {87, 65}, {166, 77}, {286, 64.5}, {389, 79}, {524, 75.5}, {639, 82}, {717, 66}, {800, 73}},
              100),
        downwards({{64, rgb(0xB6D8C4)}, {94, rgb(0xC4E1CD)}}));
    painter.fillPath(hills({{0, 91.5}, {130, 86}, {250, 92.5}, {416, 86}, {560, 94}, {696, 86.5}, {800, 91.5}}, 110),
                     downwards({{86, rgb(0xAAD48C)}, {105, rgb(0xB8DC9D)}}));
}

/// The rows run towards a point above the picture, so that they stay apart up to the horizon, where they fade.
void paintRows(QPainter& painter) {
    constexpr QPointF meeting(429.5, -37);
    constexpr double pitchAtFoot = 69.7;
    painter.setPen(QPen(downwards({{108, rgb(0x9BCB70, 0)}, {300, rgb(0x9BCB70, 0.52)}}), 1.4));
    for (int row = -42; row <= 42; ++row) {
        const QPointF foot(meeting.x() + row * pitchAtFoot, SkinScene.height());
        const QPointF top = meeting + (foot - meeting) * (108 - meeting.y()) / (foot.y() - meeting.y());
        painter.drawLine(top, foot);
    }
}

void paintField(QPainter& painter) {
    painter.fillPath(hills({{0, 104}, {190, 99.5}, {420, 103}, {575, 100}, {800, 104}}, SkinScene.height()),
                     downwards({{100, rgb(0xC3E2A0)},
                                {140, rgb(0xD4EBB9)},
                                {240, rgb(0xD7EDBE)},
                                {360, rgb(0xD9EEC2)},
                                {480, rgb(0xCCE7AE)},
                                {540, rgb(0xC6E4A4)}}));
    paintRows(painter);
}

void paintFarSeedlings(QPainter& painter) {
    for (int i = 0; i < 26; ++i) {
        const double x = 8 + 17.6 * (i * 9 / 5);
        paintSeedling(painter, {x, 91.5 - 1.3 * (i * 2 % 4)}, 6 + 1.2 * (i * 3 % 4), youngRice(0.75));
    }
}

} // namespace

void paintMorningField(QPainter& painter) {
    paintSky(painter);
    paintRidges(painter);
    paintField(painter);
    paintFarSeedlings(painter);
}

void paintQinghe(QPainter& painter) {
    paintMorningField(painter);
    paintBirds(painter, {{{470, 23.5}, 8}, {{448.5, 34}, 5.4, 0.75}, {{492, 31.5}, 6, 0.85}}, 0x7DA5AC);
    paintForeground(painter, youngRice());
}

} // namespace qinghe
