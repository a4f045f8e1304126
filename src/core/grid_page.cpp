#include "core/grid_page.h"

#include "core/hover.h"
#include "core/picker_keys.h"
#include "core/rescued_texts.h"

#include <algorithm>

namespace qinghe {

using namespace Qt::StringLiterals;

GridPage::GridPage(MainWindow& window, const Traits& differences)
    : Page(window.navigation(), differences.page),
      m_traits(differences),
      m_quirks(differences.quirks),
      m_window(window),
      m_shared(window.shared()),
      Adodc1(*window.Adodc1),
      m_frame(frame()),
      m_grid(new MSFlexGrid(&m_frame, differences.grid.toString())),
      m_editing(&m_frame, differences.editor, *m_grid),
      m_buttons(&m_frame, differences.buttons, *m_grid),
      m_hasWorkedOut(std::ranges::count(differences.list.columns, Kind::WorkedOut, &Column::kind) > 0) {
    m_grid->place(120, 840, 11415, 4815);
    m_grid->ground.set(HowToBegin.toString());
    m_grid->objection = [this](int row, int col) { return objectionTo(row, col); };
    m_shared.editors[differences.grid] = {m_editing.box, m_grid};
    bindEvents();
}

void GridPage::bindEvents() {
    m_grid->Click = [this] { cellClicked(); };
    m_editing.box->Click = [this] { boxClicked(); };
    m_editing.box->hearsWhenClosed = [this] { return kindOf(m_grid->Col()) == Kind::Amount; };
    m_editing.entered = [this] { entered(); };
    if (m_hasWorkedOut)
        m_editing.box->Change = [this] { m_editing.box->setUsable(kindOf(m_grid->Col()) != Kind::WorkedOut); };
    m_buttons.add->Click = [this] { addRow(); };
    m_buttons.remove->Click = [this] { deleteRow(); };
    m_buttons.save->Click = [this] { saveRows(); };
    m_frame.Click = [this] { frameClicked(); };
    bindKeys();
    markHovered(m_frame, {m_buttons.add, m_buttons.remove, m_buttons.save});
}

void GridPage::bindKeys() {
    m_editing.keys.remove = m_buttons.remove;
    // One key must not wipe a figure that is worked out.
    m_editing.keys.takesTyping = [this] { return kindOf(m_grid->Col()) != Kind::WorkedOut; };
    m_editing.keys.tool = [this]() -> QWidget* {
        FieldTool* const calculator = m_shared.forms.loaded(names::Calculator);
        return calculator && calculator->Visible() && calculator->serves(*m_editing.box) ? calculator : nullptr;
    };
    new PickerKeys(m_shared, *m_editing.box, [this] { return kindOf(m_grid->Col()) == Kind::Date; });
}

void GridPage::frameClicked() {
    if (!m_quirks.frameClickLeavesTools)
        m_shared.finishPickers();
    m_editing.close();
}

void GridPage::formClicked() {
    const bool reached = m_quirks.formClickReachesHidden ? m_grid->isEnabled() && m_grid->Visible() : m_frame.Visible();
    if (!reached)
        return;
    if (m_editing.box->isVisible()) {
        m_shared.handBack();
        m_shared.forms.unload(names::Calculator);
    }
    m_editing.commitAndClose();
    if (m_quirks.formClickTakesKeyboard)
        m_grid->takeFocus();
}

void GridPage::rescue(RescuedTexts& texts) const {
    // A page that was left has dropped what was typed on it, and a report holds nothing typed.
    if (m_loaded && m_frame.Visible() && takesClicks())
        texts.addList(m_frame.Caption(), *m_grid, m_editing, *m_loaded, shownFields(list().columns));
}

// ---- the way in

void GridPage::open(PageCode code) {
    navigation().leaveOthers(*this, code);
    m_editing.close();
    if (m_quirks.loadsBeforeShown)
        loadTable();
    navigation().bringForward(*this);
    if (!m_quirks.loadsBeforeShown)
        loadTable();
}

void GridPage::loadTable() {
    m_grid->restChanges();
    Recordset& records = load(list().source.isEmpty() ? list().table : list().source);
    m_savedTo.clear();
    for (const QStringView field : savedFields(list().columns))
        m_savedTo.push_back(records.field(field).column());
    m_grid->place(120, 840, 11415, 4815);
    layColumns();
    startRows(*m_grid);
    fillList(*m_grid, records, shownFields(list().columns), m_kept,
             [this] { return m_quirks.emptyTextsGoToLoanRow ? m_shared.loanRow() : m_grid->Row(); });
    m_grid->watchChanges(records.recordCount());
}

Recordset& GridPage::load(QStringView source) {
    Recordset& records = Adodc1.open(source.toString());
    m_loaded = Adodc1.loaded();
    return records;
}

void GridPage::layColumns() {
    m_editing.box->setSubject(list().subject);
    m_grid->setCols(lastColumn() + 1);
    m_grid->setColWidth(0, MarkerWidth);
    std::vector<int> figures;
    for (int column = 1; const Column& entry : list().columns) {
        m_grid->setColWidth(column, entry.width);
        m_grid->setTextMatrix(0, column, entry.caption.toString());
        if (entry.kind == Kind::Amount || entry.kind == Kind::WorkedOut)
            figures.push_back(column);
        ++column;
    }
    m_grid->setAmountColumns(std::move(figures));
}

int GridPage::columnOf(QStringView field) const {
    const auto found = std::ranges::find(list().columns, field, &Column::field);
    return static_cast<int>(found - list().columns.begin()) + 1;
}

/// Asks what the save will ask. Empty cells and kept values are not asked for, and a report is not saved.
QString GridPage::objectionTo(int row, int col) const {
    const QString text = m_grid->TextMatrix(row, col);
    if (text.isEmpty() || !takesClicks() || static_cast<std::size_t>(col) > m_savedTo.size() ||
        m_kept.behind(*m_grid, row, col, text))
        return {};
    return stopsTheSave(refusal(m_savedTo[static_cast<std::size_t>(col - 1)], text, m_shared.store.thisYear()));
}

GridPage::Kind GridPage::kindOf(int column) const {
    const bool listed = column >= 1 && column <= lastColumn();
    return listed ? list().columns[static_cast<std::size_t>(column - 1)].kind : Kind::Text;
}

// ---- the box over its cell

QPointF GridPage::toolPlace() const {
    return placeBelow(*m_editing.box, m_editing.box->Height());
}

FieldTarget GridPage::field() {
    FieldTarget current(m_editing.box, m_grid);
    current.entered = [this] { entered(); };
    return current;
}

void GridPage::openBox() {
    m_shared.handBack(field());
    m_editing.open();
}

void GridPage::openDatePicker() {
    m_shared.openDatePicker(m_traits.dateField, field(), toolPlace());
}

void GridPage::openCalculator() {
    m_editing.box->setUsable(false);
    m_shared.openCalculator(m_traits.amountField, field(), toolPlace());
}

void GridPage::cellClicked() {
    if (!takesClicks())
        return;
    openBox();
    const Kind kind = kindOf(m_grid->Col());
    if (kind == Kind::Date)
        openDatePicker();
    else
        m_shared.unloadDatePicker();
    if (kind == Kind::Amount) {
        openCalculator();
    } else {
        m_editing.box->setUsable(true);
        m_editing.box->takeFocus();
        m_shared.forms.unload(names::Calculator);
    }
    offerText();
}

/// What stands in the box goes with the first key, but a figure that is worked out: one key must not wipe it.
void GridPage::offerText() {
    if (kindOf(m_grid->Col()) == Kind::WorkedOut || !m_editing.box->isEnabled())
        m_editing.box->deselect();
    else
        m_editing.box->selectText();
}

void GridPage::reckon(int row, int col) {
    m_grid->setRow(row);
    m_grid->setCol(col);
    openBox();
    m_shared.unloadDatePicker();
    openCalculator();
}

void GridPage::boxClicked() {
    const Kind kind = kindOf(m_grid->Col());
    if (kind == Kind::Date)
        openDatePicker();
    if (kind == Kind::Amount)
        return openCalculator();
    m_editing.box->setUsable(kind != Kind::WorkedOut);
    m_shared.forms.unload(names::Calculator);
}

void GridPage::entered() {
    m_editing.commit();
    const bool passedLast = walkOn();
    layBox();
    if (passedLast)
        m_grid->takeFocus();
    else
        m_editing.box->takeFocus();
}

/// To the next cell of the row, behind the last one to the next row; tells whether there is none.
bool GridPage::walkOn() {
    if (m_grid->Col() < lastColumn()) {
        m_grid->setCol(m_grid->Col() + 1);
        moved();
        return false;
    }
    if (m_grid->Row() < m_grid->Rows() - 1) {
        m_grid->setRow(m_grid->Row() + 1);
        m_grid->setCol(1);
    }
    const bool passedLast = m_grid->Col() == m_grid->Cols() - 1 && m_grid->Row() == m_grid->Rows() - 1;
    if (passedLast)
        m_editing.close();
    return passedLast;
}

/// Over the cell to which Enter came, with the tools of its kind.
void GridPage::layBox() {
    m_editing.box->lay();
    const int column = m_grid->Col();
    if (opensCalculatorOnEnter(column)) {
        openCalculator();
    } else {
        if (!m_hasWorkedOut) // else the box has told by its change whether it takes typing here
            m_editing.box->setUsable(true);
        m_shared.forms.unload(names::Calculator);
    }
    if (kindOf(column) == Kind::Date && !m_quirks.enterOpensNoPicker)
        openDatePicker();
    else
        m_shared.unloadDatePicker();
    offerText();
}

bool GridPage::opensCalculatorOnEnter(int column) const {
    switch (m_quirks.calculatorOnEnter) {
    case CalculatorOnEnter::EveryAmount:
        return kindOf(column) == Kind::Amount;
    case CalculatorOnEnter::FirstAmount:
        return column == columnOf(std::ranges::find(list().columns, Kind::Amount, &Column::kind)->field);
    case CalculatorOnEnter::Never:
        break;
    }
    return false;
}

// ---- the buttons

void GridPage::addRow() {
    m_shared.finishPickers();
    if (m_quirks.addCommitsBox) {
        m_editing.commitTyped();
        m_editing.box->setBoxText({});
    } else {
        m_grid->setRow(m_grid->Rows() - 1);
    }
    if (isRowBlank(*m_grid, m_quirks.addTestsCurrentRow ? m_grid->Row() : m_grid->Rows() - 1)) {
        tellOfBlankRow(m_shared);
    } else {
        m_grid->setRows(m_grid->Rows() + 1);
        m_grid->setRowHeight(m_grid->Row() + 1, MSFlexGrid::DefaultRowHeight);
    }
    m_grid->setRow(m_grid->Rows() - 1);
    m_editing.box->place();
    if (!m_quirks.addKeepsBoxText)
        m_editing.box->setBoxText(m_grid->Text());
    m_editing.close();
}

void GridPage::deleteRow() {
    m_shared.unloadPickers();
    m_editing.close();
    if (!isDeletionWanted(m_shared))
        return;
    if (deleteAt(loadList(), m_grid->Row()))
        m_grid->recordDeleted();
    const bool blanked = m_quirks.deleteBlanksFirstRow ? m_grid->Row() == 1 : m_grid->Rows() < 3;
    if (blanked)
        blankRow(*m_grid, 1);
    else
        m_grid->RemoveItem(m_grid->Row());
}

bool GridPage::hasGap() {
    const int end = m_grid->Cols() - (m_quirks.lastColumnMatters ? 0 : 1);
    for (int row = 1; row < m_grid->Rows(); ++row) {
        if (m_quirks.rowInSave == RowInSave::Walks)
            m_grid->setRow(row);
        if (m_grid->firstEmpty(row, 1, end) != end)
            return true;
    }
    return false;
}

bool GridPage::refusesGap() {
    if (!hasGap())
        return false;
    const QString problem = m_quirks.lastColumnMatters ? u"记录内容不能为空！"_s : u"除备注信息外记录内容不能为空！"_s;
    m_shared.tell(u"为了保存信息的完整性，\r\n"_s + problem, u"输入提示"_s);
    return true;
}

void GridPage::beginSave() {
    if (m_quirks.saveLoadsAnew)
        loadList();
    if (m_quirks.saveNamesTable)
        Adodc1.setRecordSource(list().table.toString());
}

void GridPage::saveRows() {
    m_shared.finishPickers();
    beginSave();
    if (refusesGap())
        return;
    m_shared.saving = SaveAtWork{m_loaded->records().recordCount()};
    emptyTable(m_loaded->records());
    if (m_quirks.saveReadsEmptied)
        m_loaded->reload();
    RowWriter writer(*m_grid, m_loaded->records(), savedFields(list().columns), m_kept);
    Int16 number;
    for (int row = 1; row < m_grid->Rows(); ++row) { // none is blank: that would have been a gap
        if (m_quirks.rowInSave != RowInSave::Stays)
            m_grid->setRow(row);
        writer.add(row, ++number);
        ++m_shared.saving->written;
    }
    m_grid->watchChanges(m_grid->Rows() - 1);
    tellSaved(m_shared);
    m_editing.closeSaved();
}

} // namespace qinghe
