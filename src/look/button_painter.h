#pragma once

class QPainter;
class QStyleOptionButton;
class QWidget;

namespace qinghe {

/// A command button with its icon and caption. The caption is plain text: "&" is shown. Hovering is not the style's
/// affair: the fill is the button's BackColor.
void paintButton(const QStyleOptionButton& option, QPainter& painter, const QWidget* widget);

/// An option or a tick with its caption.
void paintOption(const QStyleOptionButton& option, QPainter& painter);
void paintTick(const QStyleOptionButton& option, QPainter& painter);

} // namespace qinghe
