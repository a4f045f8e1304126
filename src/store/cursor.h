#pragma once

#include <vector>

namespace qinghe {

/// Where a recordset stands among its rows, and which of them are deleted. A deleted row keeps its place until the set
/// moves on, since it is what the set stands on; so places are those of the rows as they were read, from 0 on, and the
/// end is the place behind the last.
class Cursor {
public:
    /// Stands on the first row, or at the end when there is none.
    explicit Cursor(int rows) : m_rows(rows) {}

    int row() const { return m_row; }
    bool atEnd() const { return m_row == m_rows; }
    /// On a row that is not deleted.
    bool onRow() const { return !atEnd() && !isDeleted(m_row); }
    /// The rows that are not deleted.
    int count() const { return m_rows - m_deletedCount; }

    void toFirst() { m_row = remainingFrom(0); }
    /// Not to be asked at the end.
    void toNext() { m_row = remainingFrom(m_row + 1); }
    /// To a row as they are counted without the deleted ones, from 1 on; to the end when there is none such.
    void toPosition(int position);

    /// Deletes the row where it stands.
    void deleteRow();
    /// Puts a row at the end and stands on it.
    void addRow();
    /// Forgets all rows.
    void clear();

private:
    bool isDeleted(int row) const;
    int remainingFrom(int row) const;

    int m_rows;
    int m_row = 0;
    std::vector<bool> m_deleted; ///< by row; used once one was deleted
    int m_deletedCount = 0;
};

} // namespace qinghe
