#include "store/cursor.h"

#include <cstddef>

namespace qinghe {

bool Cursor::isDeleted(int row) const {
    return m_deletedCount > 0 && m_deleted[static_cast<size_t>(row)];
}

/// The first row from `row` on that is not deleted, or the end.
int Cursor::remainingFrom(int row) const {
    while (row < m_rows && isDeleted(row))
        ++row;
    return row;
}

void Cursor::toPosition(int position) {
    if (position < 1 || position > count()) {
        m_row = m_rows;
    } else if (m_deletedCount == 0) {
        m_row = position - 1;
    } else {
        toFirst();
        for (int i = 1; i < position; ++i)
            toNext();
    }
}

void Cursor::deleteRow() {
    m_deleted.resize(static_cast<size_t>(m_rows));
    m_deleted[static_cast<size_t>(m_row)] = true;
    ++m_deletedCount;
}

void Cursor::addRow() {
    m_row = m_rows++;
    if (m_deletedCount > 0)
        m_deleted.push_back(false);
}

void Cursor::clear() {
    *this = Cursor(0);
}

} // namespace qinghe
