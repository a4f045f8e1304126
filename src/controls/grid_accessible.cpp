#include "controls/grid_accessible.h"

#include "controls/accessible.h"
#include "controls/grid_cell_accessible.h"
#include "controls/report_reader.h"

#include <QApplication>

#include <utility>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

bool isKeyboardAt(const MSFlexGrid& grid) {
    const auto* reader = qobject_cast<const ReportReader*>(QApplication::focusWidget());
    return grid.hasFocus() || (reader && &reader->list() == &grid);
}

} // namespace

/// Tells where the current cell goes.
class GridAccessible::Follower : public QObject {
public:
    explicit Follower(MSFlexGrid& grid) : QObject(&grid), m_grid(grid), m_told(cell()) {
        connect(&grid, &MSFlexGrid::refreshed, this, [this] {
            if (std::exchange(m_told, cell()) != m_told)
                tell();
        });
        connect(qApp, &QApplication::focusChanged, this, [this] { keyboardMoved(); });
        keyboardMoved(); // it may be there already
    }

private:
    std::pair<int, int> cell() const { return {m_grid.Row(), m_grid.Col()}; }

    /// Tells behind Qt's own word that the keyboard has come to the grid.
    void keyboardMoved() {
        if (!isKeyboardAt(m_grid) || std::exchange(m_due, true))
            return;
        const auto tellNow = [this] {
            m_due = false;
            tell();
        };
        QMetaObject::invokeMethod(this, tellNow, Qt::QueuedConnection);
    }

    void tell() const {
        const auto [row, col] = cell();
        if (row < 1 || col < 1)
            return;
        accessible::tell(m_grid, isKeyboardAt(m_grid) ? QAccessible::Focus : QAccessible::Selection,
                         row * (m_grid.Cols() - 1) + col - 1);
    }

    MSFlexGrid& m_grid;
    std::pair<int, int> m_told;
    bool m_due = false; ///< the keyboard has just come to the grid
};

GridAccessible::GridAccessible(MSFlexGrid& grid)
    : QAccessibleWidget(&grid, QAccessible::Table), m_grid(grid), m_follower(new Follower(grid)) {
    QObject::connect(&grid, &MSFlexGrid::refreshed, m_follower, [this] { forgetGone(); });
}

GridAccessible::~GridAccessible() {
    for (const auto& [place, id] : m_parts)
        QAccessible::deleteAccessibleInterface(id);
    delete m_follower;
}

void* GridAccessible::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TableInterface)
        return static_cast<QAccessibleTableInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

QString GridAccessible::text(QAccessible::Text what) const {
    if (what == QAccessible::Name)
        return accessible::nameOf(m_grid);
    if (what == QAccessible::Description && !m_grid.ground.shown().isEmpty())
        return m_grid.ground.shown().replace(u'\n', u'，');
    if (what == QAccessible::Description)
        return isBlank() ? u"表格里还没有内容"_s : u"共%1行"_s.arg(rowCount());
    return QAccessibleWidget::text(what);
}

bool GridAccessible::isBlank() const {
    return rowCount() == 0 || (rowCount() == 1 && m_grid.rowTexts(1).join(QString()).isEmpty());
}

bool GridAccessible::hasKeyboard() const {
    return isKeyboardAt(m_grid);
}

bool GridAccessible::hasCurrent() const {
    return (m_grid.marksCurrent() || hasKeyboard()) && m_grid.Row() > 0 && m_grid.Col() > 0;
}

// ---- the parts

QAccessibleInterface* GridAccessible::part(int row, int col) const {
    if (row < 0 || row > rowCount() || col < 1 || col > columnCount())
        return nullptr;
    const auto [made, isNew] = m_parts.try_emplace({row, col});
    if (isNew)
        made->second = QAccessible::registerAccessibleInterface(new GridCellAccessible(*this, row, col));
    return QAccessible::accessibleInterface(made->second);
}

QAccessibleInterface* GridAccessible::child(int index) const {
    const int columns = columnCount();
    return index < 0 || columns == 0 ? nullptr : part(index / columns, index % columns + 1);
}

int GridAccessible::indexOfChild(const QAccessibleInterface* child) const {
    const auto* cell = dynamic_cast<const GridCellAccessible*>(child);
    return cell && cell->isValid() ? cell->row() * columnCount() + cell->col() - 1 : -1;
}

QAccessibleInterface* GridAccessible::childAt(int x, int y) const {
    const QPoint at = m_grid.mapFromGlobal(QPoint(x, y));
    for (int col = 1; col <= columnCount(); ++col) {
        const QRect caption = m_grid.cellRect(0, col);
        if (at.x() < caption.left() || at.x() > caption.right())
            continue;
        if (at.y() <= caption.bottom())
            return header(col - 1);
        const int row = m_grid.rowAt(at.y() - m_grid.cellRoom().top());
        return row < 0 ? nullptr : cellAt(row, col - 1);
    }
    return nullptr;
}

QAccessibleInterface* GridAccessible::focusChild() const {
    return hasKeyboard() && hasCurrent() ? part(m_grid.Row(), m_grid.Col()) : nullptr;
}

// ---- the table

QAccessibleInterface* GridAccessible::cellAt(int row, int column) const {
    return row < 0 ? nullptr : part(row + 1, column + 1);
}

QAccessibleInterface* GridAccessible::header(int column) const {
    return part(0, column + 1);
}

QString GridAccessible::columnDescription(int column) const {
    return column >= 0 && column < columnCount() ? m_grid.TextMatrix(0, column + 1) : QString();
}

QString GridAccessible::rowDescription(int row) const {
    return u"第%1行"_s.arg(row + 1);
}

QList<QAccessibleInterface*> GridAccessible::selectedCells() const {
    return hasCurrent() ? QList<QAccessibleInterface*>{part(m_grid.Row(), m_grid.Col())}
                        : QList<QAccessibleInterface*>();
}

/// The cells that were told and are no longer there.
void GridAccessible::forgetGone() {
    std::erase_if(m_parts, [this](const auto& entry) {
        const auto& [place, id] = entry;
        if (place.first <= rowCount() && place.second <= columnCount())
            return false;
        QAccessible::deleteAccessibleInterface(id);
        return true;
    });
}

} // namespace qinghe
