#include "core/field_tool.h"

namespace qinghe {

QPointF placeBelow(const QWidget& control, double twips) {
    QPointF place(0, twips);
    for (const QWidget* widget = &control; widget; widget = widget->isWindow() ? nullptr : widget->parentWidget()) {
        const Placed* const placed = Placed::of(widget);
        place += QPointF(placed->Left(), placed->Top());
    }
    return place;
}

} // namespace qinghe
