#pragma once

#include "support/names.h"

#include <optional>
#include <ostream>
#include <string_view>

namespace qinghe::testing {

/// One list in a grid of the main window: what its page is called there, and rows for its table.
struct GridList {
    const char* name;                              ///< in the names of tests
    Name<Label> label;                             ///< brings its page up
    std::optional<Name<OptionButton>> option = {}; ///< is clicked then
    Name<Frame> frame;
    Name<MSFlexGrid> grid;
    Name<TextBox> box; ///< over a cell
    Name<CommandButton> add, remove, save;
    QStringView captions; ///< of its columns, joined with "|"
    QStringView table;
    QStringView values;          ///< of the stored row n, as SQL
    QStringView firstRow;        ///< what the grid shows of the row 1
    int text;                    ///< a column of this kind
    int amount = 0, date = 0;    ///< of these; none when 0
    bool refusalMovesRow = true; ///< to the row with the gap
    bool enterPicksDate = true;  ///< Enter that comes from the row before to a date in the first column
};

inline bool operator==(const GridList& one, const GridList& other) {
    return std::string_view(one.name) == other.name;
}

inline void PrintTo(const GridList& list, std::ostream* out) {
    *out << list.name;
}

} // namespace qinghe::testing
