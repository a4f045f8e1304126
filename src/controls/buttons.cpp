#include "controls/buttons.h"

#include "controls/key_presses.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QTextDocument>
#include <QToolTip>

namespace qinghe {

using namespace Qt::StringLiterals;

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

void CommandButton::pressFromAfar() {
    if (!isVisible() || !isEnabled())
        return;
    if (m_handsKeyboardOn)
        setFocus(Qt::ShortcutFocusReason); // that it is the button's to be handed on
    click();
}

void CommandButton::setMark(const QString& words) {
    if (m_mark == words)
        return;
    m_mark = words;
    setAccessibleDescription(words.isEmpty() ? words : whatToTell(u"。"_s));
    update();
}

bool CommandButton::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip || !isMarked() || !isEnabled())
        return Button::event(event);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), Qt::convertFromPlainText(whatToTell(u"\n"_s)),
                       this);
    return true;
}

QString CommandButton::whatToTell(const QString& between) const {
    return toolTip().isEmpty() ? m_mark : m_mark + between + toolTip();
}

void CommandButton::keyPressEvent(QKeyEvent* event) {
    if (!key_presses::isEnter(event->key()))
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
    if (!key_presses::isEnter(event->key()))
        QCheckBox::keyPressEvent(event);
    else if (!event->isAutoRepeat())
        KeyPress.fromQt(key_presses::Enter);
}

void CheckBox::setValue(bool value) {
    if (value == isChecked())
        return;
    setCheckedQuietly(value);
    Click.raise();
}

} // namespace qinghe
