#pragma once

#include "core/cell_editing.h"
#include "core/list_records.h"
#include "core/shared.h"
#include "store/loaded_set.h"

namespace qinghe {

/// What stands on the pages and is not in the book, for the file that is written when a run-time error ends the program
/// (core/last_words.h). Each page adds what is its own; what the book holds as it is shown is left out. Nothing here
/// changes a page, a record or the book.
class RescuedTexts {
public:
    explicit RescuedTexts(Shared& shared) : m_shared(shared) {}

    /// A heading and the lines under it.
    void add(const QString& heading, const QStringList& lines);
    /// A list with its captions, cells divided by tabs, so that a spreadsheet takes it too, and the text of its box
    /// that has not reached its cell. Left out where the book holds the same rows under `loaded`, as whose `fields`
    /// they are shown; a book that cannot be read any more holds nothing.
    void addList(const QString& heading, const MSFlexGrid& grid, const CellEditing& editing, const LoadedSet& loaded,
                 const std::vector<QStringView>& fields);

    const QStringList& lines() const { return m_lines; } ///< none when all that is shown is in the book

private:
    Shared& m_shared;
    QStringList m_lines;
};

} // namespace qinghe
