#include "controls/grid_cell_accessible.h"

namespace qinghe {

using namespace Qt::StringLiterals;

void* GridCellAccessible::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TableCellInterface && !isCaption())
        return static_cast<QAccessibleTableCellInterface*>(this);
    if (type == QAccessible::ActionInterface && !isCaption())
        return static_cast<QAccessibleActionInterface*>(this);
    return nullptr;
}

QAccessible::State GridCellAccessible::state() const {
    QAccessible::State state;
    if (!isValid()) {
        state.invalid = true;
        return state;
    }
    state.disabled = !grid().isEnabled();
    state.readOnly = true; // a cell itself takes no keys: a box is laid over it
    state.offscreen = !QRect(grid().mapToGlobal(QPoint()), grid().size()).intersects(rect());
    state.invisible = !grid().isVisible();
    if (isCaption())
        return state;
    state.focusable = state.selectable = grid().isEnabled();
    state.selected = isSelected();
    state.focused = isSelected() && m_table.hasKeyboard();
    return state;
}

QString GridCellAccessible::text(QAccessible::Text what) const {
    if (!isValid())
        return {};
    if (what == QAccessible::Name || (what == QAccessible::Value && !isCaption()))
        return grid().TextMatrix(m_row, m_col);
    if (what != QAccessible::Description || isCaption())
        return {};
    const QString place = u"第%1行，%2"_s.arg(QString::number(m_row), grid().TextMatrix(0, m_col));
    const QString objection = grid().objectionTo(m_row, m_col);
    return objection.isEmpty() ? place : place + u"，"_s + objection;
}

QRect GridCellAccessible::rect() const {
    if (!isValid())
        return {};
    const QRect cell = grid().cellRect(m_row, m_col);
    return {grid().mapToGlobal(cell.topLeft()), cell.size()};
}

QStringList GridCellAccessible::actionNames() const {
    return isPressable() ? QStringList{pressAction()} : QStringList();
}

void GridCellAccessible::doAction(const QString& action) {
    if (action != pressAction() || !isPressable())
        return;
    handlers::enter([this] {
        grid().setRow(m_row);
        grid().setCol(m_col);
        grid().Click.raise();
    });
}

} // namespace qinghe
