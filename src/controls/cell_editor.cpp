#include "controls/cell_editor.h"

#include <algorithm>

namespace qinghe {

CellEditor::CellEditor(QWidget* frame, const QString& name, MSFlexGrid& grid) : TextBox(frame, name), m_grid(grid) {
    setRole(Role::CellEditor);
    setShown(false);
    setFocusRefuge(&grid);
    grid.setCover(this);
    connect(&grid, &MSFlexGrid::scrolled, this, [this] {
        if (Visible())
            followCell();
    });
}

void CellEditor::place() {
    m_row = m_grid.Row();
    m_col = m_grid.Col();
    followCell();
}

void CellEditor::followCell() {
    if (m_row >= m_grid.Rows() || m_col >= m_grid.Cols())
        return;
    Placed::place(m_grid.Left() + m_grid.ColPos(m_col), m_grid.Top() + m_grid.RowPos(m_row), m_grid.ColWidth(m_col),
                  m_grid.RowHeight(m_row));
    keepInSight();
}

void CellEditor::lay() {
    place();
    setBoxText(m_grid.Text());
}

/// Where its cell reaches under the list's right end the box ends there, edge and all; above and below it slips under
/// the list's ends.
void CellEditor::keepInSight() {
    const QRect room = m_grid.cellRoom().translated(m_grid.pos());
    QRect box = geometry();
    if (box.left() < room.right())
        box.setRight(std::min(box.right(), room.right()));
    setGeometry(box);
    const QRect seen = box & room;
    if (seen == box)
        clearMask();
    else
        setMask(seen.isEmpty() ? QRegion(-1, -1, 1, 1) : QRegion(seen.translated(-pos())));
}

} // namespace qinghe
