#include "store/result_set.h"

#include <algorithm>
#include <bit>

namespace qinghe {

bool ResultSet::isNull(int row, int column) const {
    return m_cells[cellIndex(row, column)].storage == Storage::Null;
}

Value ResultSet::value(int row, int column) const {
    return decoded(stored(row, column), m_shape.columns[static_cast<size_t>(column)].kind);
}

QString ResultSet::text(int row, int column) const {
    return decodedText(stored(row, column), m_shape.columns[static_cast<size_t>(column)].kind);
}

bool ResultSet::holdsText(int row, int column) const {
    const Cell& cell = m_cells[cellIndex(row, column)];
    return cell.storage != Storage::Null && (cell.storage != Storage::Text || cell.length > 0);
}

std::span<const qint64> ResultSet::identities(int row) const {
    const auto index = static_cast<size_t>(row);
    if (!m_shape.writable())
        return {};
    if (!m_shape.distinct)
        return {&m_identities[index], 1};
    const size_t first = m_firstIdentity[index];
    const size_t end = row + 1 < m_rowCount ? m_firstIdentity[index + 1] : m_identities.size();
    return {&m_identities[first], end - first};
}

int ResultSet::rowOf(qint64 identity) const {
    const auto found = std::ranges::lower_bound(m_identities, identity); // they ascend: rows come as they were written
    return found != m_identities.end() && *found == identity ? static_cast<int>(found - m_identities.begin()) : -1;
}

void ResultSet::finishRow(qint64 identity) {
    if (m_shape.distinct)
        m_firstIdentity.push_back(m_identities.size());
    if (m_shape.writable())
        m_identities.push_back(identity);
    ++m_rowCount;
}

void ResultSet::finishDistinctRow(qint64 identity) {
    finishRow(identity);
    if (m_rowCount < 2 || !lastTwoRowsEqual())
        return;
    m_cells.drop(m_shape.columns.size());
    m_firstIdentity.pop_back();
    --m_rowCount;
}

void ResultSet::setCell(int row, int column, const StoredValue& value) {
    m_cells[cellIndex(row, column)] = packed(value);
}

void ResultSet::clear() {
    *this = ResultSet(m_shape);
}

size_t ResultSet::footprint() const {
    size_t bytes = m_cells.size() * sizeof(Cell) + m_identities.size() * sizeof(qint64);
    for (const std::string& piece : m_bytes)
        bytes += piece.capacity();
    return bytes;
}

size_t ResultSet::letValuesGo() {
    if (!isPlain())
        return 0;
    const size_t before = footprint();
    m_cells = {};
    m_bytes = {};
    m_identities.shrink_to_fit();
    return before - footprint();
}

ResultSet::Cell ResultSet::packed(const StoredValue& value) {
    switch (value.storage) {
    case Storage::Integer:
        return {value.storage, 0, static_cast<quint64>(value.integer)};
    case Storage::Real:
        return {value.storage, 0, std::bit_cast<quint64>(value.real)};
    case Storage::Text:
    case Storage::Blob:
        return {value.storage, static_cast<quint32>(value.bytes.size()), keep(value.bytes)};
    case Storage::Null:
        break;
    }
    return {Storage::Null, 0, 0};
}

quint64 ResultSet::keep(const QByteArray& bytes) {
    const auto size = static_cast<size_t>(bytes.size());
    if (m_bytes.empty() || m_bytes.back().capacity() - m_bytes.back().size() < size)
        m_bytes.emplace_back().reserve(std::max(size, BytesAPiece));
    std::string& piece = m_bytes.back();
    const quint64 place = (m_bytes.size() - 1) << 32 | piece.size();
    piece.append(bytes.constData(), size);
    return place;
}

StoredValue ResultSet::stored(int row, int column) const {
    const Cell& cell = m_cells[cellIndex(row, column)];
    switch (cell.storage) {
    case Storage::Integer:
        return {.storage = cell.storage, .integer = static_cast<qint64>(cell.payload)};
    case Storage::Real:
        return {.storage = cell.storage, .real = std::bit_cast<double>(cell.payload)};
    case Storage::Text:
    case Storage::Blob:
        return {.storage = cell.storage,
                .bytes = QByteArray::fromRawData(m_bytes[cell.payload >> 32].data() + (cell.payload & 0xFFFF'FFFF),
                                                 static_cast<qsizetype>(cell.length))};
    case Storage::Null:
        break;
    }
    return {};
}

size_t ResultSet::cellIndex(int row, int column) const {
    return static_cast<size_t>(row) * m_shape.columns.size() + static_cast<size_t>(column);
}

bool ResultSet::lastTwoRowsEqual() const {
    for (int column = 0; column < columnCount(); ++column) {
        const StoredValue last = stored(m_rowCount - 1, column);
        const StoredValue before = stored(m_rowCount - 2, column);
        if (last.storage != before.storage || last.integer != before.integer || last.real != before.real ||
            last.bytes != before.bytes)
            return false;
    }
    return true;
}

} // namespace qinghe
