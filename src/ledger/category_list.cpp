#include "ledger/category_list.h"

#include "core/hover.h"
#include "core/rescued_texts.h"

namespace qinghe {

namespace {

constexpr double Margin = 120, GridHeight = 4215; // twips

Frame* listFrame(Frame& page, const CategoryList::Traits& traits) {
    auto* frame = new Frame(&page, traits.frame.toString(), traits.caption.toString());
    frame->place(traits.left, 1290, traits.gridWidth + 2 * Margin, 5190);
    frame->setRole(Role::InnerFrame);
    return frame;
}

MSFlexGrid* listGrid(Frame* frame, const CategoryList::Traits& traits) {
    auto* grid = new MSFlexGrid(frame, traits.grid.toString());
    grid->place(Margin, 360, traits.gridWidth, GridHeight);
    return grid;
}

} // namespace

CategoryList::CategoryList(Frame& page, Shared& shared, const Traits& traits)
    : grid(listGrid(listFrame(page, traits), traits)),
      editing(grid->parentWidget(), traits.editor, *grid),
      buttons(grid->parentWidget(), traits.buttons, *grid),
      m_shared(shared) {
    editing.entered = [this] { entered(); };
    editing.keys.remove = buttons.remove;
    // Not marked grey under the pointer: nothing here would take the mark off again.
    for (CommandButton* button : buttons.all())
        showHandOver(button);
}

void CategoryList::setUsable(bool usable) {
    grid->setUsable(usable);
    buttons.setUsable(usable);
}

bool CategoryList::hasKeyboard() const {
    return grid->parentWidget()->isAncestorOf(grid->window()->focusWidget());
}

void CategoryList::layOut(std::span<const ListColumn> columns) {
    m_columns = columns;
    layEvenColumns(*grid, columns);
    startRows(*grid);
}

void CategoryList::fill(Recordset& records, const std::function<int()>& rowForEmptyText) {
    grid->restChanges();
    fillList(*grid, records, shownFields(m_columns), m_kept, rowForEmptyText);
    grid->watchChanges(records.recordCount());
}

void CategoryList::rescue(RescuedTexts& texts, const LoadedSet& loaded) const {
    const auto* frame = static_cast<Frame*>(grid->parentWidget());
    texts.addList(frame->Caption(), *grid, editing, loaded, shownFields(m_columns));
}

void CategoryList::entered() {
    editing.commit();
    if (grid->Col() < grid->Cols() - 1)
        grid->setCol(grid->Col() + 1);
    else
        editing.close();
    editing.box->lay();
    editing.box->selectText();
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
    if (!filledOrMarked(grid->Row()))
        return tellOfBlankRow(m_shared);
    grid->setRows(grid->Rows() + 1);
    grid->setRow(grid->Row() + 1);
}

bool CategoryList::isDeletionWanted() {
    editing.close();
    return qinghe::isDeletionWanted(m_shared);
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
    m_shared.saving = SaveAtWork{records.recordCount()};
    emptyTable(records);
    RowWriter writer(*grid, records, savedFields(m_columns), m_kept);
    bool filledRowMet = false; // from the first one on blank rows are written as well
    for (int row = 1; row < grid->Rows(); ++row) {
        grid->setRow(row);
        filledRowMet = filledRowMet || !isRowBlank(*grid, row);
        if (!filledRowMet)
            continue;
        writer.add(row);
        ++m_shared.saving->written;
    }
    grid->watchChanges(grid->Rows() - 1);
    tellSaved(m_shared);
    editing.closeSaved();
}

} // namespace qinghe
