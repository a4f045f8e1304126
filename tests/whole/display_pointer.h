#pragma once

#include <QPoint>

/// The pointer of the display: what it does reaches the programs from the display's server and the window manager, in
/// their own time and with all that is still under way, while the hands of Program act at once and inside it. Places
/// are pixels of the screen.
namespace whole::display_pointer {

enum class Button { Left = 1, Middle = 2, Right = 3 };

void click(QPoint place, Button button = Button::Left);
void doubleClick(QPoint place);
/// Presses the left button, moves on by `step` so many times, faster than windows follow, and releases.
void drag(QPoint from, QPoint step, int steps);

} // namespace whole::display_pointer
