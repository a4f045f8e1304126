#pragma once

#include "core/cell_editing.h"
#include "core/list_records.h"
#include "core/row_buttons.h"

#include <span>

namespace qinghe {

class RescuedTexts;

/// One of the two lists on the page of the categories: a frame that holds a grid, the text box over its cells, and the
/// buttons that add, delete and save. The lists of majors and of minors differ in a table of traits; what their buttons
/// do differently stands in the page.
///
/// Typing, adding and deleting change the grid alone. The save deletes every record of the set in hand, then adds one a
/// grid row.
class CategoryList {
public:
    struct Traits {
        QStringView frame;
        QStringView caption;
        double left;      ///< of the frame, twips
        double gridWidth; ///< twips
        QStringView grid;
        QStringView editor;
        RowButtonTraits buttons;
    };

    CategoryList(Frame& page, Shared& shared, const Traits& traits);

    MSFlexGrid* const grid;
    CellEditing editing;
    RowButtons buttons;

    /// Grid and buttons.
    void setUsable(bool usable);
    /// Whether one of its controls has it.
    bool hasKeyboard() const;

    /// Columns and their captions, two rows.
    void layOut(std::span<const ListColumn> columns);
    /// One grid row a record, from the current row on. NULL and empty fields leave their cells as they are; an empty
    /// one blanks the cell of the row that `rowForEmptyText()` tells instead, where that is told.
    void fill(Recordset& records, const std::function<int()>& rowForEmptyText = {});

    void goToLastRow();
    /// Appends a row below the current one and goes there, or says that there is a blank one already.
    void addRow();
    /// Asks before a row is deleted, with the box closed.
    bool isDeletionWanted();
    /// Takes the current row out, unless it is the only one; tells whether it is gone.
    bool removeRow();
    void save(Recordset& records);
    /// Tells what the list shows and the book does not hold.
    void rescue(RescuedTexts& texts, const LoadedSet& loaded) const;

private:
    void entered();
    /// Notes in emptyRowFlag when the row holds text, and tells whether the flag is set, by this row or ever before.
    bool filledOrMarked(int row);

    Shared& m_shared;
    std::span<const ListColumn> m_columns;
    KeptValues m_kept; ///< of the list as it was filled
};

} // namespace qinghe
