#pragma once

class QWidget;

namespace qinghe {

/// The window that message boxes and the file chooser stand over; nullptr when none is active.
QWidget* windowInFront();

} // namespace qinghe
