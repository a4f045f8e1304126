#pragma once

#include "core/kept_values.h"

#include <functional>

namespace qinghe {

// The way between the records of a table and the rows of a list. Which field a column shows stands in its entry, never
// in its place; fields that no column names are not shown and not written.

/// Fills the list from its current row on, one row a record, columns from 1 on with these fields. NULL leaves its cell
/// as it is; an empty text goes into the row that `rowForEmptyText()` tells, or nowhere without one. What a save has to
/// write back as it is goes into `kept`, whose values of before are gone. Throws RuntimeError: NoSuchField for a field
/// that the records do not have.
void fillList(MSFlexGrid& grid, Recordset& records, const std::vector<QStringView>& fields, KeptValues& kept,
              const std::function<int()>& rowForEmptyText);

/// Whether the list shows these records, in their order and nothing else; blank rows at its end do not count. Walks
/// them from the current one on, a fresh set from its first.
bool showsRecords(const MSFlexGrid& grid, Recordset& records, const std::vector<QStringView>& fields);

/// Adds rows of a list to its records. Grid, records and values outlive it.
class RowWriter {
public:
    /// Throws RuntimeError: NoSuchField.
    RowWriter(const MSFlexGrid& grid, Recordset& records, const std::vector<QStringView>& fields,
              const KeptValues& kept);

    /// Adds a record of a row's texts and of the values kept behind them; empty cells leave their fields NULL. Throws
    /// RuntimeError (TypeMismatch) for what a field cannot hold, and what the store throws.
    void add(int row);
    /// The same with its number in 区别.
    void add(int row, int number);

private:
    void begin(int row);

    const MSFlexGrid& m_grid;
    Recordset& m_records;
    const KeptValues& m_kept;
    std::vector<Field> m_fields;   ///< of the columns from 1 on
    std::optional<Field> m_number; ///< looked for once, where rows are numbered
};

} // namespace qinghe
