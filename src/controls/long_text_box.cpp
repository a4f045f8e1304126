#include "controls/long_text_box.h"

#include <QTextBlock>
#include <QTextCursor>

#include <utility>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype SurelyScrolled = 10'000; ///< characters that no box can show at once

} // namespace

LongTextBox::LongTextBox(QWidget* parent, const QString& name) : TypedBox(parent, name) {
    setTabChangesFocus(true);
}

QString LongTextBox::Text() const {
    // toPlainText would turn no-break blanks into blanks.
    QStringList lines;
    for (QTextBlock block = document()->firstBlock(); block.isValid(); block = block.next())
        lines << block.text().replace(QChar::LineSeparator, u"\r\n"_s);
    return lines.join(u"\r\n"_s);
}

void LongTextBox::setBoxText(const QString& text) {
    // A scroll bar that comes when the text is laid out makes its lines shorter: all would be laid out twice.
    setVerticalScrollBarPolicy(text.size() > SurelyScrolled ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAsNeeded);
    replaceText(text);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
}

void LongTextBox::replaceText(const QString& text) {
    if (!isTyped() && !document()->isUndoAvailable())
        return setPlainText(text);
    QTextCursor whole(document());
    whole.select(QTextCursor::Document);
    whole.insertText(text);
    moveCursor(QTextCursor::Start);
    document()->setModified(false);
}

void LongTextBox::forgetTyped() {
    document()->clearUndoRedoStacks();
    document()->setModified(false);
}

void LongTextBox::press(int code) {
    const int before = document()->revision();
    KeyPress.fromQt(code);
    m_pressChangedText = document()->revision() != before;
}

void LongTextBox::enter(const std::function<void()>& key) {
    QTextCursor step(document());
    const bool joins = std::exchange(m_pressChangedText, false) && document()->isUndoAvailable();
    if (joins)
        step.joinPreviousEditBlock();
    key();
    if (joins)
        step.endEditBlock();
}

void LongTextBox::keyPressEvent(QKeyEvent* event) {
    const int code = key_presses::codeOf(*event);
    if (code != key_presses::None && code != key_presses::Escape)
        press(code);
    enter([&] { QPlainTextEdit::keyPressEvent(event); });
}

void LongTextBox::inputMethodEvent(QInputMethodEvent* event) {
    key_presses::enterOneByOne(
        *this, *event, [this](int code) { press(code); },
        [this](QInputMethodEvent& part) { enter([&] { QPlainTextEdit::inputMethodEvent(&part); }); });
}

} // namespace qinghe
