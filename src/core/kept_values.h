#pragma once

#include "core/grid_rows.h"
#include "store/stored_value.h"

#include <map>
#include <utility>

namespace qinghe {

/// The values of a list's records that are not the same again once their texts are written: a save writes them back as
/// they are where their cells still show them, so that what nobody touched is not refused and not converted. A day that
/// the disk has spoilt so costs itself and not the rows behind it. An ordinary book has none of them.
///
/// The rows of the grid say by RowData which record they were filled from, as far as it has such values.
class KeptValues {
public:
    void clear() { m_values.clear(); }
    /// Keeps what of the current record, shown in the current row from column 1 on, would not come back.
    void keep(MSFlexGrid& grid, Recordset& records, const std::vector<QStringView>& fields);

    /// The value that a cell still shows; none where its text is what is to be written.
    const StoredValue* behind(const MSFlexGrid& grid, int row, int column, const QString& text) const;

private:
    struct Kept {
        QString text; ///< that shows it
        StoredValue value;
    };
    std::map<std::pair<int, int>, Kept> m_values; ///< by the record's number and the column
    int m_lastRecord = 0; ///< numbers are never given twice: a row that was left from an older list has no record
};

} // namespace qinghe
