#include "controls/cell_texts.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <string>
#include <utility>

namespace qinghe {

namespace {

// A packed row is one head a cell with the characters behind it, and a head of 0 at its end. A head is a number, seven
// bits a byte, low ones first, the high bit set on all bytes but the last.
struct Head {
    std::size_t length; ///< in characters
    bool wide;          ///< two bytes a character

    std::size_t bytes() const { return wide ? length * sizeof(QChar) : length; }
};

void appendHead(std::string& packed, Head head) {
    std::size_t number = head.length * 2 + (head.wide ? 1 : 0) + 1;
    for (; number >= 0x80; number >>= 7)
        packed += static_cast<char>(0x80 | (number & 0x7F));
    packed += static_cast<char>(number);
}

/// Reads a head that is not the end and moves `at` to the characters.
Head takeHead(const char*& at) {
    std::size_t number = 0;
    for (unsigned shift = 0;; shift += 7) {
        const auto byte = static_cast<unsigned char>(*at++);
        number |= static_cast<std::size_t>(byte & 0x7F) << shift;
        if (byte < 0x80)
            break;
    }
    return {(number - 1) / 2, (number - 1) % 2 != 0};
}

void appendText(std::string& packed, const QString& text) {
    const auto* characters = reinterpret_cast<const char16_t*>(text.constData());
    const auto length = static_cast<std::size_t>(text.size());
    char16_t all = 0;
    for (std::size_t i = 0; i < length; ++i)
        all |= characters[i];
    const Head head{length, all >= 0x100};
    appendHead(packed, head);
    if (head.wide) {
        packed.append(reinterpret_cast<const char*>(characters), head.bytes());
        return;
    }
    const std::size_t begin = packed.size();
    packed.resize(begin + length);
    for (std::size_t i = 0; i < length; ++i)
        packed[begin + i] = static_cast<char>(characters[i]);
}

/// Takes one cell's text and moves `at` behind it.
QString takeText(const char*& at) {
    const Head head = takeHead(at);
    const char* characters = std::exchange(at, at + head.bytes());
    const auto length = static_cast<qsizetype>(head.length);
    if (!head.wide)
        return QString::fromLatin1(characters, length);
    QString text(length, Qt::Uninitialized);
    std::memcpy(text.data(), characters, head.bytes());
    return text;
}

/// The head of cell `col`, or the row's end where that comes first.
const char* cellAt(const char* row, int col) {
    for (; col > 0 && *row; --col) {
        const Head head = takeHead(row);
        row += head.bytes();
    }
    return row;
}

std::size_t packedSize(const char* row) {
    return row ? static_cast<std::size_t>(cellAt(row, std::numeric_limits<int>::max()) - row) + 1 : 0;
}

} // namespace

// ---- a row as it is packed

void CellTexts::PackedRow::clear() {
    m_bytes.clear();
    m_filled = 0;
    m_cols = 0;
}

void CellTexts::PackedRow::append(int col, const QString& text) {
    for (; m_cols < col; ++m_cols)
        appendHead(m_bytes, {0, false});
    ++m_cols;
    appendText(m_bytes, text);
    if (!text.isEmpty())
        m_filled = m_bytes.size();
}

const std::string& CellTexts::PackedRow::close() {
    m_bytes.resize(m_filled);
    if (m_filled > 0)
        m_bytes += '\0';
    return m_bytes;
}

// ---- all rows

void CellTexts::resize(int rows, int cols) {
    closeRow();
    for (int row = rows; row < this->rows(); ++row)
        dropRow(row);
    m_rows.resize(static_cast<std::size_t>(rows));
    for (int row = 0; cols < m_cols && row < rows; ++row)
        cutRow(row, cols);
    m_cols = cols;
    // The memory of a long list goes with it.
    if (m_rows.capacity() > 4 * m_rows.size() + 1024)
        m_rows.shrink_to_fit();
    if (m_taken > 2 * m_inUse + PieceSize)
        packAnew();
}

void CellTexts::removeRow(int row) {
    closeRow();
    dropRow(row);
    m_rows.erase(m_rows.begin() + row);
}

/// The packed texts of a row; nothing for a blank one.
const char* CellTexts::packedTexts(int row) const {
    return row == m_open ? m_packing.cells() : m_rows[static_cast<std::size_t>(row)];
}

QString CellTexts::text(int row, int col) const {
    if (row == m_open && !m_isPacking)
        return m_openTexts[col];
    const char* packed = packedTexts(row);
    const char* cell = packed ? cellAt(packed, col) : nullptr;
    return cell && *cell ? takeText(cell) : QString();
}

QStringList CellTexts::rowTexts(int row) const {
    return row == m_open && !m_isPacking ? m_openTexts : unpacked(packedTexts(row));
}

bool CellTexts::isEmpty(int row, int col) const {
    if (row == m_open && !m_isPacking)
        return m_openTexts[col].isEmpty();
    const char* packed = packedTexts(row);
    const char* cell = packed ? cellAt(packed, col) : nullptr;
    return !cell || !*cell || takeHead(cell).length == 0;
}

int CellTexts::firstEmpty(int row, int from, int behindLast) const {
    int col = from;
    if (row == m_open && !m_isPacking) {
        while (col < behindLast && !m_openTexts[col].isEmpty())
            ++col;
        return col;
    }
    const char* cell = packedTexts(row);
    if (!cell)
        return col;
    for (cell = cellAt(cell, col); col < behindLast && *cell; ++col) {
        const Head head = takeHead(cell);
        if (head.length == 0)
            break;
        cell += head.bytes();
    }
    return col;
}

void CellTexts::setText(int row, int col, const QString& text) {
    if (row != m_open)
        openRow(row);
    if (m_isPacking && col >= m_packing.cols())
        return m_packing.append(col, text);
    if (m_isPacking)
        unpackOpenRow();
    m_openTexts[col] = text;
}

std::size_t CellTexts::footprint() const {
    return m_taken + m_rows.capacity() * sizeof(char*);
}

void CellTexts::dropRow(int row) {
    m_inUse -= packedSize(std::exchange(place(row), nullptr));
}

void CellTexts::cutRow(int row, int cols) {
    char* packed = place(row);
    if (!packed)
        return;
    const auto kept = static_cast<std::size_t>(cellAt(packed, cols) - packed);
    m_inUse -= packedSize(packed) - (kept + 1);
    packed[kept] = '\0';
}

void CellTexts::openRow(int row) {
    closeRow();
    m_packing.clear();
    m_isPacking = !place(row);
    m_open = row;
    if (!m_isPacking)
        m_openTexts = unpacked(place(row));
}

void CellTexts::unpackOpenRow() {
    m_isPacking = false;
    m_openTexts = unpacked(m_packing.cells());
    m_packing.clear();
}

QStringList CellTexts::unpacked(const char* packed) const {
    QStringList texts(m_cols);
    for (auto text = texts.begin(); packed && *packed; ++text)
        *text = takeText(packed);
    return texts;
}

void CellTexts::closeRow() {
    if (m_open < 0)
        return;
    for (int col = 0; !m_isPacking && col < m_cols; ++col)
        m_packing.append(col, m_openTexts[col]);
    storeRow(m_open, m_packing.close());
    m_open = -1;
}

/// In the row's old place where it fits.
void CellTexts::storeRow(int row, const std::string& packed) {
    const std::size_t before = packedSize(place(row));
    m_inUse += packed.size() - before;
    if (packed.empty())
        place(row) = nullptr;
    else if (packed.size() > before)
        place(row) = room(packed.size());
    if (place(row))
        std::memcpy(place(row), packed.data(), packed.size());
    if (m_taken > 2 * m_inUse + PieceSize)
        packAnew();
}

char* CellTexts::room(std::size_t size) {
    if (m_left < size) {
        m_left = std::max(size, PieceSize);
        m_taken += m_left;
        m_pieces.push_back(std::make_unique_for_overwrite<char[]>(m_left));
        m_free = m_pieces.back().get();
    }
    m_left -= size;
    return std::exchange(m_free, m_free + size);
}

/// Rows that grew or went leave gaps behind; here they are closed.
void CellTexts::packAnew() {
    const auto old = std::exchange(m_pieces, {});
    m_left = m_taken = 0;
    for (char*& packed : m_rows) {
        if (!packed)
            continue;
        const std::size_t size = packedSize(packed);
        packed = static_cast<char*>(std::memcpy(room(size), packed, size));
    }
}

} // namespace qinghe
