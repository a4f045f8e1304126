#include "controls/text_box.h"

#include <utility>

namespace qinghe {

TextBox::TextBox(QWidget* parent, const QString& name) : TypedBox(parent, name) {
    connect(this, &QLineEdit::textChanged, this, [this] { Change.fromQt(); });
}

void TextBox::setBoxText(const QString& text) {
    {
        const QSignalBlocker quiet(this);
        setText(text);
    }
    Change.raise();
}

void TextBox::takeFocus() {
    if (isEnabled() && isVisible())
        setFocus(Qt::OtherFocusReason);
}

void TextBox::selectText() {
    if (isEnabled())
        selectAll();
}

void TextBox::focusInEvent(QFocusEvent* event) {
    TypedBox::focusInEvent(event);
    m_gotByClick = event->reason() == Qt::MouseFocusReason;
}

void TextBox::mouseReleaseEvent(QMouseEvent* event) {
    TypedBox::mouseReleaseEvent(event);
    // What the press has been drawn over is selected already.
    if (std::exchange(m_gotByClick, false) && m_selectsWhenClicked && !hasSelectedText())
        selectText();
}

void TextBox::mouseDoubleClickEvent(QMouseEvent* event) {
    if (m_press.isLast())
        QLineEdit::mouseDoubleClickEvent(event);
    event->accept();
}

void TextBox::keyPressEvent(QKeyEvent* event) {
    const int code = key_presses::codeOf(*event);
    if (code == key_presses::None) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    if (code == key_presses::Enter && m_enterPressesOnce && event->isAutoRepeat())
        return event->accept();
    if (code == key_presses::Escape && !KeyPress)
        return event->ignore();
    KeyPress.fromQt(code);
    // Enter and Esc are the handlers' alone; other keys go to the box as it stands after the handler.
    if (code != key_presses::Enter && code != key_presses::Escape && isEnabled())
        QLineEdit::keyPressEvent(event);
    event->accept();
}

} // namespace qinghe
