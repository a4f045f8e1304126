#pragma once

#include "controls/style_roles.h"

#include <QFont>

class QPainter;
class QPointF;

/// The program's type. Families are taken from short lists, the first that this desktop has; no line height is counted
/// on. Sizes are points of 96 to the inch, whatever the desktop says, because the places they must fit are twips.
namespace qinghe {

namespace type {
inline constexpr double Small = 9, Caption = 9.5, Body = 10, Message = 10.5, Long = 11, Heading = 12, Page = 14,
                        Product = 15;
}

/// The sans, for everything.
QFont sans(double points, bool bold = false);
/// The serif, for the desktop's figures; bold.
QFont figureFont();
/// The font of a control's text.
QFont fontFor(Role role);

/// How wide a figure is in that font, in pixels.
double figureWidth(const QString& text);

/// Draws a text in the figures' font at a baseline. Where the serif has no bold face, its strokes are thickened.
void drawFigure(QPainter& painter, const QPointF& baseline, const QString& text);

/// The distance of lines in running text, in pixels.
double linePitch(const QFont& font);

} // namespace qinghe
