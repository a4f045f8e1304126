#pragma once

#include "store/stored_value.h"

#include <optional>
#include <span>
#include <vector>

namespace qinghe {

/// What was set in a row of a recordset and is not stored yet: a new row, or changed fields of the current one. Values
/// are those that the columns hold; who sets them has converted them, or gives them as they lay in the file.
class PendingRow {
public:
    explicit PendingRow(int columns)
        : m_values(static_cast<size_t>(columns)), m_asStored(static_cast<size_t>(columns)) {}

    bool isNew() const { return m_new; }
    bool isEmpty() const { return !m_new && !m_edited; }
    void begin() { m_new = true; }
    void set(int column, Value value);
    /// The same of a value that is stored as it is, whatever its column may hold.
    void setStored(int column, const StoredValue& value, ColumnKind kind);
    void clear();

    /// What was set in a column.
    const std::optional<Value>& value(int column) const { return m_values[static_cast<size_t>(column)]; }
    /// The columns in which something was set.
    std::vector<int> columns() const;
    /// The values of all columns as they are stored; NULL where nothing was set. Good until it is asked again.
    std::span<const StoredValue> stored();

private:
    std::vector<std::optional<Value>> m_values;         ///< by column
    std::vector<std::optional<StoredValue>> m_asStored; ///< by column: those that were given as they are stored
    std::vector<StoredValue> m_stored;                  ///< kept for its room alone: a save asks once a row
    bool m_new = false;
    bool m_edited = false;
};

} // namespace qinghe
