#pragma once

#include "controls/event.h"
#include "controls/placed.h"

#include <QPlainTextEdit>

namespace qinghe {

/// A text box of many lines, painted as writing paper. Tab leaves it. KeyPress comes before the box acts on the key: a
/// character's code, 13 for Enter, 8 for Backspace; text committed by an input method comes as one key press a
/// character, each before it enters. Pasted text presses no key.
class LongTextBox : public QPlainTextEdit, public Placed {
    Q_OBJECT
    QINGHE_CONTROL

public:
    LongTextBox(QWidget* parent, const QString& name);

    /// The text as it was typed, lines divided by CR LF; blanks of every kind stay what they are.
    QString Text() const;
    void setBoxText(const QString& text);

    Event<> Click;
    Event<int> KeyPress;

protected:
    void keyPressEvent(QKeyEvent*) override;
    void inputMethodEvent(QInputMethodEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;

private:
    bool m_pressed = false;
};

} // namespace qinghe
