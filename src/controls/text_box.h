#pragma once

#include "controls/typed_box.h"

#include <QLineEdit>

namespace qinghe {

/// A one-line text box. Esc is a key press too (27). Change comes with every change of the text and with every
/// assignment from code, also of an equal text.
class TextBox : public TypedBox<QLineEdit> {
    Q_OBJECT
    QINGHE_CONTROL

public:
    TextBox(QWidget* parent, const QString& name);

    QString Text() const { return text(); }
    void setBoxText(const QString& text);
    /// Gives the box the keyboard, when it is enabled and on view.
    void takeFocus();

    Event<> Change;

protected:
    void mouseDoubleClickEvent(QMouseEvent*) override;
    void keyPressEvent(QKeyEvent*) override;
};

} // namespace qinghe
