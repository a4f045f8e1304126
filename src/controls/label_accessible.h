#pragma once

#include "controls/label.h"

#include <QAccessibleWidget>

namespace qinghe {

/// A label or an image as it is told. Most are words: what they are about (accessibleName) and then what they say. One
/// that is pressed is a button, a link or a page's tab, and can be pressed from there. What a label is can change with
/// its role, so it is looked at whenever it is asked for.
class LabelAccessible : public QAccessibleWidget {
public:
    explicit LabelAccessible(Label& label) : QAccessibleWidget(&label), m_label(label) {}

    /// Whether there is nothing to be told of it, ever: a line, a ground, a picture without a name.
    static bool isDecoration(const Label& label);
    /// Whether it stands in the row of pages.
    static bool isPageTab(const Label& label);

    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    QString text(QAccessible::Text what) const override;
    QAccessibleInterface* parent() const override;
    QStringList actionNames() const override;
    void doAction(const QString& action) override;

private:
    QString name() const;

    Label& m_label;
};

} // namespace qinghe
