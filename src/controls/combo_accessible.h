#pragma once

#include "controls/combo_box.h"

#include <QAccessibleWidget>

namespace qinghe {

/// A list with a text of its own as it is told: by what it is for. (Qt's own way calls it by what stands in it.) Its
/// text is told by the box inside, or, where nothing can be typed, behind its name.
class ComboAccessible : public QAccessibleWidget {
public:
    explicit ComboAccessible(ComboBox& list) : QAccessibleWidget(&list, QAccessible::ComboBox), m_list(list) {}

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessible::State state() const override;
    QString text(QAccessible::Text what) const override;
    QStringList actionNames() const override;
    void doAction(const QString& action) override;

private:
    ComboBox& m_list;
};

} // namespace qinghe
