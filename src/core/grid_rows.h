#pragma once

#include "controls/ms_flex_grid.h"
#include "core/shared.h"
#include "store/recordset.h"

#include <cmath>
#include <optional>
#include <vector>

namespace qinghe {

// What every list of the main window does, whatever its scheme.

inline constexpr double MarkerWidth = 300; ///< of column 0, twips

/// So many columns behind the marker column, which share the grid's width less `unshared` twips in whole twips.
inline void layEvenColumns(MSFlexGrid& grid, int count, double unshared = 400) {
    grid.setCols(count + 1);
    grid.setColWidth(0, MarkerWidth);
    for (int column = 1; column <= count; ++column)
        grid.setColWidth(column, std::nearbyint((grid.Width() - unshared) / count));
}

/// Two rows, the first one current; what it shows stays.
inline void startRows(MSFlexGrid& grid) {
    grid.setRows(2);
    grid.setRow(1);
}

inline bool isRowBlank(const MSFlexGrid& grid, int row) {
    for (int column = 1; column < grid.Cols(); ++column)
        if (!grid.isEmpty(row, column))
            return false;
    return true;
}

inline void blankRow(MSFlexGrid& grid, int row) {
    for (int column = 1; column < grid.Cols(); ++column)
        grid.setTextMatrix(row, column, {});
}

inline void blankRows(MSFlexGrid& grid) {
    for (int row = 1; row < grid.Rows(); ++row)
        blankRow(grid, row);
}

/// The current row of the loan grid, which other lists borrow for their empty texts.
inline int loanRow(const Shared& shared) {
    return shared.editors.at(QStringLiteral("ms1")).grid->Row();
}

/// Puts the texts of a row into the fields of the current record: column 1 into the first one, and so on; empty cells
/// leave theirs as they are.
inline void writeCells(const MSFlexGrid& grid, int row, Recordset& records) {
    const QStringList texts = grid.rowTexts(row);
    for (int column = 1; column < grid.Cols(); ++column)
        if (!texts[column].isEmpty())
            records.field(column - 1).setValue(texts[column]);
}

/// Deletes every record of a set.
inline void emptyTable(Recordset& records) {
    if (records.recordCount() == 0)
        return;
    for (records.moveFirst(); !records.eof(); records.moveNext())
        records.deleteCurrent();
}

/// Deletes the record at a 1-based place; a place behind the last record has none, which is harmless.
inline void deleteAt(Recordset& records, int position) {
    if (position > records.recordCount())
        return;
    records.setAbsolutePosition(position);
    records.deleteCurrent();
    records.update();
}

/// One grid row a record: the first into the current row, each other into a row of its own behind it. `fillRow()` puts
/// the current record into the current row.
template<class FillRow>
void fillRows(MSFlexGrid& grid, Recordset& records, FillRow fillRow) {
    while (!records.eof()) {
        fillRow();
        records.moveNext();
        if (records.eof())
            break;
        grid.setRows(grid.Rows() + 1);
        grid.setRow(grid.Row() + 1);
    }
}

/// The same with the first `fields` fields as the cells from column 1 on. NULL leaves its cell as it is, an empty text
/// goes into the row that `rowForEmptyText()` tells.
template<class RowForEmptyText>
void fillTexts(MSFlexGrid& grid, Recordset& records, int fields, RowForEmptyText rowForEmptyText) {
    std::vector<std::optional<QString>> texts(static_cast<std::size_t>(fields));
    fillRows(grid, records, [&] {
        records.readTexts(texts);
        for (int column = 1; column <= fields; ++column)
            if (const auto& text = texts[static_cast<std::size_t>(column - 1)])
                grid.setTextMatrix(text->isEmpty() ? rowForEmptyText() : grid.Row(), column, *text);
    });
}

} // namespace qinghe
