#include "store/pending_row.h"

#include <algorithm>
#include <utility>

namespace qinghe {

void PendingRow::set(int column, Value value) {
    m_asStored[static_cast<size_t>(column)].reset();
    m_values[static_cast<size_t>(column)] = std::move(value);
    m_edited = true;
}

void PendingRow::setStored(int column, const StoredValue& value, ColumnKind kind) {
    set(column, decoded(value, kind));
    StoredValue& kept = m_asStored[static_cast<size_t>(column)].emplace(value);
    if (!kept.bytes.isEmpty())
        kept.bytes.detach(); // they may lie with whoever gave them
}

void PendingRow::clear() {
    m_new = false;
    if (!std::exchange(m_edited, false))
        return;
    std::ranges::fill(m_values, std::nullopt);
    std::ranges::fill(m_asStored, std::nullopt);
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
    for (size_t column = 0; column < m_values.size(); ++column) {
        if (const auto& kept = m_asStored[column])
            m_stored.push_back(*kept);
        else
            m_stored.push_back(m_values[column] ? encoded(*m_values[column]) : StoredValue());
    }
    return m_stored;
}

} // namespace qinghe
