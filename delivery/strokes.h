#pragma once

#include <QColor>
#include <QPainterPath>
#include <QPolygonF>
#include <QRandomGenerator>
#include <QRectF>

#include <initializer_list>
#include <utility>
#include <vector>

class QPainter;

/// What the delivered pictures have in common: grounds, ridges, blades, birds, lights. All places are in the units of
/// the picture's scene (a pixel at 100 %), y grows downwards. Nothing here is drawn by chance: the same picture comes
/// out of every build.
namespace qinghe {

inline constexpr QSizeF SkinScene(800, 540);

/// Colours at heights (or distances), from the first to the last in rising order.
using ColourStops = std::initializer_list<std::pair<double, QColor>>;

QColor rgb(QRgb value, double alpha = 1.0);

/// A brush that changes from top to bottom; above the first stop and below the last the colour stays.
QBrush downwards(ColourStops stops);

/// A round light whose strength falls evenly from `core` at `solid` of the radius to nothing at the rim.
void paintLight(QPainter& painter, QPointF centre, double radius, const QColor& core, double solid = 0.0);

/// The soft shadow that a card throws on the ground below it. Draw the card over it.
void paintShadow(QPainter& painter, const QRectF& card, double radius);

using Points = std::vector<QPointF>;

/// A soft line through the points, level at every one of them, as hills are.
QPainterPath hillLine(const Points& points);
/// The area below a soft line down to `foot`.
QPainterPath hills(const Points& points, double foot);
/// A soft line whose heights stand at equal steps over the width of the scene; level at both ends.
QPainterPath bendingLine(std::initializer_list<double> heights);

/// The heights of a line that runs from left to right. Left and right of its ends they are those of the ends.
class Profile {
public:
    explicit Profile(const QPainterPath& line);
    double operator()(double x) const;

private:
    QPolygonF m_corners;
};

struct BladeColours {
    QColor left, middle, right;
};
inline constexpr QRgb YoungLeft = 0x8CC562, YoungMiddle = 0x64A33D, YoungRight = 0x6DB044;
BladeColours youngRice(double alpha = 1.0);

/// A seedling of three blades; `foot` is the place where they meet.
void paintSeedling(QPainter& painter, QPointF foot, double height, const BladeColours& colours);
/// The seedlings along the foot of a landscape, growing taller towards the lower right corner.
void paintForeground(QPainter& painter, const BladeColours& colours);

/// A tapering stroke from `foot` to `tip`, bent towards `bend`.
QPainterPath blade(QPointF foot, QPointF bend, QPointF tip, double width);

struct Bird {
    QPointF centre;
    double span;
    double alpha = 1.0;
};
void paintBirds(QPainter& painter, std::initializer_list<Bird> birds, QRgb colour);

/// An even spread of numbers from 0 to 1, the same in every run.
class Scatter {
public:
    explicit Scatter(quint32 seed) : m_numbers(seed) {}
    double operator()() { return m_numbers.generateDouble(); }
    double between(double low, double high) { return low + (high - low) * (*this)(); }

private:
    QRandomGenerator m_numbers;
};

} // namespace qinghe
