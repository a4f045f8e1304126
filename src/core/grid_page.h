#pragma once

#include "core/cell_editing.h"
#include "core/list_records.h"
#include "core/main_window.h"
#include "core/row_buttons.h"

namespace qinghe {

/// A page that shows a table in a read-only grid under one floating text box: a click on a cell lays the box over it,
/// Enter writes its text back and moves on, Esc drops it. Nothing reaches the store but a deleted row, until the save
/// checks the grid, empties the table and writes one row a grid line.
///
/// Such a page is written by filling in its traits. What is odd about it stands in its quirks; a page without any is
/// the sane one. A record has no identity but its place: grid row r is record r of the table in its own order.
class GridPage : public Page {
    Q_OBJECT

public:
    /// What a column holds. The text of a Date comes from the date picker or is typed; over an Amount the box is
    /// disabled and the calculator opens; a WorkedOut figure takes no typing at all. The last two stand on the right.
    enum class Kind { Text, Date, Amount, WorkedOut };

    struct Column : ListColumn {
        double width; ///< twips
        Kind kind = Kind::Text;
    };

    /// One table in the grid. Pages with two tables have two of these, see list().
    struct List {
        QStringView table; ///< that delete and save work on
        std::span<const Column> columns;
        QStringView subject;     ///< what its boxes are called after, see CellEditor::setSubject
        QStringView source = {}; ///< what the grid is filled from, where it is not the table
    };

    enum class CalculatorOnEnter { EveryAmount, FirstAmount, Never };
    /// Where Row goes in a save.
    enum class RowInSave {
        Walks,  ///< along the check, which leaves it on a row that is refused, and along the rows as they are written
        Writes, ///< along the rows as they are written alone
        Stays,
    };

    /// What single pages do otherwise than the scheme; each is meant as it is.
    struct Quirks {
        // Enter in the box
        bool enterOpensNoPicker = false; ///< when it comes to the date
        CalculatorOnEnter calculatorOnEnter = CalculatorOnEnter::EveryAmount;
        // 增加
        bool addCommitsBox = false; ///< into the current cell, instead of going to the last row
        bool addTestsCurrentRow = false;
        bool addKeepsBoxText = false;
        // 删除
        bool deleteBlanksFirstRow = false; ///< instead of taking it out, also when rows follow it
        // 保存
        RowInSave rowInSave = RowInSave::Walks;
        bool saveLoadsAnew = false;     ///< before the grid is looked at
        bool saveNamesTable = false;    ///< to `Adodc1`, which is not asked
        bool saveReadsEmptied = false;  ///< the emptied table once more before it is filled
        bool lastColumnMatters = false; ///< it may not be empty either
        // the ways in and out
        bool loadsBeforeShown = false;
        bool emptyTextsGoToLoanRow = false;  ///< of a fill
        bool frameClickLeavesTools = false;  ///< open
        bool formClickReachesHidden = false; ///< commits the box of a page out of view too
        bool formClickTakesKeyboard = false; ///< into the grid
    };

    struct Traits {
        PageTraits page;
        QStringView grid;
        QStringView editor;
        RowButtonTraits buttons;
        List list;
        DateField dateField = DateField::None;
        AmountField amountField = AmountField::None;
        Quirks quirks = {};
    };

    GridPage(MainWindow& window, const Traits& traits);

    /// On the ground of a list that has nothing in it.
    static constexpr QStringView HowToBegin = u"还没有记录：点第一行的格子就能写，写完点“保存”";

    /// Brings the page up.
    void tabClicked(PageCode code) override { open(code); }
    void formClicked() override;
    void rescue(RescuedTexts& texts) const override;
    std::vector<EditorTarget> searchedLists() const override { return {{m_editing.box, m_grid}}; }
    KeyedButtons keyedButtons() const override { return {m_buttons.add, m_buttons.save}; }

protected:
    /// The table on view.
    virtual const List& list() const { return m_traits.list; }
    /// Whether a click on a cell does anything at present.
    virtual bool takesClicks() const { return true; }
    /// What follows Enter's move to another cell, before the box is laid there.
    virtual void moved() {}
    virtual void frameClicked();

    /// Lays the box over a cell, as a click on it does, and opens the calculator for it, whatever its column.
    void reckon(int row, int col);

    /// The grid column of a field.
    int columnOf(QStringView field) const;

    /// The way in by the page's label: the other pages go, the list is loaded, the page comes to the front.
    void open(PageCode code);
    /// Loads the list into the grid as it is laid out here; the first row is not blanked, so that an empty table leaves
    /// in it what it held.
    void loadTable();
    /// Opens a source on `Adodc1` and keeps its records as the page's own: they are what the page saves and deletes,
    /// whatever others use the control for meanwhile.
    Recordset& load(QStringView source);
    Recordset& loadList() { return load(list().table); }
    /// Puts what was loaded last back on `Adodc1`: whoever asks the control finds the list there.
    void showLoaded() { Adodc1.show(m_loaded); }

    const Traits& m_traits;
    const Quirks& m_quirks;
    MainWindow& m_window;
    Shared& m_shared;
    Adodc& Adodc1;
    Frame& m_frame;
    MSFlexGrid* const m_grid;
    CellEditing m_editing;
    RowButtons m_buttons;

private:
    void bindEvents();
    void bindKeys();
    void layColumns();
    int lastColumn() const { return static_cast<int>(list().columns.size()); }
    Kind kindOf(int column) const;
    QString objectionTo(int row, int col) const;
    bool opensCalculatorOnEnter(int column) const;
    QPointF toolPlace() const;
    /// The current cell, as the tools fill it.
    FieldTarget field();
    void openBox();
    void openDatePicker();
    void openCalculator();

    void cellClicked();
    void boxClicked();
    void entered();
    bool walkOn();
    void layBox();
    void offerText();
    void addRow();
    void deleteRow();
    void saveRows();
    void beginSave();
    bool hasGap();
    bool refusesGap();

    bool m_hasWorkedOut = false;         ///< a column that takes no typing
    std::shared_ptr<LoadedSet> m_loaded; ///< by load, last
    KeptValues m_kept;                   ///< of the list as it was filled
    TableColumns m_savedTo;              ///< what a save writes the grid's columns to, from the first one on
};

} // namespace qinghe
