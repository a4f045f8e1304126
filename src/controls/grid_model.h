#pragma once

#include "controls/cell_texts.h"

#include <QAbstractTableModel>

#include <map>

namespace qinghe {

/// The texts of a grid, captions (row 0) and marker column (column 0) included; the view is shown the data cells as its
/// rows and columns and the captions as its headers. Rows and columns count from 0; one that is not there is a
/// RuntimeError (subscript out of range).
class GridModel : public QAbstractTableModel {
    Q_OBJECT

public:
    explicit GridModel(QObject* parent) : QAbstractTableModel(parent) { m_texts.resize(2, 2); }

    int rows() const { return m_texts.rows(); }
    int cols() const { return m_texts.cols(); }
    void checkRow(int row) const;
    void checkCol(int col) const;

    /// Shrinking drops cells; cells that come anew are blank. A grid has one row and one column at least. The view
    /// hears of it by announce().
    void resize(int rows, int cols);
    /// Takes a data row out; the last one stays (RowNotRemovable), and so do the captions.
    void removeRow(int row);

    QString cell(int row, int col) const;
    QStringList rowTexts(int row) const;
    bool isEmpty(int row, int col) const;
    int firstEmpty(int row, int from, int behindLast) const;
    void setCell(int row, int col, const QString& text);

    /// The number that a row bears, 0 where none was given; it goes with its row.
    int rowData(int row) const;
    void setRowData(int row, int number);

    /// Tells the view of all that has been written since.
    void announce();
    /// Whether the view knows how many rows and columns there are.
    bool isAnnounced() const { return m_shownRows == rows() && m_shownCols == cols(); }

    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : m_shownRows - 1; }
    int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : m_shownCols - 1; }
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    void checkCell(int row, int col) const;

    CellTexts m_texts;
    std::map<int, int> m_rowData;         ///< by row, where it is not 0: few rows bear one
    int m_shownRows = 1, m_shownCols = 1; ///< what the view knows
};

} // namespace qinghe
