#include "controls/grid_model.h"

#include "runtime/runtime_error.h"

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

void requireIndex(int index, int count, QStringView what) {
    if (index < 0 || index >= count)
        throw RuntimeError(RuntimeError::SubscriptOutOfRange,
                           u"表格里没有第 %1 %2（共 %3 %2）。"_s.arg(index).arg(what).arg(count));
}

constexpr QStringView RowWord = u"行", ColWord = u"列";

} // namespace

void GridModel::checkRow(int row) const {
    requireIndex(row, rows(), RowWord);
}

void GridModel::checkCol(int col) const {
    requireIndex(col, cols(), ColWord);
}

void GridModel::checkCell(int row, int col) const {
    checkRow(row);
    checkCol(col);
}

void GridModel::resize(int rows, int cols) {
    if (rows < 1)
        requireIndex(rows, 0, RowWord);
    if (cols < 1)
        requireIndex(cols, 0, ColWord);
    m_texts.resize(rows, cols);
    m_rowData.erase(m_rowData.lower_bound(rows), m_rowData.end());
}

void GridModel::removeRow(int row) {
    checkRow(row);
    if (row == 0 || rows() <= 2)
        throw RuntimeError(RuntimeError::RowNotRemovable, u"表格的最后一行不能移除。"_s);
    m_texts.removeRow(row);
    std::map<int, int> moved;
    for (const auto& [at, number] : m_rowData)
        if (at != row)
            moved.emplace(at - (at > row), number);
    m_rowData = std::move(moved);
}

QString GridModel::cell(int row, int col) const {
    checkCell(row, col);
    return m_texts.text(row, col);
}

QStringList GridModel::rowTexts(int row) const {
    checkRow(row);
    return m_texts.rowTexts(row);
}

bool GridModel::isEmpty(int row, int col) const {
    checkCell(row, col);
    return m_texts.isEmpty(row, col);
}

int GridModel::firstEmpty(int row, int from, int behindLast) const {
    checkCell(row, from);
    checkCol(behindLast - 1);
    return m_texts.firstEmpty(row, from, behindLast);
}

void GridModel::setCell(int row, int col, const QString& text) {
    checkCell(row, col);
    m_texts.setText(row, col, text);
}

int GridModel::rowData(int row) const {
    checkRow(row);
    const auto known = m_rowData.find(row);
    return known == m_rowData.end() ? 0 : known->second;
}

void GridModel::setRowData(int row, int number) {
    checkRow(row);
    if (number != 0)
        m_rowData[row] = number;
    else
        m_rowData.erase(row);
}

void GridModel::announce() {
    beginResetModel();
    m_shownRows = rows();
    m_shownCols = cols();
    endResetModel();
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
    const int row = index.row() + 1, col = index.column() + 1;
    // The view may ask for cells that have gone since it was told.
    if (role != Qt::DisplayRole || row >= rows() || col >= cols())
        return {};
    return m_texts.text(row, col);
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal || section + 1 >= cols())
        return {};
    return m_texts.text(0, section + 1);
}

} // namespace qinghe
