#pragma once

#include "controls/grid_keys.h"
#include "controls/ms_flex_grid.h"

#include <vector>

namespace qinghe {

/// The data cells of a list that hold these words, row by row; capitals and small letters are the same. None for no
/// words.
std::vector<GridCell> cellsThatHold(const MSFlexGrid& grid, const QString& words);

} // namespace qinghe
