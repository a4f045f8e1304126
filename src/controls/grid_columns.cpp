#include "controls/grid_columns.h"

#include "controls/twips.h"

#include <algorithm>
#include <numeric>

namespace qinghe {

namespace {

constexpr double UsualWidth = 960; ///< twips

} // namespace

void GridColumns::resize(int cols) {
    m_widths.resize(static_cast<std::size_t>(cols), UsualWidth);
}

double GridColumns::left(int col) const {
    return std::accumulate(m_widths.begin(), m_widths.begin() + col, 0.0);
}

int GridColumns::pixels(int col) const {
    const double begin = left(col);
    return pixelEdge(begin + width(col)) - pixelEdge(begin);
}

int GridColumns::lastPixels(int room) const {
    const int last = static_cast<int>(m_widths.size()) - 1, told = pixels(last);
    const int excess = std::max(0, pixelEdge(left(last + 1)) - room);
    return excess <= told / 4 ? told - excess : told;
}

} // namespace qinghe
