#include "controls/label_accessible.h"

#include "controls/container_accessible.h"

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

bool isImage(const Label& label) {
    return qobject_cast<const Image*>(&label);
}

bool isPressed(const Label& label) {
    return label.Click || label.DblClick;
}

} // namespace

bool LabelAccessible::isDecoration(const Label& label) {
    if (label.role() == Role::Hairline || label.role() == Role::Well)
        return true;
    const bool holds = label.findChild<QWidget*>({}, Qt::FindDirectChildrenOnly);
    return isImage(label) && !holds && label.accessibleName().isEmpty() && label.toolTip().isEmpty();
}

bool LabelAccessible::isPageTab(const Label& label) {
    return label.role() == Role::PageLabel || label.role() == Role::ChosenLabel;
}

QAccessible::Role LabelAccessible::role() const {
    switch (m_label.role()) {
    case Role::PageLabel:
    case Role::ChosenLabel:
        return QAccessible::PageTab;
    case Role::SignInButton:
    case Role::DayCell:
    case Role::WalkedDay:
        return QAccessible::Button;
    case Role::Link:
        return QAccessible::Link;
    default:
        break;
    }
    if (isImage(m_label) && childCount() > 0)
        return QAccessible::Grouping;
    if (isImage(m_label))
        return isPressed(m_label) ? QAccessible::Button : QAccessible::Graphic;
    return m_label.isAnnounced() ? QAccessible::AlertMessage : QAccessible::StaticText;
}

QAccessible::State LabelAccessible::state() const {
    QAccessible::State state = QAccessibleWidget::state();
    if (isPageTab(m_label)) {
        state.selectable = true;
        state.selected = m_label.role() == Role::ChosenLabel;
    } else if (m_label.role() == Role::DayCell || m_label.role() == Role::WalkedDay) {
        // The day that is marked stands on another ground than its calendar.
        const Placed* const calendar = Placed::of(m_label.window());
        state.selectable = true;
        state.selected = calendar && m_label.BackColor() != calendar->BackColor();
        state.focused = m_label.role() == Role::WalkedDay; // keys walk over it, though another window has them
    }
    state.readOnly = role() == QAccessible::StaticText;
    if (!isImage(m_label) && name().isEmpty())
        state.invisible = true;
    return state;
}

QString LabelAccessible::name() const {
    const QString about = m_label.accessibleName(), words = m_label.text().trimmed();
    if (isImage(m_label))
        return about.isEmpty() ? m_label.toolTip() : about;
    if (role() != QAccessible::StaticText)
        return about.isEmpty() ? words : about;
    return about.isEmpty() || words.isEmpty() ? words : about + u"："_s + words;
}

QString LabelAccessible::text(QAccessible::Text what) const {
    if (what == QAccessible::Name)
        return name();
    if (what == QAccessible::Description)
        m_label.ToolTipAsked.fromQt();
    const QString words = QAccessibleWidget::text(what);
    return name().startsWith(words) ? QString() : words; // not twice
}

QAccessibleInterface* LabelAccessible::parent() const {
    QAccessibleInterface* const container = QAccessibleWidget::parent();
    if (!isPageTab(m_label) || !container || !qobject_cast<QWidget*>(container->object()))
        return container;
    QAccessibleInterface* const row = static_cast<ContainerAccessible*>(container)->tabs();
    return row ? row : container;
}

QStringList LabelAccessible::actionNames() const {
    QStringList names = QAccessibleWidget::actionNames();
    if (isPressed(m_label))
        names.prepend(pressAction());
    return names;
}

void LabelAccessible::doAction(const QString& action) {
    if (action != pressAction() || !isPressed(m_label))
        return QAccessibleWidget::doAction(action);
    // What is taken by a double click is what a press is for; one click only marks it.
    const Event<>& press = m_label.DblClick ? m_label.DblClick : m_label.Click;
    press.fromQt();
}

} // namespace qinghe
