#pragma once

#include <QBrush>
#include <QColor>
#include <QFont>
#include <QRectF>

class QPainter;

/// Strokes that fall on whole device pixels at every scale. Lengths are the desktop's pixels (device-independent).
namespace qinghe {

/// The rectangle with all edges moved to the nearest device pixels.
QRectF onPixels(const QPainter& painter, const QRectF& rect);
/// The width of a thin line: one desktop pixel, in whole device pixels.
double hair(const QPainter& painter);

/// A filled rectangle with round corners and an edge that lies wholly inside it. A `width` of 1 is a hair.
void paintPanel(QPainter& painter, const QRectF& rect, double radius, const QBrush& fill, const QColor& edge,
                double width = 1);

/// The mark of what has the keyboard: a ring along the inside of a control that has no edge of its own to show it, dark
/// between two light lines, so that it is seen on light and on dark ground.
void paintKeyboardRing(QPainter& painter, const QRectF& rect);
/// The same as a line along the foot of words that reach to the edge of their control.
void paintKeyboardLine(QPainter& painter, const QRectF& rect);

/// One-pixel lines; the line fills the pixel that begins at `y` or `x`.
void paintRule(QPainter& painter, double left, double right, double y, const QColor& colour);
void paintUpright(QPainter& painter, double x, double top, double bottom, const QColor& colour);

/// The words of one line, set as a one-line text box sets them, so that both stand alike to the pixel. Words that do
/// not fit end in "…".
inline constexpr int RightSlack = 2; ///< what a text box leaves free behind words on the right
void paintLine(QPainter& painter, const QRect& room, Qt::Alignment alignment, const QString& words, const QFont& font,
               const QColor& colour);

} // namespace qinghe
