#include "controls/grid_changes.h"

#include "controls/grid_model.h"

namespace qinghe {

void GridChanges::begin(int records) {
    m_watching = true;
    m_records = records;
    m_lost = 0;
    m_writtenOver.clear();
}

void GridChanges::rest() {
    m_watching = false;
    m_writtenOver.clear();
}

void GridChanges::writing(int row, int col, const QString& text) {
    if (!m_watching || row < 1 || row > shownRecords())
        return; // a row without a record differs as it is
    const auto known = m_writtenOver.find({row, col});
    if (known == m_writtenOver.end()) {
        if (const QString before = m_texts.cell(row, col); before != text)
            m_writtenOver.emplace(std::pair(row, col), before);
    } else if (known->second == text) {
        m_writtenOver.erase(known);
    }
}

void GridChanges::rowRemoved(int row) {
    if (!m_watching || row > shownRecords())
        return;
    ++m_lost;
    std::map<std::pair<int, int>, QString> moved;
    for (auto& [cell, text] : m_writtenOver)
        if (cell.first != row)
            moved.emplace(std::pair(cell.first - (cell.first > row), cell.second), std::move(text));
    m_writtenOver = std::move(moved);
}

void GridChanges::recordDeleted() {
    --m_records;
    --m_lost;
}

bool GridChanges::any() const {
    if (!m_watching)
        return false;
    if (m_records == 0)
        return !showsBlankRow();
    return m_lost != 0 || m_texts.rows() - 1 != m_records || !m_writtenOver.empty();
}

bool GridChanges::showsBlankRow() const {
    if (m_texts.rows() != 2)
        return false;
    for (int col = 1; col < m_texts.cols(); ++col)
        if (!m_texts.isEmpty(1, col))
            return false;
    return true;
}

} // namespace qinghe
