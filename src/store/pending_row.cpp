#include "store/pending_row.h"

#include <algorithm>
#include <utility>

namespace qinghe {

void PendingRow::set(int column, Value value) {
    m_values[static_cast<size_t>(column)] = std::move(value);
    m_edited = true;
}

void PendingRow::clear() {
    m_new = false;
    if (std::exchange(m_edited, false))
        std::ranges::fill(m_values, std::nullopt);
}

std::vector<int> PendingRow::columns() const {
    std::vector<int> columns;
    for (int column = 0; column < static_cast<int>(m_values.size()); ++column) {
        if (value(column))
            columns.push_back(column);
    }
    return columns;
}

std::span<const StoredValue> PendingRow::stored() {
    m_stored.clear();
    for (const std::optional<Value>& value : m_values)
        m_stored.push_back(value ? encoded(*value) : StoredValue());
    return m_stored;
}

} // namespace qinghe
