#pragma once

#include "controls/cell_texts.h"

#include <QAbstractTableModel>

namespace qinghe {

/// The texts of a grid, captions (row 0) and marker column (column 0) included; the view is shown the data cells as its
/// rows and columns and the captions as its headers.
class GridModel : public QAbstractTableModel {
    Q_OBJECT

public:
    explicit GridModel(QObject* parent) : QAbstractTableModel(parent) { resize(2, 2); }

    int rows() const { return m_texts.rows(); }
    int cols() const { return m_texts.cols(); }
    /// Shrinking drops cells; cells that come anew are blank. The view hears of it by announce().
    void resize(int rows, int cols) { m_texts.resize(rows, cols); }
    void removeRow(int row) { m_texts.removeRow(row); }
    QString cell(int row, int col) const { return m_texts.text(row, col); }
    QStringList rowTexts(int row) const { return m_texts.rowTexts(row); }
    bool isEmpty(int row, int col) const { return m_texts.isEmpty(row, col); }
    int firstEmpty(int row, int from, int behindLast) const { return m_texts.firstEmpty(row, from, behindLast); }
    void setCell(int row, int col, const QString& text) { m_texts.setText(row, col, text); }

    /// Tells the view of all that has been written since.
    void announce();

    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : m_shownRows - 1; }
    int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : m_shownCols - 1; }
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    CellTexts m_texts;
    int m_shownRows = 1, m_shownCols = 1; ///< what the view knows
};

} // namespace qinghe
