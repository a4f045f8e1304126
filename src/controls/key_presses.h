#pragma once

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QString>
#include <QStringList>
#include <QWidget>

/// How text boxes tell their key presses.
namespace qinghe::key_presses {

inline constexpr int None = -1, Backspace = 8, Enter = 13, Escape = 27;

/// Whether a key (Qt::Key) is either of the two Enters.
bool isEnter(int key);

/// The code of a key: a character's own (of two units the first), 13 for Enter, 8 for Backspace, 27 for Esc. Keys that
/// enter nothing (arrows, Delete, Ctrl with a letter) have none.
int codeOf(const QKeyEvent& event);

/// The characters of a text as a person counts them: an emoji is one, and so is a line break of CR LF.
QStringList characters(const QString& text);
qsizetype characterCount(const QString& text);

/// A text that an input method commits enters one character at a time: `press(code)`, then `enter(event)` with that
/// character alone. What is still being composed goes with the last one. Either may close the box, which takes nothing
/// more then.
template<class Press, class Enter>
void enterOneByOne(const QWidget& box, QInputMethodEvent& event, Press press, Enter enter) {
    const QStringList parts = characters(event.commitString());
    if (parts.isEmpty())
        return enter(event);
    for (qsizetype i = 0; i < parts.size() && box.isEnabled(); ++i) {
        const bool first = i == 0, last = i == parts.size() - 1;
        QInputMethodEvent one(last ? event.preeditString() : QString(),
                              last ? event.attributes() : QList<QInputMethodEvent::Attribute>());
        one.setCommitString(parts[i], first ? event.replacementStart() : 0, first ? event.replacementLength() : 0);
        press(parts[i].front().unicode());
        if (box.isEnabled())
            enter(one);
    }
}

} // namespace qinghe::key_presses
