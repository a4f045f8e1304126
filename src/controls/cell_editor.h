#pragma once

#include "controls/ms_flex_grid.h"
#include "controls/text_box.h"

namespace qinghe {

/// The text box that floats over the cells of a grid on the same frame. It lies exactly over the cell that was current
/// when it was placed, follows that cell when the grid scrolls, and is out of sight while the cell is. It shows when
/// its text is not the cell's (only Enter brings it there), and when the table will refuse the cell. What its keys do
/// is the page's.
class CellEditor : public TextBox {
    Q_OBJECT

public:
    CellEditor(QWidget* frame, const QString& name, MSFlexGrid& grid);

    /// Moves over the current cell and keeps the text.
    void place();
    /// Moves over the current cell and takes its text.
    void lay();

    /// Whether what stands in the box on view is not what stands in its cell.
    bool differsFromCell() const;
    /// Why the table will refuse the cell under the box as it is; nothing while the box differs from it.
    QString objection() const;
    int row() const { return m_row; } ///< of the cell under the box
    int col() const { return m_col; }

protected:
    bool event(QEvent*) override;

private:
    bool isOverCell() const { return m_row < m_grid.Rows() && m_col < m_grid.Cols(); }
    void followCell();
    void keepInSight();

    MSFlexGrid& m_grid;
    int m_row = 1, m_col = 1; ///< the cell under the box
};

} // namespace qinghe
