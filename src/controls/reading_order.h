#pragma once

#include <vector>

class QWidget;

namespace qinghe {

/// The controls that lie on a container itself, also those that are hidden at present, as they are read by their
/// places: rows from top to bottom, each from left to right. What has its middle beside a row's first control stands in
/// that row. The box over a grid's cells comes behind its grid, wherever it lies.
std::vector<QWidget*> inReadingOrder(const QWidget& container);

} // namespace qinghe
