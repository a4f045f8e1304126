#include "platform/flex_grid_model.h"

#include <algorithm>
#include <utility>

namespace qinghe {

void FlexGridModel::resize(int rows, int cols) {
    if (cols == m_cols) {
        m_cells.resize(static_cast<std::size_t>(rows) * static_cast<std::size_t>(cols));
    } else {
        std::vector<QString> cells(static_cast<std::size_t>(rows) * static_cast<std::size_t>(cols));
        const int keptCols = std::min(cols, m_cols);
        for (int row = 0; row < std::min(rows, m_rows); ++row)
            for (int col = 0; col < keptCols; ++col)
                cells[static_cast<std::size_t>(row) * static_cast<std::size_t>(cols) + static_cast<std::size_t>(col)] =
                    std::move(m_cells[at(row, col)]);
        m_cells = std::move(cells);
    }
    m_rows = rows;
    m_cols = cols;
    // The memory of a long list goes with it.
    if (m_cells.capacity() > 4 * m_cells.size() + 1024)
        m_cells.shrink_to_fit();
}

void FlexGridModel::removeRow(int row) {
    const auto first = m_cells.begin() + static_cast<std::ptrdiff_t>(at(row, 0));
    m_cells.erase(first, first + m_cols);
    --m_rows;
}

void FlexGridModel::announce() {
    beginResetModel();
    m_shownRows = m_rows;
    m_shownCols = m_cols;
    endResetModel();
}

QVariant FlexGridModel::data(const QModelIndex& index, int role) const {
    const int row = index.row() + 1, col = index.column() + 1;
    if (role != Qt::DisplayRole || row >= m_rows || col >= m_cols)
        return {};
    return cell(row, col);
}

QVariant FlexGridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal || section + 1 >= m_cols)
        return {};
    return cell(0, section + 1);
}

} // namespace qinghe
