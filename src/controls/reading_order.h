#pragma once

#include "controls/placed.h"

#include <algorithm>
#include <tuple>
#include <vector>

namespace qinghe {

/// Sorts what stands for controls on one container as these are read by their places: rows from top to bottom, each
/// from left to right. What has its middle beside a row's first control stands in that row. `controlOf(item)` gives a
/// pointer to the control.
template<class Item, class ControlOf>
void sortAsRead(std::vector<Item>& items, ControlOf controlOf) {
    std::ranges::stable_sort(items, {}, [&](const Item& item) { // by name: never as they lie stacked
        const Placed* const control = controlOf(item);
        return std::tuple(control->Top(), control->Left(), control->widget()->objectName());
    });
    for (auto row = items.begin(); row != items.end();) {
        const double foot = controlOf(*row)->Top() + controlOf(*row)->Height();
        const auto next = std::find_if(std::next(row), items.end(), [&](const Item& item) {
            return controlOf(item)->Top() + controlOf(item)->Height() / 2 >= foot;
        });
        std::stable_sort(row, next, [&](const Item& one, const Item& other) {
            return controlOf(one)->Left() < controlOf(other)->Left();
        });
        row = next;
    }
}

/// The controls that lie on a container itself in reading order, also those that are hidden at present. The box over a
/// grid's cells comes behind its grid, wherever it lies.
std::vector<QWidget*> inReadingOrder(const QWidget& container);

} // namespace qinghe
