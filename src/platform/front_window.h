#pragma once

class QDialog;
class QWidget;

namespace qinghe {

/// The window that message boxes and the file chooser stand over: the active one, or the last that was and is on view;
/// nullptr when there is none.
QWidget* windowInFront();

/// A notice stays over all windows, and cannot be used while a dialog waits for its answer: such a dialog comes over
/// it. To be called before the dialog is shown.
void bringOverNotices(QDialog& dialog);

} // namespace qinghe
