#pragma once

#include "platform/flex_grid.h"
#include "store/recordset.h"

namespace qinghe {

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

} // namespace qinghe
