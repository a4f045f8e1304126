#include "platform/controls.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTextBoundaryFinder>

#include <utility>

namespace qinghe {

namespace {

constexpr int NoKey = -1;

/// The code of a key as KeyPress tells it; keys that enter nothing (arrows, Delete, Ctrl with a letter) have none.
int keyCode(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return 13;
    case Qt::Key_Escape:
        return 27;
    case Qt::Key_Backspace:
        return 8;
    default:
        break;
    }
    const QString text = event.text();
    const bool command = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    if (text.isEmpty() || command || !text.front().isPrint())
        return NoKey;
    return text.front().unicode();
}

/// The characters of a committed text as a person counts them.
QStringList characters(const QString& text) {
    QStringList parts;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    for (qsizetype from = 0, to = finder.toNextBoundary(); to != -1; from = to, to = finder.toNextBoundary())
        parts << text.mid(from, to - from);
    return parts;
}

} // namespace

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
    const int code = keyCode(*event);
    if (code == NoKey) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    KeyPress.fromQt(code);
    // Enter and Esc are the handlers' alone; other keys go to the box as it stands after the handler.
    if (code != 13 && code != 27 && isEnabled())
        QLineEdit::keyPressEvent(event);
    event->accept();
}

void TextBox::inputMethodEvent(QInputMethodEvent* event) {
    for (const QString& character : characters(event->commitString()))
        KeyPress.fromQt(character.front().unicode());
    QLineEdit::inputMethodEvent(event);
}

} // namespace qinghe
