#include "controls/long_text_box.h"

#include <QTextBlock>

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
    setPlainText(text);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
}

void LongTextBox::keyPressEvent(QKeyEvent* event) {
    const int code = key_presses::codeOf(*event);
    if (code != key_presses::None && code != key_presses::Escape)
        KeyPress.fromQt(code);
    QPlainTextEdit::keyPressEvent(event);
}

} // namespace qinghe
