#include "delivery/pictures.h"
#include "delivery/strokes.h"

#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>

namespace qinghe {
namespace {

constexpr QRgb ink = 0x46575A;
constexpr double mist = 126; ///< where the far mountains have dissolved

/// Crags for a mountain line: noise folded upwards, so that it has sharp ridges and round hollows.
class Crags {
public:
    explicit Crags(quint32 seed) {
        Scatter scatter(seed);
        for (double& knot : m_knots) {
            knot = scatter.between(-1, 1);
        }
    }

    /// From about -0.5 to 0.5; `x` in the units of the coarsest crags.
    double operator()(double x) const {
        double sum = 0;
        double weight = 1;
        for (int octave = 0; octave < 4; ++octave, weight *= 0.5, x *= 2.1) {
            sum += weight * (1 - 2 * std::abs(noise(x)));
        }
        return sum / 2 - 0.5;
    }

private:
    double noise(double x) const {
        const double floor = std::floor(x);
        const double part = x - floor;
        const double blend = part * part * (3 - 2 * part);
        return knot(floor) * (1 - blend) + knot(floor + 1) * blend;
    }
    double knot(double place) const { return m_knots[static_cast<std::size_t>(place) % m_knots.size()]; }

    std::array<double, 64> m_knots{};
};

struct Range {
    Points peaks;     ///< the large shape
    double roughness; ///< height of the crags on it
    double crag;      ///< width of the coarsest ones
    quint32 seed;
};

/// Pointed at the peaks, level in the hollows.
QPainterPath peakLine(const Points& points) {
    QPainterPath line(points.front());
    for (std::size_t i = 1; i < points.size(); ++i) {
        const double hollow = std::max(points[i - 1].y(), points[i].y());
        line.quadTo(QPointF((points[i - 1].x() + points[i].x()) / 2, hollow), points[i]);
    }
    return line;
}

QPainterPath outline(const Range& range, double foot) {
    const Profile large(peakLine(range.peaks));
    const Crags crags(range.seed);
    QPainterPath area(QPointF(0, foot));
    for (double x = 0; x <= SkinScene.width() + 2; x += 1.5) {
        area.lineTo(x, large(x) - range.roughness * crags(x / range.crag));
    }
    area.lineTo(SkinScene.width() + 2, foot);
    area.closeSubpath();
    return area;
}

void paintPaper(QPainter& painter) {
    painter.fillRect(
        QRectF({0, 0}, SkinScene),
        downwards({{0, rgb(0xEDEBE4)}, {mist, rgb(0xF8F6F0)}, {300, rgb(0xF4F2EC)}, {540, rgb(0xEEECE6)}}));
}

void paintFarMountains(QPainter& painter) {
    const Range back{{{0, 67},
                      {69, 77},
                      {126, 65},
                      {175, 51},
                      {212, 73},
                      {277, 68},
                      {313, 55},
                      {361, 68},
                      {385, 65},
                      {434, 77},
                      {494, 90},
                      {560, 84},
                      {662, 76},
                      {800, 78}},
                     4,
                     17,
                     11};
    const Range middle{{{0, 77},
                        {72, 91},
                        {150, 76},
                        {241, 66},
                        {274, 61},
                        {313, 76},
                        {370, 71},
                        {415, 91},
                        {464, 93},
                        {512, 83},
                        {560, 67},
                        {606, 71},
                        {638, 58},
                        {681, 71},
                        {744, 53},
                        {765, 66},
                        {789, 56},
                        {800, 62}},
                       4,
                       18,
                       23};
    const Range front{{{0, 77},
                       {33, 79},
                       {72, 90},
                       {95, 84},
                       {124, 93},
                       {175, 107},
                       {229, 82},
                       {272, 74},
                       {307, 84},
                       {328, 96},
                       {361, 91},
                       {422, 100},
                       {506, 111},
                       {578, 104},
                       {638, 88},
                       {681, 79},
                       {735, 75},
                       {800, 82}},
                      4,
                      16,
                      37};
    painter.fillPath(outline(back, mist), downwards({{46, rgb(ink, 0.17)}, {98, rgb(ink, 0)}}));
    painter.fillPath(outline(middle, mist),
                     downwards({{50, rgb(ink, 0.32)}, {116, rgb(ink, 0.02)}, {mist, rgb(ink, 0)}}));
    painter.fillPath(outline(front, mist),
                     downwards({{68, rgb(ink, 0.68)}, {112, rgb(ink, 0.13)}, {mist, rgb(ink, 0)}}));
}

void paintNearMountains(QPainter& painter) {
    const Range behind{{{0, 349},   {25, 328},  {63, 365},  {90, 391},  {138, 366}, {188, 370}, {223, 352}, {256, 388},
                        {304, 401}, {348, 373}, {376, 409}, {435, 402}, {482, 417}, {509, 403}, {548, 434}, {572, 457},
                        {619, 406}, {645, 435}, {684, 448}, {723, 440}, {759, 414}, {800, 384}},
                       9,
                       28,
                       41};
    const Range before{{{0, 512},   {39, 484},  {84, 478},  {108, 494}, {147, 464}, {185, 472}, {212, 495}, {241, 495},
                        {272, 478}, {313, 500}, {352, 520}, {386, 504}, {416, 497}, {470, 499}, {524, 511}, {578, 496},
                        {611, 466}, {651, 469}, {681, 454}, {711, 476}, {741, 500}, {765, 522}, {800, 536}},
                       8,
                       26,
                       53};
    painter.fillPath(outline(behind, 540),
                     downwards({{326, rgb(ink, 0.23)}, {500, rgb(ink, 0.03)}, {540, rgb(ink, 0)}}));
    painter.fillPath(outline(before, 540), downwards({{448, rgb(ink, 0.36)}, {540, rgb(ink, 0.02)}}));
}

void paintBoat(QPainter& painter) {
    QPainterPath hull(QPointF(352.5, 100));
    hull.quadTo(372, 103.6, 392, 99.4);
    hull.quadTo(382, 104.4, 371, 104.4);
    hull.quadTo(360, 104.4, 352.5, 100);
    painter.fillPath(hull, rgb(0x3C494C, 0.95));
    painter.fillRect(QRectF(373, 93, 1.6, 9), rgb(0x3C494C, 0.9));
}

void paintReeds(QPainter& painter) {
    Scatter scatter(5);
    for (int i = 0; i < 17; ++i) {
        const QPointF foot(604 + 12.6 * i, 542);
        const double height = scatter.between(34, 60);
        const double lean = scatter.between(-15, 12);
        painter.fillPath(blade(foot, foot + QPointF(lean * 0.1, -height * 0.55), foot + QPointF(lean, -height), 2.4),
                         rgb(0x3F5356, 0.66));
    }
}

} // namespace

void paintInk(QPainter& painter) {
    paintPaper(painter);
    painter.setPen(Qt::NoPen);
    painter.setBrush(rgb(0xD4593A, 0.86));
    painter.drawEllipse(QPointF(512, 30), 13, 13);
    paintBirds(painter, {{{470, 20}, 6.4}, {{455, 28.5}, 5}, {{437.5, 22.8}, 4, 0.8}}, 0x5E6F72);
    paintFarMountains(painter);
    paintBoat(painter);
    paintNearMountains(painter);
    paintReeds(painter);
}

} // namespace qinghe
