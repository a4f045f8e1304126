#include "ledger/cell_editor.h"

namespace qinghe {

CellEditor::CellEditor(QWidget* frame, const QString& name, MSFlexGrid& grid) : TextBox(frame, name), m_grid(grid) {
    setRole(Role::CellEditor);
    setShown(false);
    setFocusRefuge(&grid);
    connect(&grid, &MSFlexGrid::scrolled, this, [this] {
        if (Visible())
            place();
    });
}

void CellEditor::place() {
    const int row = m_grid.Row(), col = m_grid.Col();
    Placed::place(m_grid.Left() + m_grid.ColPos(col), m_grid.Top() + m_grid.RowPos(row), m_grid.ColWidth(col),
                  m_grid.RowHeight(row));
    keepInSight();
}

void CellEditor::lay() {
    place();
    setBoxText(m_grid.Text());
}

void CellEditor::keepInSight() {
    const QRect room = m_grid.cellRoom().translated(m_grid.pos());
    const QRect seen = geometry() & room;
    if (seen == geometry())
        clearMask();
    else
        setMask(seen.isEmpty() ? QRegion(-1, -1, 1, 1) : QRegion(seen.translated(-pos())));
}

} // namespace qinghe
