#include "core/field_tool.h"

namespace qinghe {

bool FieldTarget::isCellOf(const FieldTarget& other) const {
    return box == other.box && grid == other.grid && row == other.row && col == other.col;
}

bool FieldTarget::isOpen() const {
    const TextBox* const over = box;
    const MSFlexGrid* const list = grid;
    return over && over->Visible() && list && list->isEnabled() && list->isVisible() && row < list->Rows() &&
           col < list->Cols();
}

void FieldTarget::fill(const QString& text) const {
    TextBox* const over = box;
    MSFlexGrid* const list = grid;
    if (!over || !list)
        return;
    over->setBoxText(text);
    list->setTextMatrix(row, col, over->Text());
}

void FieldTarget::takeKeyboard() const {
    TextBox* const over = box;
    MSFlexGrid* const list = grid;
    if (!over || !list)
        return;
    over->activateWindow();
    if (over->isEnabled())
        over->takeFocus();
    else
        list->takeFocus();
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
