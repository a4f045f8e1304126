#pragma once

#include "controls/style_roles.h"

#include <QColor>
#include <QRectF>

class QPainter;

namespace qinghe {

/// Draws a line icon in the square that fits into `room`, centred. Glyph::AppIcon comes in its own colours. Drawn on a
/// grid of 24; at 14 to 24 px it is sharp.
void paintGlyph(QPainter& painter, Glyph glyph, const QRectF& room, const QColor& colour);

/// A disc filled with `ground` that bears an icon of half its width.
void paintDisc(QPainter& painter, Glyph glyph, const QRectF& room, const QColor& colour, const QColor& ground);

} // namespace qinghe
