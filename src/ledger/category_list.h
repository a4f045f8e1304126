#pragma once

#include "controls/cell_editor.h"
#include "core/shared.h"

#include <span>

namespace qinghe {

/// One of the two lists on the page of the categories: a frame that holds a grid, the text box over its cells, and the
/// buttons that add, delete and save. The lists of majors and of minors differ in a table of traits; what their buttons
/// do differently stands in the page.
///
/// Typing, adding and deleting change the grid alone. The save deletes every record of the set in hand, then adds one a
/// grid row.
class CategoryList {
public:
    struct Traits {
        const char16_t* frame;
        const char16_t* caption;
        double left;      ///< of the frame, twips
        double gridWidth; ///< twips
        const char16_t* grid;
        const char16_t* editor;
        const char16_t* add;    // 增加
        const char16_t* remove; // 删除
        const char16_t* save;   // 保存
        int columns;            ///< beside the marker
        int firstField;         ///< which column 1 shows; the save writes from field 0 on, wherever the fill began
    };

    CategoryList(Frame& page, Shared& shared, const Traits& traits);

    MSFlexGrid* const grid;
    CellEditor* const editor;
    CommandButton* const addButton;
    CommandButton* const removeButton;
    CommandButton* const saveButton;

    /// Grid and buttons.
    void setUsable(bool usable);

    /// Columns and their captions.
    void layOut(std::span<const char16_t* const> captions);
    /// One grid row a record, from the current row on. NULL and empty fields leave their cells as they are; an empty
    /// one blanks the cell of `rowForEmptyText` instead, if that is not NoRow.
    void fill(Recordset& records, int rowForEmptyText = NoRow);
    static constexpr int NoRow = -1;

    /// Opens the box over the current cell, with the cell's text.
    void edit();
    void hideEditor();
    /// Esc drops the box. Enter writes it back and goes on to the next column, or closes it in the last one.
    void editorKey(int key);
    /// Writes the box into the current cell, unless it is empty.
    void commitBox();

    void goToLastRow();
    /// Appends a row below the current one and goes there, or says that there is a blank one already.
    void addRow();
    /// Asks before a row is deleted, with the box closed.
    bool isDeletionWanted();
    /// Takes the current row out, unless it is the only one; tells whether it is gone.
    bool removeRow();
    void save(Recordset& records);

private:
    /// Notes in emptyRowFlag when the row holds text, and tells whether the flag is set, by this row or ever before.
    bool filledOrMarked(int row);

    const Traits& m_traits;
    Shared& m_shared;
};

} // namespace qinghe
