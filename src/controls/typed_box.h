#pragma once

#include "controls/control.h"
#include "controls/key_presses.h"
#include "controls/text_menu.h"

namespace qinghe {

/// The scheme of text boxes: KeyPress comes before the box acts on the key, with a character's code, 13 for Enter, 8
/// for Backspace; text committed by an input method comes as one key press a character, each before it enters. A right
/// click offers what can be done with the text.
template<class Box>
class TypedBox : public WithClicks<Control<Box>> {
public:
    TypedBox(QWidget* parent, const QString& name) : WithClicks<Control<Box>>(parent, name) { offerTextMenu(*this); }

    Event<int> KeyPress;

protected:
    void inputMethodEvent(QInputMethodEvent* event) override {
        key_presses::enterOneByOne(
            *this, *event, [this](int code) { KeyPress.fromQt(code); },
            [this](QInputMethodEvent& part) { Box::inputMethodEvent(&part); });
    }
};

} // namespace qinghe
