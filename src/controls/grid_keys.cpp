#include "controls/grid_keys.h"

#include <algorithm>

namespace qinghe {

namespace {

std::optional<GridCell> cellMeant(const QKeyEvent& key, GridCell from, GridCell last, int page) {
    const bool toEnds = key.modifiers() & Qt::ControlModifier;
    switch (key.key()) {
    case Qt::Key_Up:
        return GridCell{from.row - 1, from.col};
    case Qt::Key_Down:
        return GridCell{from.row + 1, from.col};
    case Qt::Key_Left:
        return GridCell{from.row, from.col - 1};
    case Qt::Key_Right:
        return GridCell{from.row, from.col + 1};
    case Qt::Key_PageUp:
        return GridCell{from.row - page, from.col};
    case Qt::Key_PageDown:
        return GridCell{from.row + page, from.col};
    case Qt::Key_Home:
        return GridCell{toEnds ? 1 : from.row, 1};
    case Qt::Key_End:
        return GridCell{toEnds ? last.row : from.row, last.col};
    default:
        return std::nullopt;
    }
}

} // namespace

std::optional<GridCell> cellAfterKey(const QKeyEvent& key, GridCell current, GridCell last, int page) {
    std::optional<GridCell> cell = cellMeant(key, current, last, page);
    if (cell)
        cell = {std::clamp(cell->row, 1, std::max(1, last.row)), std::clamp(cell->col, 1, std::max(1, last.col))};
    return cell;
}

} // namespace qinghe
