#pragma once

#include "controls/ms_flex_grid.h"
#include "controls/text_box.h"

namespace qinghe {

/// The text box that floats over the cells of a grid on the same frame. It lies exactly over the cell that was current
/// when it was placed, follows that cell when the grid scrolls, and is out of sight while the cell is. What its keys do
/// is the page's.
class CellEditor : public TextBox {
    Q_OBJECT

public:
    CellEditor(QWidget* frame, const QString& name, MSFlexGrid& grid);

    /// Moves over the current cell and keeps the text.
    void place();
    /// Moves over the current cell and takes its text.
    void lay();

private:
    void followCell();
    void keepInSight();

    MSFlexGrid& m_grid;
    int m_row = 1, m_col = 1; ///< the cell under the box
};

} // namespace qinghe
