#pragma once

#include "controls/controls.h"
#include "controls/form.h"

#include <vector>

namespace qinghe {

/// Over such a control the hand, nothing else.
template<class Control>
void showHandOver(Control* control) {
    control->MouseMove = [control] { control->setHandCursor(); };
}

/// Over the button the hand and light grey.
void markHovered(CommandButton& button);
/// The grey ones of these buttons become white again.
void unmarkHovered(const std::vector<CommandButton*>& buttons);
/// Both for the buttons of a frame: grey under the pointer, white when it is on the bare frame.
void markHovered(Frame& frame, const std::vector<CommandButton*>& buttons);
/// Both for the buttons that stand on a form itself: white when the pointer is on the bare form or one of these frames.
void markHovered(Form& form, const std::vector<CommandButton*>& buttons, const std::vector<Frame*>& frames = {});

} // namespace qinghe
