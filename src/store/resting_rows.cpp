#include "store/resting_rows.h"

#include <algorithm>
#include <utility>

namespace qinghe {

namespace {

constexpr int RowsReadAgain = 256; ///< at once, so that walks stay short of a query a row

} // namespace

RestingRows::RestingRows(Store& store, std::shared_ptr<ResultSet> rows)
    : m_store(store), m_generation(store.generation()), m_rows(std::move(rows)) {}

std::optional<StoredRow> RestingRows::withValues(int row) {
    if (m_rows->hasValues(row))
        return StoredRow{m_rows.get(), row};
    const qint64 identity = identities(row).front();
    int found = m_again ? m_again->rowOf(identity) : -1;
    if (found < 0 || !m_again->hasValues(found)) {
        readAgain(row);
        found = m_again->rowOf(identity);
    }
    return found < 0 ? std::nullopt : std::optional(StoredRow{m_again.get(), found});
}

void RestingRows::readAgain(int row) {
    requireCurrent();
    const int last = std::min(row + RowsReadAgain, count()) - 1;
    m_again = m_store.fetchAgain(shape(), identities(row).front(), identities(last).front());
}

void RestingRows::add(qint64 identity, std::span<const StoredValue> values) {
    if (!m_rows->isPlain())
        std::ranges::for_each(values, [this](const StoredValue& value) { m_rows->appendCell(value); });
    m_rows->finishRow(identity);
}

void RestingRows::change(int row, std::span<const int> columns, std::span<const StoredValue> values) {
    m_again.reset();
    if (!m_rows->hasValues(row))
        return;
    for (size_t i = 0; i < columns.size(); ++i)
        m_rows->setCell(row, columns[i], values[i]);
}

void RestingRows::clear() {
    m_rows->clear();
}

} // namespace qinghe
