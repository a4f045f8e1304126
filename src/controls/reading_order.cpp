#include "controls/reading_order.h"

#include "controls/cell_editor.h"

#include <algorithm>

namespace qinghe {

namespace {

void sortAsRead(std::vector<Placed*>& controls) {
    std::ranges::stable_sort(controls, {}, [](const Placed* control) {
        return std::tuple(control->Top(), control->Left(), control->widget()->objectName()); // not as they lie stacked
    });
    for (auto row = controls.begin(); row != controls.end();) {
        const double foot = (*row)->Top() + (*row)->Height();
        const auto next = std::find_if(std::next(row), controls.end(), [foot](const Placed* control) {
            return control->Top() + control->Height() / 2 >= foot;
        });
        std::ranges::stable_sort(row, next, {}, &Placed::Left);
        row = next;
    }
}

} // namespace

std::vector<QWidget*> inReadingOrder(const QWidget& container) {
    std::vector<Placed*> controls;
    std::vector<CellEditor*> boxes;
    for (QObject* child : container.children()) {
        auto* widget = qobject_cast<QWidget*>(child);
        if (!widget || widget->isWindow())
            continue;
        if (auto* box = qobject_cast<CellEditor*>(widget))
            boxes.push_back(box);
        else if (Placed* placed = Placed::of(widget))
            controls.push_back(placed);
    }
    sortAsRead(controls);
    std::vector<QWidget*> read;
    for (const Placed* control : controls) {
        read.push_back(control->widget());
        for (CellEditor* box : boxes)
            if (&box->grid() == control->widget())
                read.push_back(box);
    }
    return read;
}

} // namespace qinghe
