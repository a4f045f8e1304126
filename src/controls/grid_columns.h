#pragma once

#include <vector>

namespace qinghe {

/// The columns of a grid, the marker column (0) included: how wide each is told to be, in twips, and the pixels that
/// follow from it. It checks nothing: columns must be in range.
class GridColumns {
public:
    GridColumns() { resize(2); }

    /// Columns that come anew have the usual width.
    void resize(int cols);

    double width(int col) const { return m_widths[static_cast<std::size_t>(col)]; }
    void setWidth(int col, double twips) { m_widths[static_cast<std::size_t>(col)] = twips; }
    /// Where a column begins as long as nothing is scrolled; one behind the last: where that ends. Twips.
    double left(int col) const;

    /// How wide a column is drawn, from edge to edge, so that neighbours meet without a gap.
    int pixels(int col) const;
    /// The same for the last one, which gives way where the columns reach beyond `room` (pixels) by no more than a
    /// quarter of it.
    int lastPixels(int room) const;

private:
    std::vector<double> m_widths;
};

} // namespace qinghe
