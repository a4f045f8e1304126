#include "controls/tab_order.h"

#include "controls/buttons.h"
#include "controls/cell_editor.h"
#include "controls/label.h"
#include "controls/reading_order.h"

#include <algorithm>
#include <iterator>

namespace qinghe {

namespace {

bool isStop(const QWidget& control) {
    // Of a row of labels one at a time can be come to.
    const auto* label = qobject_cast<const Label*>(&control);
    return control.focusPolicy() != Qt::NoFocus || (label && label->isReachable());
}

/// A control of a container that the keyboard can come to, or comes to something in.
struct Part {
    const Placed* control;
    std::vector<QWidget*> stops;
};

/// The box over a grid of this container, or nullptr.
CellEditor* boxOver(const QWidget& grid) {
    for (QObject* child : grid.parentWidget()->children())
        if (auto* box = qobject_cast<CellEditor*>(child); box && &box->grid() == &grid)
            return box;
    return nullptr;
}

bool isThere(const QWidget& stop, const QWidget& window) {
    return stop.isEnabled() && stop.isVisibleTo(&window);
}

/// Of options in one container the one in force, else the first.
bool isInForce(const OptionButton& option, const QWidget& window, const std::vector<QWidget*>& stops) {
    const OptionButton* meant = nullptr;
    for (QWidget* stop : stops) {
        const auto* other = qobject_cast<const OptionButton*>(stop);
        if (other && other->parentWidget() == option.parentWidget() && isThere(*other, window) &&
            (!meant || other->Value()))
            meant = other;
    }
    return meant == &option;
}

bool canTakeKeyboard(const QWidget& stop, const QWidget& window, const std::vector<QWidget*>& stops) {
    if (!isThere(stop, window))
        return false;
    const auto* option = qobject_cast<const OptionButton*>(&stop);
    return option ? isInForce(*option, window, stops) : (stop.focusPolicy() & Qt::TabFocus) != 0;
}

} // namespace

std::vector<QWidget*> tabStopsIn(const QWidget& container, const std::vector<const QWidget*>& without) {
    std::vector<Part> parts;
    for (QObject* child : container.children()) {
        auto* widget = qobject_cast<QWidget*>(child);
        const Placed* const control = widget && !widget->isWindow() ? Placed::of(widget) : nullptr;
        if (!control || qobject_cast<CellEditor*>(widget) || std::ranges::find(without, widget) != without.end())
            continue;
        Part part{control, {}};
        if (isStop(*widget))
            part.stops.push_back(widget);
        if (CellEditor* const box = boxOver(*widget))
            part.stops.push_back(box);
        std::ranges::copy(tabStopsIn(*widget, without), std::back_inserter(part.stops));
        if (!part.stops.empty())
            parts.push_back(std::move(part));
    }
    sortAsRead(parts, [](const Part& part) { return part.control; });
    std::vector<QWidget*> stops;
    for (const Part& part : parts)
        stops.insert(stops.end(), part.stops.begin(), part.stops.end());
    return stops;
}

bool goToNextStop(QWidget& window, const std::vector<QWidget*>& stops, bool next) {
    const auto here = std::ranges::find(stops, window.focusWidget());
    // From none of them: before the first, or behind the last.
    std::vector<QWidget*> ahead(here == stops.end() ? stops.begin() : std::next(here), stops.end());
    ahead.insert(ahead.end(), stops.begin(), here);
    if (!next)
        std::ranges::reverse(ahead);
    const auto found =
        std::ranges::find_if(ahead, [&](const QWidget* stop) { return canTakeKeyboard(*stop, window, stops); });
    if (found == ahead.end())
        return false;
    (*found)->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

} // namespace qinghe
