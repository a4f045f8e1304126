#include "core/hover.h"

#include "core/ink.h"

namespace qinghe {

void markHovered(CommandButton& button) {
    button.MouseMove = [&button] {
        button.setHandCursor();
        button.setBackColor(ink::HoverGrey);
    };
}

void unmarkHovered(const std::vector<CommandButton*>& buttons) {
    for (CommandButton* button : buttons)
        if (button->BackColor() == ink::HoverGrey)
            button->setBackColor(ink::White);
}

void markHovered(Form& form, const std::vector<CommandButton*>& buttons, const std::vector<Frame*>& frames) {
    for (CommandButton* button : buttons)
        markHovered(*button);
    form.MouseMove = [buttons](double, double) { unmarkHovered(buttons); };
    for (Frame* frame : frames)
        frame->MouseMove = [buttons] { unmarkHovered(buttons); };
}

void markHovered(Frame& frame, const std::vector<CommandButton*>& buttons) {
    for (CommandButton* button : buttons)
        markHovered(*button);
    frame.MouseMove = [buttons] { unmarkHovered(buttons); };
}

} // namespace qinghe
