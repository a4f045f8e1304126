#pragma once

#include <QRect>
#include <QString>

class QPainter;
class QStyleOption;
class QWidget;

namespace qinghe {

class Frame;

/// Where the panel of a frame lies inside it. A page keeps clear of the page labels and of the window's right margin,
/// wherever its frame reaches; a strip keeps clear of its neighbours.
QRect panelOf(const Frame& frame);

/// Where the tag with the frame's title hangs. It ends 240 twips below the frame's upper edge, where controls begin.
QRect tagOf(const Frame& frame);

/// A frame by its role, its title as a tag on the upper edge. A group box that is not ours gets an inner
/// panel without a tag.
void paintFrame(const QStyleOption& option, QPainter& painter, const QWidget* widget);

} // namespace qinghe
