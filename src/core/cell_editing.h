#pragma once

#include "controls/cell_editor.h"

#include <functional>

namespace qinghe {

/// Writing into the cells of a list, as every list does it: a box is laid over the current cell, Esc drops it, and what
/// Enter does is the list's own.
class CellEditing {
public:
    CellEditing(QWidget* frame, QStringView name, MSFlexGrid& grid);

    CellEditor* const box;

    /// Enter was pressed in the box.
    std::function<void()> entered;

    /// Lays the box over the current cell, with the keyboard and the cell's text, all of it selected.
    void open();
    void close();
    /// The box's text goes into the current cell, wherever the box lies.
    void commit();
    /// The same, unless the box is empty.
    void commitTyped();
    /// The same, and the box closes; also of one that is out of sight.
    void commitAndClose();

    void keyPressed(int key);

private:
    MSFlexGrid& m_grid;
};

} // namespace qinghe
