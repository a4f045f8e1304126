#pragma once

#include <QRect>
#include <QStyle>

class QPainter;
class QStyleOptionProgressBar;
class QStyleOptionSlider;
class QWidget;

namespace qinghe {

inline constexpr int ScrollBarWidth = 12;

void paintScrollBar(const QStyleOptionSlider& option, QPainter& painter, const QWidget* widget);
/// Where a part of a scroll bar lies. There are no step buttons; the bar of a grid begins below the captions.
QRect scrollPart(const QStyleOptionSlider& option, QStyle::SubControl part, const QWidget* widget);

void paintProgress(const QStyleOptionProgressBar& option, QPainter& painter);

} // namespace qinghe
