#include "controls/long_text_box.h"

#include "controls/key_presses.h"

#include <QMouseEvent>
#include <QTextBlock>

#include <utility>

namespace qinghe {

namespace {

constexpr qsizetype SurelyScrolled = 10'000; ///< characters that no box can show at once

} // namespace

LongTextBox::LongTextBox(QWidget* parent, const QString& name) : QPlainTextEdit(parent), Placed(this) {
    setObjectName(name);
    setContextMenuPolicy(Qt::NoContextMenu);
    setTabChangesFocus(true);
}

QString LongTextBox::Text() const {
    // toPlainText would turn no-break blanks into blanks.
    QStringList lines;
    for (QTextBlock block = document()->firstBlock(); block.isValid(); block = block.next())
        lines << block.text().replace(QChar::LineSeparator, QStringLiteral("\r\n"));
    return lines.join(QStringLiteral("\r\n"));
}

void LongTextBox::setBoxText(const QString& text) {
    // A scroll bar that comes when the text is laid out makes its lines shorter: all would be laid out twice.
    setVerticalScrollBarPolicy(text.size() > SurelyScrolled ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAsNeeded);
    setPlainText(text);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
}

void LongTextBox::keyPressEvent(QKeyEvent* event) {
    const int code = key_presses::codeOf(*event);
    if (code != key_presses::None && code != key_presses::Escape)
        KeyPress.fromQt(code);
    QPlainTextEdit::keyPressEvent(event);
}

void LongTextBox::inputMethodEvent(QInputMethodEvent* event) {
    key_presses::enterOneByOne(
        *this, *event, [this](int code) { KeyPress.fromQt(code); },
        [this](QInputMethodEvent& part) { QPlainTextEdit::inputMethodEvent(&part); });
}

void LongTextBox::mousePressEvent(QMouseEvent* event) {
    m_pressed = event->button() == Qt::LeftButton;
    pressBegan();
    QPlainTextEdit::mousePressEvent(event);
    event->accept();
}

void LongTextBox::mouseReleaseEvent(QMouseEvent* event) {
    QPlainTextEdit::mouseReleaseEvent(event);
    event->accept();
    if (std::exchange(m_pressed, false) && rect().contains(event->position().toPoint()))
        Click.fromQt();
}

} // namespace qinghe
