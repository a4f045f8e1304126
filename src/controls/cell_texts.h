#pragma once

#include <QStringList>

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace qinghe {

/// The texts of a table, packed into a few pieces of memory: a text costs its characters (one byte each where all of
/// them are below U+0100, else two) and, up to 62 of them, one byte more; blank cells at the end of a row cost nothing.
/// The row that is being written lies open, so that writing cells row by row takes the time of writing them once.
///
/// It checks nothing: rows and columns count from 0 and must be in range. Cells that come anew are blank.
class CellTexts {
public:
    int rows() const { return static_cast<int>(m_rows.size()); }
    int cols() const { return m_cols; }
    /// Shrinking drops cells.
    void resize(int rows, int cols);
    void removeRow(int row);

    QString text(int row, int col) const;
    QStringList rowTexts(int row) const; ///< one for each column
    bool isEmpty(int row, int col) const;
    /// The first blank cell of a row from column `from` on; `behindLast` when all before that column are filled.
    int firstEmpty(int row, int from, int behindLast) const;
    void setText(int row, int col, const QString& text);

    /// How much memory the texts take, in bytes.
    std::size_t footprint() const;

private:
    static constexpr std::size_t PieceSize = 16 * 1024;

    /// A row as it is packed, cell after cell.
    class PackedRow {
    public:
        void clear();
        int cols() const { return m_cols; }
        /// Cells before `col` that were not written are blank.
        void append(int col, const QString& text);
        /// The texts up to the last one that is filled, with their end; empty for a blank row.
        const std::string& close();
        /// The same as it stands, with all cells written.
        const char* cells() const { return m_bytes.c_str(); }

    private:
        std::string m_bytes;
        std::size_t m_filled = 0; ///< bytes up to the end of the last filled cell
        int m_cols = 0;
    };

    char*& place(int row) { return m_rows[static_cast<std::size_t>(row)]; }
    void dropRow(int row);
    void cutRow(int row, int cols);
    void openRow(int row);
    void unpackOpenRow();
    QStringList unpacked(const char* packed) const;
    const char* packedTexts(int row) const;
    void closeRow();
    void storeRow(int row, const std::string& packed);
    char* room(std::size_t size);
    void packAnew();

    int m_cols = 0;
    std::vector<char*> m_rows; ///< where the packed texts of a row begin; none: the row is blank
    std::vector<std::unique_ptr<char[]>> m_pieces;
    char* m_free = nullptr;  ///< in the last piece
    std::size_t m_left = 0;  ///< from there on
    std::size_t m_taken = 0; ///< of all pieces
    std::size_t m_inUse = 0; ///< by rows as they are now
    int m_open = -1;         ///< the row that lies open, whose packed texts do not count
    /// Its texts; a blank row that is written from the left to the right is packed as it comes and has none.
    QStringList m_openTexts;
    PackedRow m_packing;
    bool m_isPacking = false;
};

} // namespace qinghe
