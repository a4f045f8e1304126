#pragma once

#include "controls/cell_editor.h"
#include "core/main_window.h"
#include "core/shared.h"

#include <span>

namespace qinghe {

/// A page that shows a table in a read-only grid under one floating text box: a click on a cell lays the box over it,
/// Enter writes its text back and moves on, Esc drops it. Nothing reaches the store but a deleted row, until the save
/// checks the grid, empties the table and writes one row a grid line. The pages of this kind differ in a table of
/// traits; what a page does beyond it stands in the page's own file.
///
/// A record has no identity but its place: grid row r is record r of the table in its own order.
class GridPage : public Page {
    Q_OBJECT

public:
    struct Column {
        const char16_t* caption;
        double width; ///< twips
    };
    struct Range {
        int first = 1, last = 0; ///< grid columns; empty by default
        bool holds(int column) const { return column >= first && column <= last; }
    };
    /// The column whose text comes from the date picker, or is typed; none when 0.
    struct DateColumn {
        int column = 0;
        int target = 0; ///< dateTarget
        bool opensOnEnter = true;
    };
    /// The columns where the box is disabled and the calculator opens.
    struct AmountColumns {
        Range onClick;
        Range onEnter;
        int target = 0; ///< calcTarget
    };
    enum class AddTests { LastRow, CurrentRow };
    enum class AddedBox { TakesCell, KeepsText };
    enum class LastRow { BlankedBelowThreeRows, BlankedWhenFirst };
    /// Where Row goes in a save.
    enum class RowInSave {
        Walks,  ///< along the check, which leaves it on a row that is refused, and along the rows as they are written
        Writes, ///< along the rows as they are written alone
        Stays,
    };

    struct Traits {
        PageTraits page;
        const char16_t* grid;
        const char16_t* editor;
        const char16_t* add;             // 增加
        const char16_t* remove;          // 删除
        const char16_t* save;            // 保存
        std::span<const Column> columns; ///< from column 1 on
        DateColumn date = {};
        AmountColumns amounts = {};
        Range shownAsAmounts = {}; ///< set on the right
        int closedColumn = 0;      ///< any change of the box here disables it
        bool addCommitsBox = false;
        AddTests addTests = AddTests::LastRow;
        AddedBox addedBox = AddedBox::TakesCell;
        LastRow lastRow = LastRow::BlankedBelowThreeRows;
        RowInSave rowInSave = RowInSave::Walks;
        bool endsInRemark = true; ///< which a save lets be empty
        bool refreshWhenEmptied = false;
    };

    GridPage(MainWindow& window, const Traits& traits);

protected:
    /// The table that delete and save work on.
    virtual QString table() const = 0;
    /// What the grid is filled from.
    virtual QString source() const { return table(); }
    /// Whether a click on a cell does anything at present.
    virtual bool takesClicks() const { return true; }
    /// What follows Enter's move to another cell, before the box is laid there.
    virtual void moved() {}
    /// What a save does with the table before it looks at the grid.
    virtual void beforeSave() {}
    /// Where an empty text of the fill goes.
    virtual int rowForEmptyText() const { return grid->Row(); }

    void cellClick();
    void editorClick();
    void editorKey(int key);
    void addRow();
    void deleteRow();
    void saveRows();

    /// The grid's place, columns and captions.
    void layOut();
    /// Captions and widths alone.
    void layColumns();
    void captionColumn(int column, const char16_t* caption);
    /// Loads source() into the grid as it is laid out here; the first row is not blanked, so that an empty table leaves
    /// in it what it held.
    void loadTable(bool blankBehindConnection = true);
    /// One grid row a record, from the current row on; NULL fields leave their cells as they are, a field behind the
    /// last column (a table's number) is never shown.
    void fill(Recordset& records);
    void hideEditor();
    /// What a click on the bare form does with the box, also with a hidden one: its text goes into the current cell.
    void commitAndHideBox();
    /// Opens a source on `Adodc1` and keeps its records as the page's own: they are what the page saves and deletes,
    /// whatever others use the control for meanwhile.
    Recordset& load(const QString& source);

    const Traits& traits;
    MainWindow& m_window;
    Shared& m_shared;
    Adodc& Adodc1;
    Frame& frame;
    MSFlexGrid* const grid;
    CellEditor* const editor;
    CommandButton* const addButton;
    CommandButton* const removeButton;
    CommandButton* const saveButton;

private:
    void bindEvents();
    void openDatePicker();
    void openCalculator();
    QPointF toolPlace() const;
    void writeBack();
    bool hasGap();
    bool refusesGap();
    void writeRow(Recordset& records, Field& number, int row, Int16& counter);

    std::shared_ptr<LoadedSet> m_loaded; ///< by load, last
};

} // namespace qinghe
