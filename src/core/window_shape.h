#pragma once

#include "controls/form.h"

namespace qinghe {

/// Rounds the two upper corners of the window by five pixels; the lower ones stay square.
void shapeMainWindow(Form& form);

/// The sixteen points of that shape for a window of `width` by `height` pixels. The right and lower edges use the width
/// and height themselves.
QPolygon mainWindowPolygon(int width, int height);

} // namespace qinghe
