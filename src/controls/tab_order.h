#pragma once

#include <vector>

class QWidget;

namespace qinghe {

/// The controls in a container that the keyboard can come to, also those that are hidden at present, in reading order
/// by their places: rows from top to bottom, each from left to right, a frame's own where the frame stands. The box
/// over a grid's cells comes behind its grid, wherever it lies. Whole containers can be left out.
std::vector<QWidget*> tabStopsIn(const QWidget& container, const std::vector<const QWidget*>& without = {});

/// Gives the keyboard to the next one of these that can take it now, or to the one before, round both ends; false where
/// there is none. Of options that belong together the one in force is meant.
bool goToNextStop(QWidget& window, const std::vector<QWidget*>& stops, bool next);

} // namespace qinghe
