#pragma once

#include "controls/typed_box.h"

#include <QPlainTextEdit>

#include <functional>

namespace qinghe {

/// A text box of many lines, painted as writing paper. Tab leaves it. Pasted text presses no key, and nor does Esc.
/// What was typed and goes by an assignment comes back with Ctrl+Z.
class LongTextBox : public TypedBox<QPlainTextEdit> {
    Q_OBJECT
    QINGHE_CONTROL

public:
    LongTextBox(QWidget* parent, const QString& name);

    /// The text as it was typed, lines divided by CR LF; blanks of every kind stay what they are.
    QString Text() const;
    void setBoxText(const QString& text);
    /// What was typed is kept elsewhere, or must not come back: Ctrl+Z ends here.
    void forgetTyped();

protected:
    void keyPressEvent(QKeyEvent*) override;
    void inputMethodEvent(QInputMethodEvent*) override;

private:
    /// Since the text was assigned last, or what was typed forgotten.
    bool isTyped() const { return document()->isModified(); }
    void replaceText(const QString& text);
    void press(int code);
    /// A key enters: together with what its press did to the text it is one step for Ctrl+Z.
    void enter(const std::function<void()>& key);

    bool m_pressChangedText = false;
};

} // namespace qinghe
