#pragma once

#include <QPalette>

namespace qinghe {

/// The colours of what Qt paints by itself: texts in boxes, selections, the file chooser.
QPalette programPalette();

} // namespace qinghe
