#pragma once

#include <vector>

class QWidget;

namespace qinghe {

/// The controls that lie on a container itself, as they are read: row by row, each from the left. Controls of one row
/// need not begin at one height. A box over the cells of a grid stands behind all others, wherever it lies.
std::vector<QWidget*> inReadingOrder(const QWidget& container);

} // namespace qinghe
