#pragma once

class QWidget;

namespace qinghe {

/// The window that message boxes and the file chooser stand over: the active one, or the last that was and is on view;
/// nullptr when there is none.
QWidget* windowInFront();

} // namespace qinghe
