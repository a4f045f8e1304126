#pragma once

#include "controls/ms_flex_grid.h"
#include "store/recordset.h"

#include <cmath>
#include <optional>
#include <span>
#include <vector>

namespace qinghe {

// Records as the rows of a grid: what every list of the main window does, whatever its scheme.

inline constexpr double MarkerWidth = 300; ///< of column 0, twips

/// A column of a list, from column 1 on.
struct ListColumn {
    QStringView caption;
    QStringView field;        ///< of the records that it shows
    QStringView savedTo = {}; ///< the field that a save writes, where that is another one
};

/// The fields that columns show, and those to which a save writes them.
inline std::vector<QStringView> shownFields(const auto& columns) {
    std::vector<QStringView> fields;
    for (const ListColumn& column : columns)
        fields.push_back(column.field);
    return fields;
}
inline std::vector<QStringView> savedFields(const auto& columns) {
    std::vector<QStringView> fields;
    for (const ListColumn& column : columns)
        fields.push_back(column.savedTo.isEmpty() ? column.field : column.savedTo);
    return fields;
}

/// So many columns behind the marker column, which share the grid's width less `unshared` twips in whole twips.
inline void layEvenColumns(MSFlexGrid& grid, int count, double unshared = 400) {
    grid.setCols(count + 1);
    grid.setColWidth(0, MarkerWidth);
    for (int column = 1; column <= count; ++column)
        grid.setColWidth(column, std::nearbyint((grid.Width() - unshared) / count));
}

/// The same with their captions.
inline void layEvenColumns(MSFlexGrid& grid, std::span<const ListColumn> columns, double unshared = 400) {
    layEvenColumns(grid, static_cast<int>(columns.size()), unshared);
    for (int column = 1; column < grid.Cols(); ++column)
        grid.setTextMatrix(0, column, columns[static_cast<std::size_t>(column - 1)].caption.toString());
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

/// It stands for no record from then on.
inline void blankRow(MSFlexGrid& grid, int row) {
    grid.setRowData(row, 0);
    for (int column = 1; column < grid.Cols(); ++column)
        grid.setTextMatrix(row, column, {});
}

inline void blankRows(MSFlexGrid& grid) {
    for (int row = 1; row < grid.Rows(); ++row)
        blankRow(grid, row);
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

/// Deletes every record of a set.
inline void emptyTable(Recordset& records) {
    if (records.recordCount() == 0)
        return;
    for (records.moveFirst(); !records.eof(); records.moveNext())
        records.deleteCurrent();
}

/// Deletes the record at a 1-based place, and tells whether there was one: a place behind the last record has none,
/// which is harmless.
inline bool deleteAt(Recordset& records, int position) {
    if (position > records.recordCount())
        return false;
    records.setAbsolutePosition(position);
    records.deleteCurrent();
    records.update();
    return true;
}

} // namespace qinghe
