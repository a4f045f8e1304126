#pragma once

#include <QContextMenuEvent>
#include <QString>

#include <functional>

class QMenu;
class QModelIndex;

namespace qinghe {

class MSFlexGrid;

/// What a cell of a list offers beside its text: a tool tip and a context menu. They are there over the cell and over
/// the box that lies on it.
class CellHints {
public:
    explicit CellHints(MSFlexGrid& grid) : m_grid(grid) {}

    /// The context menu of a cell, or nullptr where it has none.
    std::function<QMenu*(int row, int col)> menuOf;
    /// What a cell's tool tip tells besides a text that is cut.
    std::function<QString(int row, int col)> tipOf;

    /// Opens the menu of a cell, with the keyboard below the cell, else at a place on the screen; tells whether there
    /// is one.
    bool openMenu(int row, int col, const QContextMenuEvent& asked) const;
    /// Shows the tool tip of a cell at a place on the screen, or none where it has none.
    void tell(int row, int col, const QPoint& at) const;

private:
    QModelIndex indexOf(int row, int col) const;
    QString tip(int row, int col) const;

    MSFlexGrid& m_grid;
};

} // namespace qinghe
