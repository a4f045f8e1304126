#pragma once

#include "controls/event.h"
#include "controls/placed.h"

#include <QCheckBox>
#include <QElapsedTimer>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>

/// The simple controls of a form. Each is Qt's own widget, reached under its name (objectName), with its place in twips
/// and the events that handlers are bound to. A press belongs to the control under the pointer and never reaches its
/// container; a disabled control hands it to its container. A click is a press and a release on the same control.
namespace qinghe {

class Label : public QLabel, public Placed {
    Q_OBJECT
    QINGHE_CONTROL

public:
    Label(QWidget* parent, const QString& name, const QString& caption = {});

    QString Caption() const { return text(); }
    void setCaption(const QString& caption);

    Event<> Click;
    Event<> DblClick;
    Event<> MouseMove;

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void mouseDoubleClickEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;

private:
    bool m_pressed = false;
};

/// A picture that fills its control, or a glyph of the set.
class Image : public Label {
    Q_OBJECT

public:
    Image(QWidget* parent, const QString& name);

    const QImage& picture() const { return m_picture; }
    void setPicture(QImage picture);

protected:
    void paintEvent(QPaintEvent*) override;

private:
    QImage m_picture;
};

/// A command button; hovering is marked by its BackColor.
class CommandButton : public QPushButton, public Placed {
    Q_OBJECT
    QINGHE_CONTROL

public:
    CommandButton(QWidget* parent, const QString& name, const QString& caption);

    Event<> Click;
    Event<> MouseMove;

protected:
    bool event(QEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void keyPressEvent(QKeyEvent*) override;
};

/// One of a group of options (those in the same container). Set by a user or by code, it raises its click once, and
/// only when it was not set before.
class OptionButton : public QRadioButton, public Placed {
    Q_OBJECT
    QINGHE_CONTROL

public:
    OptionButton(QWidget* parent, const QString& name, const QString& caption);

    bool Value() const { return isChecked(); }
    void setValue(bool value);

    Event<> Click;
    Event<> MouseMove;

protected:
    bool event(QEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
};

/// A tick; every change raises the click, whoever made it.
class CheckBox : public QCheckBox, public Placed {
    Q_OBJECT
    QINGHE_CONTROL

public:
    CheckBox(QWidget* parent, const QString& name, const QString& caption);

    bool Value() const { return isChecked(); }
    void setValue(bool value);

    Event<> Click;
    Event<> MouseMove;

protected:
    bool event(QEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
};

/// A one-line text box. KeyPress comes before the box acts on the key: a character's code, 13 for Enter, 8 for
/// Backspace, 27 for Esc; text committed by an input method comes as one key press a character. Change comes with every
/// change of the text and with every assignment from code, also of an equal text.
class TextBox : public QLineEdit, public Placed {
    Q_OBJECT
    QINGHE_CONTROL

public:
    TextBox(QWidget* parent, const QString& name);

    QString Text() const { return text(); }
    void setBoxText(const QString& text);
    /// Gives the box the keyboard, when it is enabled and on view.
    void takeFocus();

    Event<> Click;
    Event<> Change;
    Event<int> KeyPress;

protected:
    void mousePressEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void mouseDoubleClickEvent(QMouseEvent*) override;
    void keyPressEvent(QKeyEvent*) override;
    void inputMethodEvent(QInputMethodEvent*) override;

private:
    bool m_pressed = false;
};

class Frame : public QGroupBox, public Placed {
    Q_OBJECT
    QINGHE_CONTROL

public:
    Frame(QWidget* parent, const QString& name, const QString& caption = {});

    QString Caption() const { return title(); }
    void setCaption(const QString& caption) { setTitle(caption); }

    Event<> Click;
    Event<> MouseMove;

protected:
    void mousePressEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void mouseDoubleClickEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;

private:
    bool m_pressed = false;
};

/// Shows how far a long work has come while no events are processed: a new value is painted at once, though never more
/// than 60 times a second.
class ProgressBar : public QProgressBar, public Placed {
    Q_OBJECT
    QINGHE_CONTROL

public:
    ProgressBar(QWidget* parent, const QString& name);

    /// Both count in a unit of the owner's, from 0 on; what Qt's own bar cannot count goes into it in larger steps.
    void setMax(qint64 max);
    void setValue(qint64 value);

private:
    qint64 m_step = 1; ///< of the owner's units
    QElapsedTimer m_sincePainted;
};

} // namespace qinghe
