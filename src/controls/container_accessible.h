#pragma once

#include <QAccessibleWidget>

#include <memory>
#include <vector>

namespace qinghe {

/// A form or a frame as it is told: what it holds, in the order in which it is read, from above and from the left,
/// whatever lies over what. Decorations are left out. The labels of the pages stand together in a row of tabs.
class ContainerAccessible : public QAccessibleWidget {
public:
    explicit ContainerAccessible(QWidget& container);
    ~ContainerAccessible() override;

    QAccessible::Role role() const override;
    QString text(QAccessible::Text what) const override;
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;

    /// The row of tabs, or nullptr where there are none.
    QAccessibleInterface* tabs() const;

private:
    class TabRow;
    std::vector<QWidget*> told() const;
    bool isOfTabs(const QWidget* widget) const;

    mutable std::unique_ptr<QAccessible::Id> m_tabs; ///< made when it is first asked for
};

} // namespace qinghe
