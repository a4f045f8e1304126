#pragma once

#include <ostream>
#include <string_view>

namespace qinghe::testing {

/// One list in a grid of the main window: what its page is called there, and rows for its table.
struct GridList {
    const char* name;       ///< in the names of tests
    const char16_t* label;  ///< brings its page up
    const char16_t* option; ///< is clicked then; none when empty
    const char16_t* frame;
    int number;      ///< of grid and box: 2 is "ms2" with "tx2"
    int firstButton; ///< 增加; the next numbers are 删除 and 保存
    const char16_t* table;
    const char16_t* values;      ///< of the stored row n, as SQL
    const char16_t* firstRow;    ///< what the grid shows of the row 1
    int text;                    ///< a column of this kind
    int amount = 0, date = 0;    ///< of these; none when 0
    bool refusalMovesRow = true; ///< to the row with the gap
};

inline bool operator==(const GridList& one, const GridList& other) {
    return std::string_view(one.name) == other.name;
}

inline void PrintTo(const GridList& list, std::ostream* out) {
    *out << list.name;
}

} // namespace qinghe::testing
