#include "analysis/scroll_strip.h"

#include "look/colours.h"
#include "look/drawing.h"

#include <QPainter>
#include <QStyleOptionSlider>

namespace qinghe {

void ScrollStrip::paintEvent(QPaintEvent*) {
    constexpr QColor Groove = colour::fromRgb(0xF1F5EC);
    QStyleOptionSlider option;
    initStyleOption(&option);
    const QRect thumb = style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, this);
    QPainter painter(this);
    paintPanel(painter, rect(), height() / 2.0, Groove, {}, 0);
    const bool marked = isSliderDown() || parentWidget()->hasFocus();
    paintPanel(painter, thumb.adjusted(0, 1, 0, -1), height() / 2.0 - 1, marked ? colour::Ctl : colour::Thumb, {}, 0);
}

} // namespace qinghe
