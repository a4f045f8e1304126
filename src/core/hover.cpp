#include "core/hover.h"

namespace qinghe {

namespace {
constexpr quint32 Grey = 0xE0E0E0, White = 0xFFFFFF;
}

void markHovered(CommandButton& button) {
    button.MouseMove = [&button] {
        button.setHandCursor();
        button.setBackColor(Grey);
    };
}

void unmarkHovered(const std::vector<CommandButton*>& buttons) {
    for (CommandButton* button : buttons)
        if (button->BackColor() == Grey)
            button->setBackColor(White);
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
