#include "controls/container_accessible.h"

#include "controls/accessible.h"
#include "controls/form.h"
#include "controls/frame.h"
#include "controls/label_accessible.h"
#include "controls/reading_order.h"

#include <algorithm>

namespace qinghe {

namespace {

bool isTab(const QWidget* widget) {
    const auto* label = qobject_cast<const Label*>(widget);
    return label && LabelAccessible::isPageTab(*label);
}

std::vector<QWidget*> toldIn(const QWidget& container);

bool isDecoration(const QWidget& widget) {
    if (const auto* label = qobject_cast<const Label*>(&widget))
        return LabelAccessible::isDecoration(*label);
    const auto* frame = qobject_cast<const Frame*>(&widget);
    return frame && accessible::nameOf(*frame).isEmpty() && toldIn(*frame).empty();
}

std::vector<QWidget*> toldIn(const QWidget& container) {
    std::vector<QWidget*> widgets = inReadingOrder(container);
    std::erase_if(widgets, [](const QWidget* widget) { return isDecoration(*widget); });
    return widgets;
}

} // namespace

/// The labels of the pages, which have no widget of their own round them.
class ContainerAccessible::TabRow : public QAccessibleInterface {
public:
    explicit TabRow(const ContainerAccessible& window) : m_window(window) {}

    bool isValid() const override { return m_window.isValid(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return m_window.window(); }
    QAccessible::Role role() const override { return QAccessible::PageTabList; }
    QAccessible::State state() const override {
        QAccessible::State state = m_window.state();
        state.focused = state.focusable = state.active = false;
        return state;
    }
    QString text(QAccessible::Text what) const override {
        return what == QAccessible::Name ? QStringLiteral("页面") : QString();
    }
    void setText(QAccessible::Text, const QString&) override {}
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(m_window.object()); }
    int childCount() const override { return static_cast<int>(tabs().size()); }
    QAccessibleInterface* child(int index) const override {
        const std::vector<QWidget*> all = tabs();
        return index >= 0 && index < static_cast<int>(all.size())
                   ? QAccessible::queryAccessibleInterface(all[static_cast<std::size_t>(index)])
                   : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        const std::vector<QWidget*> all = tabs();
        const auto found = child ? std::ranges::find(all, child->object()) : all.end();
        return found == all.end() ? -1 : static_cast<int>(found - all.begin());
    }
    QAccessibleInterface* childAt(int x, int y) const override {
        for (QWidget* tab : tabs())
            if (QAccessibleInterface* const told = QAccessible::queryAccessibleInterface(tab);
                told->rect().contains(x, y))
                return told;
        return nullptr;
    }
    QRect rect() const override {
        QRect all;
        for (QWidget* tab : tabs())
            all |= QAccessible::queryAccessibleInterface(tab)->rect();
        return all;
    }

private:
    std::vector<QWidget*> tabs() const {
        std::vector<QWidget*> widgets = toldIn(*m_window.widget());
        std::erase_if(widgets, [](const QWidget* widget) { return !isTab(widget); });
        return widgets;
    }

    const ContainerAccessible& m_window;
};

ContainerAccessible::ContainerAccessible(QWidget& container) : QAccessibleWidget(&container) {}

ContainerAccessible::~ContainerAccessible() {
    if (m_tabs)
        QAccessible::deleteAccessibleInterface(*m_tabs);
}

QAccessible::Role ContainerAccessible::role() const {
    if (!widget()->isWindow())
        return QAccessible::Grouping;
    if (widget()->windowFlags() & Qt::WindowStaysOnTopHint)
        return QAccessible::AlertMessage;
    const bool hangsOff = widget()->windowType() == Qt::Dialog || widget()->windowType() == Qt::Tool;
    return hangsOff ? QAccessible::Dialog : QAccessible::Window;
}

QString ContainerAccessible::text(QAccessible::Text what) const {
    return what == QAccessible::Name ? accessible::nameOf(*widget()) : QAccessibleWidget::text(what);
}

/// All tabs count as one, where the first of them stands.
std::vector<QWidget*> ContainerAccessible::told() const {
    std::vector<QWidget*> widgets = toldIn(*widget());
    const auto first = std::ranges::find_if(widgets, isTab);
    if (first != widgets.end())
        widgets.erase(std::remove_if(first + 1, widgets.end(), isTab), widgets.end());
    return widgets;
}

int ContainerAccessible::childCount() const {
    return static_cast<int>(told().size());
}

QAccessibleInterface* ContainerAccessible::child(int index) const {
    const std::vector<QWidget*> all = told();
    if (index < 0 || index >= static_cast<int>(all.size()))
        return nullptr;
    QWidget* const widget = all[static_cast<std::size_t>(index)];
    return isTab(widget) ? tabs() : QAccessible::queryAccessibleInterface(widget);
}

int ContainerAccessible::indexOfChild(const QAccessibleInterface* child) const {
    const std::vector<QWidget*> all = told();
    const auto found = std::ranges::find_if(all, [&](const QWidget* widget) {
        return isTab(widget) ? m_tabs && child == QAccessible::accessibleInterface(*m_tabs)
                             : child && child->object() == widget;
    });
    return found == all.end() ? -1 : static_cast<int>(found - all.begin());
}

QAccessibleInterface* ContainerAccessible::tabs() const {
    if (!m_tabs && std::ranges::none_of(toldIn(*widget()), isTab))
        return nullptr;
    if (!m_tabs)
        m_tabs = std::make_unique<QAccessible::Id>(QAccessible::registerAccessibleInterface(new TabRow(*this)));
    return QAccessible::accessibleInterface(*m_tabs);
}

} // namespace qinghe
