#include "controls/reading_order.h"

#include "controls/placed.h"

#include <algorithm>

namespace qinghe {

namespace {

bool floats(const QWidget* control) {
    return Placed::of(control)->role() == Role::CellEditor;
}

} // namespace

std::vector<QWidget*> inReadingOrder(const QWidget& container) {
    std::vector<QWidget*> controls;
    for (QObject* child : container.children())
        if (auto* control = qobject_cast<QWidget*>(child); control && !control->isWindow() && Placed::of(control))
            controls.push_back(control);
    std::ranges::sort(controls, {}, [](const QWidget* control) {
        return std::tuple(floats(control), control->y(), control->x(), control->objectName());
    });
    for (auto row = controls.begin(); row != controls.end();) {
        const auto isBelow = [foot = (*row)->geometry().bottom()](const QWidget* control) {
            return floats(control) || control->geometry().center().y() > foot;
        };
        const auto end = std::find_if(row + 1, controls.end(), isBelow);
        std::stable_sort(row, end, [](const QWidget* one, const QWidget* other) { return one->x() < other->x(); });
        row = end;
    }
    return controls;
}

} // namespace qinghe
