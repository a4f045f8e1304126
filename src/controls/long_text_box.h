#pragma once

#include "controls/typed_box.h"

#include <QPlainTextEdit>

namespace qinghe {

/// A text box of many lines, painted as writing paper. Tab leaves it. Pasted text presses no key, and nor does Esc.
class LongTextBox : public TypedBox<QPlainTextEdit> {
    Q_OBJECT
    QINGHE_CONTROL

public:
    LongTextBox(QWidget* parent, const QString& name);

    /// The text as it was typed, lines divided by CR LF; blanks of every kind stay what they are.
    QString Text() const;
    void setBoxText(const QString& text);

protected:
    void keyPressEvent(QKeyEvent*) override;
};

} // namespace qinghe
