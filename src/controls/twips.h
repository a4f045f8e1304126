#pragma once

#include <QRect>

#include <cmath>

namespace qinghe {

/// Twips to a pixel of the desktop's own unit (at 100 %), across and down. Scaling to a denser screen is the desktop's.
inline constexpr double TwipsPerPixel = 15.0;

/// The pixel edge that lies at `twips`. Edges are rounded, never widths, so that neighbours meet without gap.
inline int pixelEdge(double twips) {
    return static_cast<int>(std::lround(twips / TwipsPerPixel));
}

inline QRect pixelRect(double left, double top, double width, double height) {
    const QPoint topLeft(pixelEdge(left), pixelEdge(top));
    return {topLeft, QSize(pixelEdge(left + width) - topLeft.x(), pixelEdge(top + height) - topLeft.y())};
}

} // namespace qinghe
