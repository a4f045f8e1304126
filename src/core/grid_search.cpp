#include "core/grid_search.h"

#include <QStringMatcher>

namespace qinghe {

std::vector<GridCell> cellsThatHold(const MSFlexGrid& grid, const QString& words) {
    std::vector<GridCell> cells;
    if (words.isEmpty())
        return cells;
    const QStringMatcher matcher(words, Qt::CaseInsensitive);
    for (int row = 1; row < grid.Rows(); ++row) {
        const QStringList texts = grid.rowTexts(row);
        for (int col = 1; col < grid.Cols(); ++col)
            if (matcher.indexIn(texts[col]) >= 0)
                cells.push_back({row, col});
    }
    return cells;
}

} // namespace qinghe
