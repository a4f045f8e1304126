#include "controls/key_presses.h"

#include <QTextBoundaryFinder>

namespace qinghe::key_presses {

bool isEnter(int key) {
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

int codeOf(const QKeyEvent& event) {
    if (isEnter(event.key()))
        return Enter;
    switch (event.key()) {
    case Qt::Key_Escape:
        return Escape;
    case Qt::Key_Backspace:
        return Backspace;
    default:
        break;
    }
    const QString text = event.text();
    const bool command = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    if (text.isEmpty() || command || !QChar::isPrint(text.toUcs4().front())) // an emoji is two units of the text
        return None;
    return text.front().unicode();
}

QStringList characters(const QString& text) {
    QStringList parts;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    for (qsizetype from = 0, to = finder.toNextBoundary(); to != -1; from = to, to = finder.toNextBoundary())
        parts << text.mid(from, to - from);
    return parts;
}

qsizetype characterCount(const QString& text) {
    qsizetype count = 0;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    while (finder.toNextBoundary() != -1)
        ++count;
    return count;
}

} // namespace qinghe::key_presses
