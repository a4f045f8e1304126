#include "controls/reading_order.h"

#include "controls/cell_editor.h"

namespace qinghe {

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
    sortAsRead(controls, [](const Placed* control) { return control; });
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
