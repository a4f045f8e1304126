#include "controls/combo_accessible.h"

#include "controls/accessible.h"

#include <QAbstractItemView>
#include <QLineEdit>

namespace qinghe {

using namespace Qt::StringLiterals;

int ComboAccessible::childCount() const {
    return m_list.isEditable() ? 2 : 1;
}

QAccessibleInterface* ComboAccessible::child(int index) const {
    if (index < 0 || index >= childCount())
        return nullptr;
    QWidget* const part = index == 0 ? static_cast<QWidget*>(m_list.view()) : m_list.lineEdit();
    // The parts are Qt's own, and are called after the whole.
    if (part->accessibleName() != m_list.accessibleName())
        part->setAccessibleName(m_list.accessibleName());
    return QAccessible::queryAccessibleInterface(part);
}

int ComboAccessible::indexOfChild(const QAccessibleInterface* child) const {
    if (!child)
        return -1;
    if (child->object() == m_list.view())
        return 0;
    return m_list.isEditable() && child->object() == m_list.lineEdit() ? 1 : -1;
}

QAccessible::State ComboAccessible::state() const {
    QAccessible::State state = QAccessibleWidget::state();
    const bool open = m_list.view()->isVisible();
    state.hasPopup = true;
    state.expandable = true;
    state.expanded = open;
    state.collapsed = !open;
    state.editable = m_list.isEditable();
    return state;
}

QString ComboAccessible::text(QAccessible::Text what) const {
    if (what == QAccessible::Value)
        return m_list.Text();
    if (what != QAccessible::Name)
        return QAccessibleWidget::text(what);
    const QString name = accessible::nameOf(m_list);
    return m_list.isEditable() || m_list.Text().isEmpty() ? name : name + u"："_s + m_list.Text();
}

QStringList ComboAccessible::actionNames() const {
    return {showMenuAction(), pressAction()};
}

void ComboAccessible::doAction(const QString& action) {
    if (action != showMenuAction() && action != pressAction())
        return;
    if (m_list.view()->isVisible())
        m_list.hidePopup();
    else
        m_list.showPopup();
}

} // namespace qinghe
