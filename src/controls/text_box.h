#pragma once

#include "controls/typed_box.h"

#include <QLineEdit>

namespace qinghe {

/// A one-line text box. Esc is a key press too (27), and its container's where nobody listens here. Change comes with
/// every change of the text and with every assignment from code, also of an equal text.
class TextBox : public TypedBox<QLineEdit> {
    Q_OBJECT
    QINGHE_CONTROL

public:
    TextBox(QWidget* parent, const QString& name);

    QString Text() const { return text(); }
    void setBoxText(const QString& text);
    /// Gives the box the keyboard, when it is enabled and on view.
    void takeFocus();
    /// Selects the whole text, so that typing writes over it; not that of a disabled box.
    void selectText();

    /// A click that brings the box the keyboard selects its text.
    void setSelectsWhenClicked() { m_selectsWhenClicked = true; }
    /// Enter does in this box what a button does: one that is held presses once.
    void setEnterPressesOnce() { m_enterPressesOnce = true; }

    Event<> Change;

protected:
    void mouseReleaseEvent(QMouseEvent*) override;
    void mouseDoubleClickEvent(QMouseEvent*) override;
    void keyPressEvent(QKeyEvent*) override;
    void focusInEvent(QFocusEvent*) override;

private:
    bool m_selectsWhenClicked = false;
    bool m_enterPressesOnce = false;
    bool m_gotByClick = false; ///< the keyboard, by the press that is still down
};

} // namespace qinghe
