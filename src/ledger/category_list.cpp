#include "ledger/category_list.h"

#include "controls/key_presses.h"
#include "core/grid_rows.h"
#include "core/hover.h"

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

using key_presses::Enter, key_presses::Escape;
constexpr double Margin = 120, GridHeight = 4215; // twips
constexpr double ButtonWidth = 1080, ButtonPitch = 1200, ButtonTop = 4695;

Frame* listFrame(Frame& page, const CategoryList::Traits& traits) {
    auto* frame = new Frame(&page, QString::fromUtf16(traits.frame), QString::fromUtf16(traits.caption));
    frame->place(traits.left, 1290, traits.gridWidth + 2 * Margin, 5190);
    frame->setRole(Role::InnerFrame);
    return frame;
}

MSFlexGrid* listGrid(Frame* frame, const CategoryList::Traits& traits) {
    auto* grid = new MSFlexGrid(frame, QString::fromUtf16(traits.grid));
    grid->place(Margin, 360, traits.gridWidth, GridHeight);
    return grid;
}

/// The buttons stand in a row that ends with the grid; `fromRight` is 0 for the last one.
CommandButton* button(const MSFlexGrid& grid, const char16_t* name, const QString& caption, Glyph glyph,
                      int fromRight) {
    auto* made = new CommandButton(grid.parentWidget(), QString::fromUtf16(name), caption);
    made->place(grid.Left() + grid.Width() - ButtonWidth - fromRight * ButtonPitch, ButtonTop, ButtonWidth, 390);
    made->setGlyph(glyph);
    // Not marked grey under the pointer: nothing here would take the mark off again.
    showHandOver(made);
    return made;
}

} // namespace

CategoryList::CategoryList(Frame& page, Shared& shared, const Traits& traits)
    : grid(listGrid(listFrame(page, traits), traits)),
      editor(new CellEditor(grid->parentWidget(), QString::fromUtf16(traits.editor), *grid)),
      addButton(button(*grid, traits.add, u"增加"_s, Glyph::Add, 2)),
      removeButton(button(*grid, traits.remove, u"删除"_s, Glyph::Remove, 1)),
      saveButton(button(*grid, traits.save, u"保存"_s, Glyph::Accept, 0)),
      m_traits(traits),
      m_shared(shared) {
    saveButton->setRole(Role::Primary);
}

void CategoryList::setUsable(bool usable) {
    grid->setUsable(usable);
    for (CommandButton* button : {addButton, removeButton, saveButton})
        button->setUsable(usable);
}

void CategoryList::layOut(std::span<const char16_t* const> captions) {
    layEvenColumns(*grid, m_traits.columns);
    for (int column = 1; column < grid->Cols(); ++column)
        grid->setTextMatrix(0, column, QString::fromUtf16(captions[static_cast<std::size_t>(column - 1)]));
}

void CategoryList::fill(Recordset& records, int rowForEmptyText) {
    fillRows(*grid, records, [&] {
        for (int column = 1; column < grid->Cols(); ++column) {
            const Field field = records.field(m_traits.firstField + column - 1);
            if (field.differsFromEmpty())
                grid->setTextMatrix(grid->Row(), column, field.text());
            else if (rowForEmptyText != NoRow && field.equalsEmpty())
                grid->setTextMatrix(rowForEmptyText, column, {});
        }
    });
}

// ---- the box over the cells

void CategoryList::edit() {
    editor->lay();
    editor->setShown(true);
    editor->takeFocus();
}

void CategoryList::hideEditor() {
    editor->setShown(false);
}

void CategoryList::editorKey(int key) {
    if (key == Escape) {
        hideEditor();
        grid->takeFocus();
    } else if (key == Enter) {
        grid->setText(editor->Text());
        if (grid->Col() < m_traits.columns)
            grid->setCol(grid->Col() + 1);
        else
            hideEditor();
        editor->lay();
    }
}

void CategoryList::commitBox() {
    if (!editor->Text().isEmpty())
        grid->setText(editor->Text());
}

// ---- rows

bool CategoryList::filledOrMarked(int row) {
    if (!isRowBlank(*grid, row))
        m_shared.emptyRowFlag = 1;
    return m_shared.emptyRowFlag == 1;
}

void CategoryList::goToLastRow() {
    grid->setRow(grid->Rows() - 1);
}

void CategoryList::addRow() {
    if (!filledOrMarked(grid->Row())) {
        m_shared.services.say(u"当前有一条空记录"_s, MessageStyle::OkInformation, u"温馨提示"_s);
        return;
    }
    grid->setRows(grid->Rows() + 1);
    grid->setRow(grid->Row() + 1);
}

bool CategoryList::isDeletionWanted() {
    hideEditor();
    return m_shared.services.say(u"是否需要删除?"_s, MessageStyle::OkCancelInformation, u"温馨提示"_s) == Answer::Ok;
}

bool CategoryList::removeRow() {
    if (grid->Rows() < 3)
        return false;
    grid->RemoveItem(grid->Row());
    return true;
}

void CategoryList::save(Recordset& records) {
    goToLastRow();
    if (!filledOrMarked(grid->Row()) && grid->Rows() >= 3)
        grid->RemoveItem(grid->Row());
    emptyTable(records);
    bool filledRowMet = false; // from the first one on blank rows are written as well
    for (int row = 1; row < grid->Rows(); ++row) {
        grid->setRow(row);
        filledRowMet = filledRowMet || !isRowBlank(*grid, row);
        if (!filledRowMet)
            continue;
        records.addNew();
        writeCells(*grid, row, records);
        records.update();
    }
    m_shared.services.say(u"保存成功"_s, MessageStyle::OkInformation, u"保存提示"_s);
    hideEditor();
}

} // namespace qinghe
