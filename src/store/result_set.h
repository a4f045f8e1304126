#pragma once

#include "store/column.h"
#include "store/pieces.h"
#include "store/stored_value.h"

#include <span>
#include <string>
#include <vector>

namespace qinghe {

/// What the rows of a result are.
struct ResultShape {
    TableColumns columns;
    QString table;             ///< that the rows can be written to; empty: read only
    std::vector<int> ordinals; ///< of the columns in that table
    bool distinct = false;     ///< a row may stand for several stored rows

    bool writable() const { return !table.isEmpty(); }
};

/// The rows of one query: values, and the identities of the stored rows behind them. It knows nothing of the file that
/// it came from. A cell takes 16 bytes, and texts and blobs of all rows lie in a few pieces of memory: next to a value
/// a cell that takes a third of the memory (of 100,000 rows 23 MB, not 68) and half the time to be read. In pieces,
/// since one row of cells that grows by moving makes opening a list of 32,767 rows a tenth slower.
///
/// Rows that can be told by their identity may stand without values: those that were finished without cells, and all of
/// them once the values were let go.
class ResultSet {
public:
    explicit ResultSet(ResultShape shape) : m_shape(std::move(shape)) {}

    const ResultShape& shape() const { return m_shape; }
    int columnCount() const { return static_cast<int>(m_shape.columns.size()); }
    int rowCount() const { return m_rowCount; }

    // Rows and columns count from 0 and must be in range, and the row must have its values.
    bool hasValues(int row) const { return cellIndex(row + 1, 0) <= m_cells.size(); }
    bool isNull(int row, int column) const;
    Value value(int row, int column) const;
    QString text(int row, int column) const;
    /// As it lies in the file; a text or a blob is good as long as the row has its values.
    StoredValue stored(int row, int column) const;
    /// Whether the cell is neither NULL nor an empty text.
    bool holdsText(int row, int column) const;
    /// The stored rows behind a row; none in a set that is read only.
    std::span<const qint64> identities(int row) const;
    /// The row of an identity in a plain set, -1 when there is none.
    int rowOf(qint64 identity) const;

    /// A row is appended cell by cell, then finished; behind a row without cells all others are to have none.
    void appendCell(const StoredValue& value) { m_cells.push_back(packed(value)); }
    void finishRow(qint64 identity);
    /// As finishRow, but a row equal to the one before it is only put behind that one.
    void finishDistinctRow(qint64 identity);
    void setCell(int row, int column, const StoredValue& value);
    /// Forgets all rows.
    void clear();

    /// About how much memory the set takes, in bytes.
    size_t footprint() const;
    /// Whether a row is one stored row, whose values can be read again by its identity.
    bool isPlain() const { return m_shape.writable() && !m_shape.distinct; }
    /// Lets the values of a plain set go and gives their size in bytes; others stay as they are.
    size_t letValuesGo();

private:
    struct Cell {
        Storage storage;
        quint32 length;  ///< of a text or a blob
        quint64 payload; ///< the number's bits, or where the bytes begin: a piece, and a place there in the low half
    };
    static_assert(sizeof(Cell) == 16);

    Cell packed(const StoredValue& value);
    quint64 keep(const QByteArray& bytes);
    size_t cellIndex(int row, int column) const;
    bool lastTwoRowsEqual() const;

    ResultShape m_shape;
    int m_rowCount = 0;
    static constexpr size_t CellsAPiece = 4096;
    static constexpr size_t BytesAPiece = 64 * 1024;

    Pieces<Cell, CellsAPiece> m_cells;
    std::vector<std::string> m_bytes; ///< each text or blob lies in one of them
    std::vector<qint64> m_identities;
    std::vector<size_t> m_firstIdentity; ///< by row; used when rows may stand for several
};

} // namespace qinghe
