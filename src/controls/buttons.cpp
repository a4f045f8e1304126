#include "controls/buttons.h"

#include <QKeyEvent>

namespace qinghe {

CommandButton::CommandButton(QWidget* parent, const QString& name, const QString& caption)
    : Button(parent, name, caption) {
    setAutoDefault(false);
    connect(this, &QPushButton::clicked, this, [this] {
        Click.fromQt();
        if (m_handsKeyboardOn)
            giveUpKeyboard();
    });
}

void CommandButton::handKeyboardTo(QWidget* heir) {
    m_handsKeyboardOn = true;
    setFocusRefuge(heir);
}

void CommandButton::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
        QPushButton::keyPressEvent(event);
    else if (!event->isAutoRepeat())
        click();
}

OptionButton::OptionButton(QWidget* parent, const QString& name, const QString& caption)
    : Button(parent, name, caption) {
    connect(this, &QRadioButton::toggled, this, [this](bool on) {
        if (on)
            Click.fromQt();
    });
}

void OptionButton::setValue(bool value) {
    if (value == isChecked())
        return;
    if (value) {
        for (OptionButton* other : parentWidget()->findChildren<OptionButton*>(Qt::FindDirectChildrenOnly))
            if (other != this)
                other->setValue(false);
        setCheckedQuietly(true);
        Click.raise();
    } else {
        // An exclusive group refuses to be left without a choice.
        setAutoExclusive(false);
        setCheckedQuietly(false);
        setAutoExclusive(true);
    }
}

CheckBox::CheckBox(QWidget* parent, const QString& name, const QString& caption) : Button(parent, name, caption) {
    connect(this, &QCheckBox::toggled, this, [this] { Click.fromQt(); });
}

void CheckBox::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
        QCheckBox::keyPressEvent(event);
    else if (!event->isAutoRepeat())
        Entered.fromQt();
}

void CheckBox::setValue(bool value) {
    if (value == isChecked())
        return;
    setCheckedQuietly(value);
    Click.raise();
}

} // namespace qinghe
