#include "controls/ground_words.h"

#include "controls/ms_flex_grid.h"

namespace qinghe {

void GroundWords::set(const QString& words, Shown shown) {
    m_words = words;
    m_shown = shown;
    m_grid.viewport()->update();
}

QString GroundWords::shown() const {
    return m_shown == Shown::Always || isBlank() ? m_words : QString();
}

bool GroundWords::isBlank() const {
    for (int row = 1; row < m_grid.Rows(); ++row)
        for (int col = 1; col < m_grid.Cols(); ++col)
            if (row > 1 || !m_grid.isEmpty(row, col))
                return false;
    return true;
}

} // namespace qinghe
