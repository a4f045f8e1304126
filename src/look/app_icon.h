#pragma once

#include <QIcon>
#include <QRectF>

class QPainter;

namespace qinghe {

/// The program's icon: a ledger page from which a seedling grows. Under 28 device pixels it is drawn bolder and without
/// the page's rules.
void paintAppIcon(QPainter& painter, const QRectF& room);

/// The icon in 16, 24, 32, 48, 64 and 256 px.
QIcon appIcon();

} // namespace qinghe
