#pragma once

#include "controls/grid_accessible.h"

namespace qinghe {

/// A cell of a grid, or a caption, as it is told: its text, and where it stands. Rows and columns are the grid's own. A
/// cell can be pressed from there, as by a click. One that has gone since is not valid.
class GridCellAccessible : public QAccessibleInterface,
                           public QAccessibleTableCellInterface,
                           public QAccessibleActionInterface {
public:
    GridCellAccessible(const GridAccessible& table, int row, int col) : m_table(table), m_row(row), m_col(col) {}

    int row() const { return m_row; }
    int col() const { return m_col; }
    bool isCaption() const { return m_row == 0; }

    bool isValid() const override { return m_row < grid().Rows() && m_col < grid().Cols(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return m_table.window(); }
    void* interface_cast(QAccessible::InterfaceType type) override;
    QAccessible::Role role() const override { return isCaption() ? QAccessible::ColumnHeader : QAccessible::Cell; }
    QAccessible::State state() const override;
    QString text(QAccessible::Text what) const override;
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override;
    QAccessibleInterface* parent() const override { return table(); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }

    // The cell of a table; its rows count from 0 below the captions.
    bool isSelected() const override { return !isCaption() && m_table.isCurrent(m_row, m_col); }
    QList<QAccessibleInterface*> columnHeaderCells() const override { return {m_table.header(m_col - 1)}; }
    QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
    int columnIndex() const override { return m_col - 1; }
    int rowIndex() const override { return m_row - 1; }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface* table() const override { return QAccessible::queryAccessibleInterface(m_table.object()); }

    QStringList actionNames() const override;
    void doAction(const QString& action) override;
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    MSFlexGrid& grid() const { return m_table.grid(); }
    bool isPressable() const { return isValid() && !isCaption() && grid().isEnabled(); }

    const GridAccessible& m_table;
    const int m_row, m_col;
};

} // namespace qinghe
