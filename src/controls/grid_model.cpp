#include "controls/grid_model.h"

namespace qinghe {

void GridModel::announce() {
    beginResetModel();
    m_shownRows = rows();
    m_shownCols = cols();
    endResetModel();
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
    const int row = index.row() + 1, col = index.column() + 1;
    if (role != Qt::DisplayRole || row >= rows() || col >= cols())
        return {};
    return cell(row, col);
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal || section + 1 >= cols())
        return {};
    return cell(0, section + 1);
}

} // namespace qinghe
