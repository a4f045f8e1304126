#include "controls/cell_editor.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QTextDocument>
#include <QToolTip>

#include <algorithm>

namespace qinghe {

using namespace Qt::StringLiterals;

CellEditor::CellEditor(QWidget* frame, const QString& name, MSFlexGrid& grid) : TextBox(frame, name), m_grid(grid) {
    setRole(Role::CellEditor);
    setShown(false);
    setFocusRefuge(&grid);
    grid.setCover(this);
    connect(&grid, &MSFlexGrid::scrolled, this, [this] {
        if (Visible())
            followCell();
    });
    connect(&grid, &MSFlexGrid::refreshed, this, [this] { update(); });
}

void CellEditor::place() {
    m_row = m_grid.Row();
    m_col = m_grid.Col();
    followCell();
    setAccessibleName(columnName());
}

QString CellEditor::columnName() const {
    const QString caption = isOverCell() ? m_grid.TextMatrix(0, m_col) : QString();
    return caption.startsWith(m_subject) ? caption : m_subject + caption;
}

void CellEditor::followCell() {
    if (!isOverCell())
        return;
    Placed::place(m_grid.Left() + m_grid.ColPos(m_col), m_grid.Top() + m_grid.RowPos(m_row), m_grid.ColWidth(m_col),
                  m_grid.RowHeight(m_row));
    keepInSight();
}

void CellEditor::lay() {
    place();
    setBoxText(m_grid.Text());
}

bool CellEditor::differsFromCell() const {
    return Visible() && isOverCell() && Text() != m_grid.TextMatrix(m_row, m_col);
}

QString CellEditor::objection() const {
    return isOverCell() && !differsFromCell() ? m_grid.objectionTo(m_row, m_col) : QString();
}

bool CellEditor::event(QEvent* event) {
    if (event->type() == QEvent::ContextMenu) {
        if (m_grid.hints.openMenu(m_row, m_col, *static_cast<QContextMenuEvent*>(event)))
            return true;
    } else if (event->type() == QEvent::ToolTip && (differsFromCell() || toolTip().isEmpty())) {
        tell(static_cast<QHelpEvent*>(event)->globalPos());
        return true;
    } else if (!isEnabled() && hearsWhenClosed && closedEvent(*event)) {
        return true;
    }
    return TextBox::event(event);
}

void CellEditor::tell(const QPoint& at) const {
    if (differsFromCell())
        QToolTip::showText(at, u"按回车写进表格"_s);
    else
        m_grid.hints.tell(m_row, m_col, at);
}

/// Qt hands a disabled widget's mouse on to its container.
bool CellEditor::closedEvent(QEvent& event) {
    switch (event.type()) {
    case QEvent::MouseButtonPress:
        if (!hearsWhenClosed())
            return false;
        m_press.press(static_cast<QMouseEvent&>(event));
        break;
    case QEvent::MouseButtonRelease:
        if (!m_press.releasedOn(*this, static_cast<QMouseEvent&>(event)))
            return false;
        Click.fromQt();
        break;
    case QEvent::MouseButtonDblClick: // begun on the cell that the box lies over now
        return hearsWhenClosed();
    default:
        return false;
    }
    event.accept();
    return true;
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
