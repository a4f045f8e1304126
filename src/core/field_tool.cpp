#include "core/field_tool.h"

namespace qinghe {

bool FieldTarget::isCellOf(const FieldTarget& other) const {
    return box == other.box && grid == other.grid && row == other.row && col == other.col;
}

bool FieldTarget::isOpen() const {
    return box && box->Visible() && grid && grid->isEnabled() && grid->isVisible() && row < grid->Rows() &&
           col < grid->Cols();
}

QPointF placeBelow(const QWidget& control, double twips) {
    QPointF place(0, twips);
    for (const QWidget* widget = &control; widget; widget = widget->isWindow() ? nullptr : widget->parentWidget()) {
        const Placed* const placed = Placed::of(widget);
        place += QPointF(placed->Left(), placed->Top());
    }
    return place;
}

} // namespace qinghe
