#pragma once

#include "controls/long_text_box.h"
#include "core/cell_editing.h"
#include "core/main_window.h"
#include "core/row_buttons.h"

namespace qinghe {

/// The diary page, `Frame10`. An entry is a row of `rjb` (date and title) and a text file named after the title. In
/// write mode the grid holds one new entry; in find mode it lists all of them, and a click on a title shows its text.
/// An entry cannot be changed once it is saved. Deleting takes a row by its place, and leaves the file:
/// no text is lost with its row.
class DiaryPage : public Page {
    Q_OBJECT

public:
    explicit DiaryPage(MainWindow& window);

    void tabClicked(PageCode) override { Form2_Label8_Click(); }
    /// In find mode; one entry that is being written is no list.
    std::vector<EditorTarget> searchedLists() const override;
    KeyedButtons keyedButtons() const override { return {m_buttons.add, m_buttons.save}; }

    void rescue(RescuedTexts& texts) const override;

    void Form2_Label8_Click();
    void Form2_Option5_Click();
    void Form2_Option6_Click();
    void Form2_ms8_Click();
    void Form2_tx8_Click();
    void Form2_tx9_Click();
    void Form2_Command22_Click();
    void Form2_Command23_Click();
    void Form2_Command24_Click();

private:
    void bindEvents();
    void layOutGrid();
    QString objectionTo(int row, int col) const;
    void openPicker();
    void editCell();
    void entered();
    void showEntry();
    bool refusesGap();
    bool refusesTitle();
    QString fileOf(const QString& title) const;
    /// Date, title and text of the entry being written.
    QStringList entry() const;

    Shared& m_shared;
    Adodc& Adodc1;
    Frame& Frame10;
    OptionButton* Option6; // 写日记
    OptionButton* Option5; // 查找日记
    MSFlexGrid* ms8;       // date and title
    RowButtons m_buttons;  ///< Command22 to Command24
    CellEditing m_editing; ///< tx9 over its cells
    LongTextBox* tx8;      // the entry's text

    std::shared_ptr<LoadedSet> m_entries; ///< that the grid lists in find mode

    Column m_dayColumn{}; ///< that a save writes the date to

    bool diarySearchMode = false; ///< in find mode
    QStringList m_kept;           ///< the entry that was saved last
};

} // namespace qinghe
