#include "controls/controls.h"
#include "controls/key_presses.h"

#include <QMouseEvent>

#include <utility>

namespace qinghe {

TextBox::TextBox(QWidget* parent, const QString& name) : QLineEdit(parent), Placed(this) {
    setObjectName(name);
    setContextMenuPolicy(Qt::NoContextMenu);
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

void TextBox::mousePressEvent(QMouseEvent* event) {
    m_pressed = event->button() == Qt::LeftButton;
    pressBegan();
    QLineEdit::mousePressEvent(event);
    event->accept();
}

void TextBox::mouseReleaseEvent(QMouseEvent* event) {
    QLineEdit::mouseReleaseEvent(event);
    event->accept();
    if (std::exchange(m_pressed, false) && rect().contains(event->position().toPoint()))
        Click.fromQt();
}

void TextBox::mouseDoubleClickEvent(QMouseEvent* event) {
    if (pressBeganHere())
        QLineEdit::mouseDoubleClickEvent(event);
    event->accept();
}

void TextBox::keyPressEvent(QKeyEvent* event) {
    const int code = key_presses::codeOf(*event);
    if (code == key_presses::None) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    KeyPress.fromQt(code);
    // Enter and Esc are the handlers' alone; other keys go to the box as it stands after the handler.
    if (code != key_presses::Enter && code != key_presses::Escape && isEnabled())
        QLineEdit::keyPressEvent(event);
    event->accept();
}

void TextBox::inputMethodEvent(QInputMethodEvent* event) {
    key_presses::enterOneByOne(
        *this, *event, [this](int code) { KeyPress.fromQt(code); },
        [this](QInputMethodEvent& part) { QLineEdit::inputMethodEvent(&part); });
}

} // namespace qinghe
