#include "controls/cell_hints.h"

#include "controls/ms_flex_grid.h"
#include "runtime/shown_value.h"

#include <QMenu>
#include <QTextDocument>
#include <QToolTip>

namespace qinghe {

QModelIndex CellHints::indexOf(int row, int col) const {
    return m_grid.model()->index(row - 1, col - 1);
}

bool CellHints::openMenu(int row, int col, const QContextMenuEvent& asked) const {
    QMenu* const menu = menuOf && indexOf(row, col).isValid() ? menuOf(row, col) : nullptr;
    if (!menu)
        return false;
    if (asked.reason() == QContextMenuEvent::Keyboard) {
        menu->popup(m_grid.viewport()->mapToGlobal(m_grid.visualRect(indexOf(row, col)).bottomLeft()));
        menu->setActiveAction(menu->actions().front());
    } else {
        menu->popup(asked.globalPos());
    }
    return true;
}

QString CellHints::tip(int row, int col) const {
    if (!indexOf(row, col).isValid())
        return {};
    QStringList lines{m_grid.objectionTo(row, col)};
    if (m_grid.fit(row, col) != CellFit::Whole)
        lines << shownValue(m_grid.TextMatrix(row, col), MostInTip);
    if (tipOf)
        lines << tipOf(row, col);
    lines.removeAll({});
    return lines.join(u'\n');
}

void CellHints::tell(int row, int col, const QPoint& at) const {
    if (const QString text = tip(row, col); !text.isEmpty())
        QToolTip::showText(at, Qt::convertFromPlainText(text), m_grid.viewport(), m_grid.visualRect(indexOf(row, col)));
    else
        QToolTip::hideText();
}

} // namespace qinghe
