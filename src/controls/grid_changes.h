#pragma once

#include <QString>

#include <map>
#include <utility>

namespace qinghe {

class GridModel;

/// What of a list differs from the records that it was filled from. Costs the texts that were written over and no walk
/// through the list: a cell counts until its old text stands in it again, a row as long as its record and it are not
/// both there. A list without records shows one blank row.
class GridChanges {
public:
    explicit GridChanges(const GridModel& texts) : m_texts(texts) {}

    /// The list shows so many records, as they are.
    void begin(int records);
    /// Nothing is compared until then: the list is being filled, or shows something else.
    void rest();

    /// A cell is about to be written.
    void writing(int row, int col, const QString& text);
    void rowRemoved(int row);
    /// A record of the list is gone from its table. Its row goes by itself, or stays and differs.
    void recordDeleted();

    bool any() const;

private:
    int shownRecords() const { return m_records - m_lost; } ///< rows that came from records
    bool showsBlankRow() const;

    const GridModel& m_texts;
    bool m_watching = false;
    int m_records = 0;
    int m_lost = 0; ///< rows that went without their records, less records that went without their rows
    std::map<std::pair<int, int>, QString> m_writtenOver; ///< by row and column
};

} // namespace qinghe
