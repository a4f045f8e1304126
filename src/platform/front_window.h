#pragma once

class QDialog;
class QMessageBox;
class QWidget;

namespace qinghe {

/// The window that message boxes and the file chooser stand over: the active one, or the last that was and is on view;
/// nullptr when there is none.
QWidget* windowInFront();

/// A notice stays over all windows, and cannot be used while a dialog waits for its answer: such a dialog comes over
/// it. To be called before the dialog is shown.
void bringOverNotices(QDialog& dialog);

/// Boxes over this part's window ask about the part, and stand below it, or above where there is no room.
void keepInSight(QWidget& part);

/// Puts a box that is filled and not shown yet where it leaves such a part of its window in sight; any other box stays
/// where the desktop puts it.
void standClear(QMessageBox& box);

} // namespace qinghe
