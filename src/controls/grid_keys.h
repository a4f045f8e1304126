#pragma once

#include <QKeyEvent>

#include <optional>

namespace qinghe {

struct GridCell {
    int row, col;
};

/// Where a key leads from the current cell: arrows, Page keys (`page` rows at a time), Home and End, with Ctrl to the
/// list's first and last row. The data cells end with `last`; no key leads out of them. Nothing for a key that is none
/// of the grid's.
std::optional<GridCell> cellAfterKey(const QKeyEvent& key, GridCell current, GridCell last, int page);

} // namespace qinghe
