#pragma once

#include "controls/cell_editor.h"
#include "controls/label.h"
#include "core/cell_keys.h"

#include <functional>

namespace qinghe {

/// Writing into the cells of a list, as every list does it: a box is laid over the current cell, Esc drops it, and what
/// Enter does is the list's own. A save that comes while the box holds what its cell does not is told in a faint line
/// on the frame's own ground, above the list, until the box is opened or closed again.
class CellEditing {
public:
    CellEditing(QWidget* frame, QStringView name, MSFlexGrid& grid);

    CellEditor* const box;
    CellKeys keys; ///< of the list

    /// Enter was pressed in the box.
    std::function<void()> entered;

    /// Lays the box over the current cell, with the keyboard and the cell's text, all of it selected.
    void open();
    void close();
    /// The list has been saved, without what stood in the box alone.
    void closeSaved();
    /// The box's text goes into the current cell, wherever the box lies.
    void commit();
    /// The same, unless the box is empty.
    void commitTyped();
    /// The same, and the box closes; also of one that is out of sight.
    void commitAndClose();

    void keyPressed(int key);

private:
    void tellUnsaved(const QString& words);

    MSFlexGrid& m_grid;
    Label* m_unsaved; ///< says what a save did not take
};

} // namespace qinghe
