#include "core/grid_page.h"

#include "controls/key_presses.h"
#include "core/grid_rows.h"
#include "core/hover.h"

#include <algorithm>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

using key_presses::Enter, key_presses::Escape;

CommandButton* button(Frame& frame, const char16_t* name, const QString& caption, double left, Glyph glyph) {
    auto* made = new CommandButton(&frame, QString::fromUtf16(name), caption);
    made->place(left, 345, 1080, 390);
    made->setGlyph(glyph);
    return made;
}

} // namespace

GridPage::GridPage(MainWindow& form, const Traits& differences)
    : Page(form.navigation(), differences.page),
      traits(differences),
      m_window(form),
      m_shared(form.shared()),
      Adodc1(*form.Adodc1),
      frame(Page::frame()),
      grid(new MSFlexGrid(&frame, QString::fromUtf16(differences.grid))),
      editor(new CellEditor(&frame, QString::fromUtf16(differences.editor), *grid)),
      addButton(button(frame, differences.add, u"增加"_s, 8055, Glyph::Add)),
      removeButton(button(frame, differences.remove, u"删除"_s, 9255, Glyph::Remove)),
      saveButton(button(frame, differences.save, u"保存"_s, 10455, Glyph::Accept)) {
    grid->place(120, 840, 11415, 4815);
    saveButton->setRole(Role::Primary);
    m_shared.editors[grid->objectName()] = {editor, grid};
    bindEvents();
}

void GridPage::bindEvents() {
    grid->Click = [this] { cellClick(); };
    editor->Click = [this] { editorClick(); };
    editor->KeyPress = [this](int key) { editorKey(key); };
    if (traits.closedColumn)
        editor->Change = [this] { editor->setUsable(grid->Col() != traits.closedColumn); };
    addButton->Click = [this] { addRow(); };
    removeButton->Click = [this] { deleteRow(); };
    saveButton->Click = [this] { saveRows(); };
    frame.Click = [this] {
        m_shared.unloadPickers();
        hideEditor();
    };
    markHovered(frame, {addButton, removeButton, saveButton});
}

// ---- the editor over its cell

void GridPage::hideEditor() {
    editor->setShown(false);
}

void GridPage::commitAndHideBox() {
    grid->setText(editor->Text());
    hideEditor();
}

/// Under the box, on the screen.
QPointF GridPage::toolPlace() const {
    return {frame.Left() + editor->Left() + m_window.Left(),
            frame.Top() + editor->Top() + editor->Height() + m_window.Top()};
}

void GridPage::openDatePicker() {
    const QPointF place = toolPlace();
    m_shared.openDatePicker({traits.date.target, editor, grid}, place.x(), place.y());
}

void GridPage::openCalculator() {
    editor->setUsable(false);
    const QPointF place = toolPlace();
    m_shared.openCalculator({traits.amounts.target, editor, grid}, place.x(), place.y());
}

void GridPage::cellClick() {
    if (!takesClicks())
        return;
    editor->lay();
    editor->setShown(true);
    editor->takeFocus();
    const int column = grid->Col();
    if (traits.date.column && column == traits.date.column)
        openDatePicker();
    else
        m_shared.forms.unload(u"Form1"_s);
    if (traits.amounts.onClick.holds(column)) {
        openCalculator();
    } else {
        editor->setUsable(true);
        editor->takeFocus();
        m_shared.forms.unload(u"Form9"_s);
    }
}

void GridPage::editorClick() {
    const int column = grid->Col();
    if (traits.date.column && column == traits.date.column)
        openDatePicker();
    if (traits.amounts.onClick.holds(column)) {
        openCalculator();
        return;
    }
    editor->setUsable(column != traits.closedColumn);
    m_shared.forms.unload(u"Form9"_s);
}

void GridPage::editorKey(int key) {
    if (key == Escape) {
        hideEditor();
        grid->takeFocus();
    } else if (key == Enter) {
        writeBack();
    }
}

void GridPage::writeBack() {
    grid->setText(editor->Text());
    const int lastColumn = static_cast<int>(traits.columns.size());
    bool passedLast = false;
    if (grid->Col() < lastColumn) {
        grid->setCol(grid->Col() + 1);
        moved();
    } else {
        if (grid->Row() < grid->Rows() - 1) {
            grid->setRow(grid->Row() + 1);
            grid->setCol(1);
        }
        passedLast = grid->Col() == grid->Cols() - 1 && grid->Row() == grid->Rows() - 1;
        if (passedLast)
            hideEditor();
    }
    editor->lay();
    const int column = grid->Col();
    if (traits.amounts.onEnter.holds(column)) {
        openCalculator();
    } else {
        if (!traits.closedColumn)
            editor->setUsable(true);
        m_shared.forms.unload(u"Form9"_s);
    }
    if (traits.date.opensOnEnter && traits.date.column && column == traits.date.column)
        openDatePicker();
    else
        m_shared.forms.unload(u"Form1"_s);
    if (passedLast)
        grid->takeFocus();
    else
        editor->takeFocus();
}

// ---- the button triple

void GridPage::addRow() {
    m_shared.unloadPickers();
    if (traits.addCommitsBox) {
        if (!editor->Text().isEmpty())
            grid->setText(editor->Text());
        editor->setBoxText({});
    } else {
        grid->setRow(grid->Rows() - 1);
    }
    if (isRowBlank(*grid, traits.addTests == AddTests::LastRow ? grid->Rows() - 1 : grid->Row())) {
        m_shared.services.say(u"当前有一条空记录"_s, MessageStyle::OkInformation, u"温馨提示"_s);
    } else {
        grid->setRows(grid->Rows() + 1);
        grid->setRowHeight(grid->Row() + 1, MSFlexGrid::DefaultRowHeight);
    }
    grid->setRow(grid->Rows() - 1);
    editor->place();
    if (traits.addedBox == AddedBox::TakesCell)
        editor->setBoxText(grid->Text());
    hideEditor();
}

void GridPage::deleteRow() {
    m_shared.unloadPickers();
    hideEditor();
    if (m_shared.services.say(u"是否需要删除?"_s, MessageStyle::OkCancelInformation, u"温馨提示"_s) != Answer::Ok)
        return;
    deleteAt(load(table()), grid->Row());
    const bool blanked = traits.lastRow == LastRow::BlankedWhenFirst ? grid->Row() == 1 : grid->Rows() < 3;
    if (blanked)
        blankRow(*grid, 1);
    else
        grid->RemoveItem(grid->Row());
}

bool GridPage::hasGap() {
    const int end = grid->Cols() - (traits.endsInRemark ? 1 : 0);
    for (int row = 1; row < grid->Rows(); ++row) {
        if (traits.rowInSave == RowInSave::Walks)
            grid->setRow(row);
        if (grid->firstEmpty(row, 1, end) != end)
            return true;
    }
    return false;
}

bool GridPage::refusesGap() {
    if (!hasGap())
        return false;
    const QString problem = traits.endsInRemark ? u"除备注信息外记录内容不能为空！"_s : u"记录内容不能为空！"_s;
    m_shared.services.say(u"为了保存信息的完整性，\r\n"_s + problem, MessageStyle::OkInformation, u"输入提示"_s);
    return true;
}

void GridPage::writeRow(Recordset& records, Field& number, int row, Int16& counter) {
    records.addNew();
    number.setValue(static_cast<int>(++counter));
    writeCells(*grid, row, records);
    records.update();
}

void GridPage::saveRows() {
    m_shared.unloadPickers();
    beforeSave();
    if (refusesGap())
        return;
    emptyTable(m_loaded->records());
    if (traits.refreshWhenEmptied)
        m_loaded->reload();
    Recordset& records = m_loaded->records();
    Field number = records.field(u"区别"_s);
    Int16 counter;
    for (int row = 1; row < grid->Rows(); ++row) { // none is blank: that would have been a gap
        if (traits.rowInSave != RowInSave::Stays)
            grid->setRow(row);
        writeRow(records, number, row, counter);
    }
    m_shared.services.say(u"保存成功"_s, MessageStyle::OkInformation, u"保存提示"_s);
    hideEditor();
}

// ---- the list

void GridPage::layColumns() {
    grid->setCols(static_cast<int>(traits.columns.size()) + 1);
    grid->setColWidth(0, MarkerWidth);
    std::vector<int> amounts;
    for (int column = 1; column < grid->Cols(); ++column) {
        const Column& entry = traits.columns[static_cast<std::size_t>(column - 1)];
        grid->setColWidth(column, entry.width);
        captionColumn(column, entry.caption);
        if (traits.shownAsAmounts.holds(column))
            amounts.push_back(column);
    }
    grid->setAmountColumns(std::move(amounts));
}

void GridPage::captionColumn(int column, const char16_t* caption) {
    grid->setTextMatrix(0, column, QString::fromUtf16(caption));
}

void GridPage::layOut() {
    grid->place(120, 840, 11415, 4815);
    layColumns();
}

void GridPage::loadTable(bool blankBehindConnection) {
    Adodc1.setVisible(false);
    Adodc1.setConnectionString(m_shared.connection(blankBehindConnection));
    Recordset& records = load(source());
    layOut();
    startRows(*grid);
    fill(records);
}

Recordset& GridPage::load(const QString& source) {
    Recordset& records = Adodc1.open(source);
    m_loaded = Adodc1.loaded();
    return records;
}

void GridPage::fill(Recordset& records) {
    const int shown = std::min(static_cast<int>(traits.columns.size()), records.fieldCount());
    fillTexts(*grid, records, shown, [this] { return rowForEmptyText(); });
}

} // namespace qinghe
