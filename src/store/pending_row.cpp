#include "store/pending_row.h"

#include <algorithm>
#include <utility>

namespace qinghe {

void PendingRow::set(int column, const Value& value) {
    m_values[static_cast<size_t>(column)] = value;
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

std::vector<StoredValue> PendingRow::stored() const {
    std::vector<StoredValue> values;
    values.reserve(m_values.size());
    for (const std::optional<Value>& value : m_values)
        values.push_back(value ? encoded(*value) : StoredValue());
    return values;
}

} // namespace qinghe
