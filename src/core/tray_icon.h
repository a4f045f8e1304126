#pragma once

#include "core/shared.h"

namespace qinghe {

/// The record of the tray icon of a window: its tip is the program's name and a NUL, padded with blanks to 64 bytes of
/// the 8-bit code page.
TrayData trayDataFor(const Form& window);

} // namespace qinghe
