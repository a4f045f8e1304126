#pragma once

#include <QPointF>

class QPainter;

namespace qinghe {

/// A seedling of three blades that grows `height` upwards from its foot.
void paintSeedling(QPainter& painter, const QPointF& foot, double height);

/// A row of seedlings along a line, between `left` and `right`; their heights swing between `low` and `high`, the same
/// at every painting.
struct SeedlingRow {
    double left, right, foot;
    double low, high;
    double pitch = 19.5;
    double opacity = 1;
};
void paintSeedlings(QPainter& painter, const SeedlingRow& row);

} // namespace qinghe
