#pragma once

#include "controls/control.h"

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>

namespace qinghe {

/// The scheme of all buttons. Qt's swallow the mouse when they are disabled; here it is the container's.
template<class Widget>
class Button : public WithMoves<Widget> {
public:
    Button(QWidget* parent, const QString& name, const QString& caption) : WithMoves<Widget>(parent, name) {
        this->setText(caption);
    }

    Event<> Click;

protected:
    bool event(QEvent* event) override {
        const bool ofMouse = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonRelease ||
                             event->type() == QEvent::MouseButtonDblClick || event->type() == QEvent::MouseMove;
        if (!ofMouse || this->isEnabled())
            return Widget::event(event);
        event->ignore();
        return false;
    }
    /// Sets a state without the signal that stands for the user's click.
    void setCheckedQuietly(bool on) {
        const QSignalBlocker quiet(this);
        this->setChecked(on);
    }
};

/// A command button; hovering is marked by its BackColor. It clicks as Qt's button does, by mouse and Space, and by
/// Enter while it has the keyboard; a key that is held clicks once.
class CommandButton : public Button<QPushButton> {
    Q_OBJECT
    QINGHE_CONTROL

public:
    CommandButton(QWidget* parent, const QString& name, const QString& caption);

    /// After its click the keyboard goes there, so that a key pressed by chance does not click once more.
    void handKeyboardTo(QWidget* heir);

    /// A click by a key that belongs to another place of the window: the keyboard goes where the click leaves it, and
    /// stays where it is when that is the button itself. Nothing happens while the button is out of view or disabled.
    void pressFromAfar();

    /// An amber dot, whose words stand in the tool tip before the button's own; without words there is none.
    void setMark(const QString& words);
    bool isMarked() const { return !m_mark.isEmpty(); }

protected:
    bool event(QEvent*) override;
    void keyPressEvent(QKeyEvent*) override;

private:
    /// The mark's words and the tool tip.
    QString whatToTell(const QString& between) const;

    bool m_handsKeyboardOn = false;
    QString m_mark;
};

/// One of a group of options (those in the same container). Set by a user or by code, it raises its click once, and
/// only when it was not set before.
class OptionButton : public Button<QRadioButton> {
    Q_OBJECT
    QINGHE_CONTROL

public:
    OptionButton(QWidget* parent, const QString& name, const QString& caption);

    bool Value() const { return isChecked(); }
    void setValue(bool value);
};

/// A tick; every change raises the click, whoever made it.
class CheckBox : public Button<QCheckBox> {
    Q_OBJECT
    QINGHE_CONTROL

public:
    CheckBox(QWidget* parent, const QString& name, const QString& caption);

    bool Value() const { return isChecked(); }
    void setValue(bool value);

    Event<int> KeyPress; ///< of Enter (13) alone, for which a tick itself has no use

protected:
    void keyPressEvent(QKeyEvent*) override;
};

} // namespace qinghe
