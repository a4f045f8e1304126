#pragma once

#include <QFont>
#include <QRectF>

class QColor;
class QPainter;

namespace qinghe {

/// Text that runs over several lines, one and a half times the font's pixel size apart, broken as Chinese is: between
/// any two characters, but no line begins with a comma. CR LF, CR and LF begin a new line. A text longer than the room
/// ends in "…".
void paintRunning(QPainter& painter, const QRectF& room, const QString& text, const QFont& font, const QColor& colour,
                  Qt::Alignment vertical = Qt::AlignTop);

/// How high that text is in a room of this width.
double runningHeight(const QString& text, const QFont& font, double width);

} // namespace qinghe
