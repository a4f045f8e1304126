#pragma once

#include "program.h"

namespace whole {

/// What everybody in these stories does the same way.

/// Signs in with the remembered name and password, which takes one click, and waits until the main window
/// has the keyboard.
void signIn(Program& program);
/// Ends the program by the cross of the main window.
void endByCross(Program& program);
/// Sees the message with this text and presses the button.
void answer(Program& program, const std::string& text, const std::string& button = "确定");

} // namespace whole
