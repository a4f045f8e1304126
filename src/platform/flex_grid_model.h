#pragma once

#include <QAbstractTableModel>
#include <QString>

#include <vector>

namespace qinghe {

/// The texts of a grid, captions (row 0) and marker column (column 0) included; the view is shown the data cells as its
/// rows and columns and the captions as its headers.
class FlexGridModel : public QAbstractTableModel {
    Q_OBJECT

public:
    explicit FlexGridModel(QObject* parent) : QAbstractTableModel(parent) { resize(2, 2); }

    int rows() const { return m_rows; }
    int cols() const { return m_cols; }
    /// Shrinking drops cells; cells that come anew are blank. The view hears of it by announce().
    void resize(int rows, int cols);
    void removeRow(int row);
    const QString& cell(int row, int col) const { return m_cells[at(row, col)]; }
    void setCell(int row, int col, const QString& text) { m_cells[at(row, col)] = text; }

    /// Tells the view of all that has been written since.
    void announce();

    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : m_shownRows - 1; }
    int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : m_shownCols - 1; }
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::size_t at(int row, int col) const {
        return static_cast<std::size_t>(row) * static_cast<std::size_t>(m_cols) + static_cast<std::size_t>(col);
    }

    int m_rows = 0, m_cols = 0;
    int m_shownRows = 1, m_shownCols = 1; ///< what the view knows
    std::vector<QString> m_cells;
};

} // namespace qinghe
