#pragma once

#include "controls/ms_flex_grid.h"

#include <QAccessibleWidget>

#include <map>

namespace qinghe {

/// A grid as it is told: a table whose first row are the captions, with the data below; the marker column is not told.
/// A cell is made when it is asked for, so a list of any length costs what is looked at. While a grid is told, the
/// current cell is told as it moves: as the place of the keyboard where the grid has it, else as what is chosen.
class GridAccessible : public QAccessibleWidget, public QAccessibleTableInterface {
public:
    explicit GridAccessible(MSFlexGrid& grid);
    ~GridAccessible() override;

    MSFlexGrid& grid() const { return m_grid; }

    void* interface_cast(QAccessible::InterfaceType type) override;
    QString text(QAccessible::Text what) const override;
    int childCount() const override { return (rowCount() + 1) * columnCount(); }
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;

    // The table. Rows count from 0, the captions not among them.
    int rowCount() const override { return m_grid.Rows() - 1; }
    int columnCount() const override { return m_grid.Cols() - 1; }
    QAccessibleInterface* cellAt(int row, int column) const override;
    QAccessibleInterface* header(int column) const;
    QString columnDescription(int column) const override;
    QString rowDescription(int row) const override;
    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }

    // The current cell is what is selected; nothing else can be.
    int selectedCellCount() const override { return hasCurrent() ? 1 : 0; }
    QList<QAccessibleInterface*> selectedCells() const override;
    int selectedColumnCount() const override { return 0; }
    int selectedRowCount() const override { return 0; }
    QList<int> selectedColumns() const override { return {}; }
    QList<int> selectedRows() const override { return {}; }
    bool isColumnSelected(int) const override { return false; }
    bool isRowSelected(int) const override { return false; }
    bool selectRow(int) override { return false; }
    bool selectColumn(int) override { return false; }
    bool unselectRow(int) override { return false; }
    bool unselectColumn(int) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent*) override {}

    /// Nor is a cell of a list that is only read, unless keys are at it.
    bool isCurrent(int row, int col) const { return hasCurrent() && row == m_grid.Row() && col == m_grid.Col(); }
    /// Whether the grid has the keyboard, or what reads it by keys has (ReportReader).
    bool hasKeyboard() const;

private:
    class Follower;
    /// Row and column of the grid itself: row 0 holds the captions.
    QAccessibleInterface* part(int row, int col) const;
    bool hasCurrent() const;
    bool isBlank() const;
    void forgetGone();

    MSFlexGrid& m_grid;
    mutable std::map<std::pair<int, int>, QAccessible::Id> m_parts; ///< those made so far
    QPointer<QObject> m_follower;
};

} // namespace qinghe
