#include "look/bar_painter.h"

#include "controls/ms_flex_grid.h"
#include "look/colours.h"
#include "look/drawing.h"
#include "look/fonts.h"
#include "look/grid_painter.h"

#include <QHeaderView>
#include <QPainter>
#include <QStyleOption>

#include <algorithm>

namespace qinghe {
namespace {

constexpr int ShortestThumb = 24;
constexpr QColor Track = colour::fromRgb(0xF3F8EE);

bool isUpright(const QStyleOptionSlider& option) {
    return option.orientation == Qt::Vertical;
}

int captionHeight(const QStyleOptionSlider& option, const QWidget* widget) {
    const MSFlexGrid* grid = gridOf(widget);
    return grid && isUpright(option) ? grid->horizontalHeader()->height() : 0;
}

/// The bar lies over the grid's edge and paints its part of it.
void paintBesideGrid(QPainter& painter, const QRect& bar, int captions, const QWidget& widget, const MSFlexGrid& grid) {
    const QRect head(bar.topLeft(), QSize(bar.width(), captions));
    fillGridPart(painter, head, widget, grid, colour::LeafPale);
    fillGridPart(painter, bar.adjusted(0, captions, 0, 0), widget, grid, Track);
    if (captions > 0)
        paintRule(painter, bar.left(), bar.right() + 1, head.bottom(), colour::CaptionBase);
    paintGridEdge(painter, grid.rect().translated(-widget.mapTo(&grid, QPoint())), grid.hasFocus());
}

double progressOf(const QStyleOptionProgressBar& option) {
    const double span = std::max(1, option.maximum - option.minimum);
    return std::clamp((option.progress - option.minimum) / span, 0.0, 1.0);
}

QRect scrollGroove(const QStyleOptionSlider& option, const QWidget* widget) {
    return option.rect.adjusted(0, captionHeight(option, widget), 0, 0);
}

QRect scrollThumb(const QStyleOptionSlider& option, const QWidget* widget) {
    const QRect groove = scrollGroove(option, widget);
    const int room = isUpright(option) ? groove.height() : groove.width();
    const qint64 range = qint64{option.maximum} - option.minimum;
    const qint64 share = range > 0 ? room * qint64{option.pageStep} / (range + option.pageStep) : room;
    const int length = static_cast<int>(std::clamp<qint64>(share, std::min(ShortestThumb, room), room));
    const int start = QStyle::sliderPositionFromValue(option.minimum, option.maximum, option.sliderPosition,
                                                      room - length, option.upsideDown);
    return isUpright(option) ? QRect(groove.left(), groove.top() + start, groove.width(), length)
                             : QRect(groove.left() + start, groove.top(), length, groove.height());
}

} // namespace

QRect scrollPart(const QStyleOptionSlider& option, QStyle::SubControl part, const QWidget* widget) {
    const QRect groove = scrollGroove(option, widget), thumb = scrollThumb(option, widget);
    switch (part) {
    case QStyle::SC_ScrollBarGroove:
        return groove;
    case QStyle::SC_ScrollBarSlider:
        return thumb;
    case QStyle::SC_ScrollBarSubPage:
        return isUpright(option) ? QRect(groove.topLeft(), QSize(groove.width(), thumb.top() - groove.top()))
                                 : QRect(groove.topLeft(), QSize(thumb.left() - groove.left(), groove.height()));
    case QStyle::SC_ScrollBarAddPage:
        return isUpright(option) ? QRect(thumb.bottomLeft() + QPoint(0, 1), groove.bottomRight())
                                 : QRect(thumb.topRight() + QPoint(1, 0), groove.bottomRight());
    default:
        return {};
    }
}

void paintScrollBar(const QStyleOptionSlider& option, QPainter& painter, const QWidget* widget) {
    if (const MSFlexGrid* grid = gridOf(widget))
        paintBesideGrid(painter, option.rect, captionHeight(option, widget), *widget, *grid);
    else
        painter.fillRect(option.rect, Track);
    if (option.maximum <= option.minimum)
        return;
    const bool held = option.state & QStyle::State_Sunken && option.activeSubControls & QStyle::SC_ScrollBarSlider;
    paintPanel(painter, scrollThumb(option, widget).adjusted(2, 2, -2, -2), 4, held ? colour::Ctl : colour::Thumb, {},
               0);
}

void paintProgress(const QStyleOptionProgressBar& option, QPainter& painter) {
    const QRectF groove = option.rect;
    paintPanel(painter, groove, 6, colour::Groove, colour::fromRgb(0xBCD0AE));
    QRectF bar = groove.adjusted(2, 2, -2, -2);
    bar.setWidth(bar.width() * progressOf(option));
    QLinearGradient leaf(bar.topLeft(), bar.bottomLeft());
    leaf.setColorAt(0, colour::BarFrom);
    leaf.setColorAt(1, colour::Leaf);
    painter.save();
    painter.setClipRect(bar, Qt::IntersectClip);
    paintPanel(painter, groove.adjusted(2, 2, -2, -2), 4, leaf, {}, 0);
    painter.restore();
    if (option.textVisible)
        paintLine(painter, option.rect, Qt::AlignHCenter, option.text, sans(type::Body), colour::Ink);
}

} // namespace qinghe
