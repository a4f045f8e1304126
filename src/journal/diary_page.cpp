#include "journal/diary_page.h"

#include "controls/key_presses.h"
#include "core/grid_rows.h"
#include "core/hover.h"
#include "journal/diary_files.h"

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr int PageCode = 8;
constexpr PageTab Tabs[] = {{u"Label8", u"  日记", 8640, PageCode}};
constexpr PageTraits Diary{u"Frame10", u"日记", 120, 1680, 11655, 6255, Tabs};

constexpr int DateColumn = 1, TitleColumn = 2;
constexpr int DateTarget = 5;
constexpr double PickerGap = 300; ///< twips from the top of the box to the picker
using key_presses::Enter, key_presses::Escape;

CommandButton* button(Frame& frame, const QString& name, const QString& caption, double left, double width,
                      Glyph glyph) {
    auto* made = new CommandButton(&frame, name, caption);
    made->place(left, 345, width, 390);
    made->setGlyph(glyph);
    return made;
}

} // namespace

DiaryPage::DiaryPage(MainWindow& form)
    : Page(form.navigation(), Diary),
      m_window(form),
      m_shared(form.shared()),
      Adodc1(*form.Adodc1),
      Frame10(frame()),
      Option6(new OptionButton(&Frame10, u"Option6"_s, u"写日记"_s)),
      Option5(new OptionButton(&Frame10, u"Option5"_s, u"查找日记"_s)),
      Command22(button(Frame10, u"Command22"_s, u"添加"_s, 7755, 1080, Glyph::Add)),
      Command23(button(Frame10, u"Command23"_s, u"删除"_s, 8955, 1080, Glyph::Remove)),
      Command24(button(Frame10, u"Command24"_s, u"保存日志"_s, 10155, 1380, Glyph::Accept)),
      ms8(new MSFlexGrid(&Frame10, u"ms8"_s)),
      tx9(new CellEditor(&Frame10, u"tx9"_s, *ms8)),
      tx8(new LongTextBox(&Frame10, u"tx8"_s)) {
    Option6->place(240, 390, 1200, 300);
    Option5->place(1560, 390, 1320, 300);
    Command24->setRole(Role::Primary);
    ms8->place(120, 840, 4215, 4815);
    tx8->place(4455, 840, 7080, 4815);
    m_shared.emptyDiaryPage = [this] {
        if (!Frame10.Visible())
            return;
        blankRow(*ms8, 1);
        tx8->setBoxText({});
        tx9->setBoxText({});
    };
    bindEvents();
}

void DiaryPage::bindEvents() {
    Option6->Click = [this] { Form2_Option6_Click(); };
    Option5->Click = [this] { Form2_Option5_Click(); };
    for (OptionButton* option : {Option6, Option5})
        showHandOver(option);
    Command22->Click = [this] { Form2_Command22_Click(); };
    Command23->Click = [this] { Form2_Command23_Click(); };
    Command24->Click = [this] { Form2_Command24_Click(); };
    markHovered(Frame10, {Command22, Command23, Command24});
    Frame10.Click = [this] { unloadPicker(); };
    ms8->Click = [this] { Form2_ms8_Click(); };
    tx9->Click = [this] { Form2_tx9_Click(); };
    tx9->KeyPress = [this](int key) { Form2_tx9_KeyPress(key); };
    tx8->Click = [this] { Form2_tx8_Click(); };
}

void DiaryPage::unloadPicker() {
    m_shared.forms.unload(u"Form1"_s);
}

void DiaryPage::setSaving(bool allowed) {
    for (CommandButton* button : {Command22, Command23, Command24})
        button->setUsable(allowed);
}

// ---- the two modes

void DiaryPage::Form2_Label8_Click() {
    navigation().leaveOthers(*this, PageCode);
    Option6->setValue(true);
    tx9->setShown(false);
    navigation().bringForward(*this);
    layOutGrid();
}

void DiaryPage::layOutGrid() {
    layEvenColumns(*ms8, 2, 350);
    ms8->setTextMatrix(0, DateColumn, u"日期"_s);
    ms8->setTextMatrix(0, TitleColumn, u"标题"_s);
    startRows(*ms8);
}

void DiaryPage::Form2_Option6_Click() {
    unloadPicker();
    tx8->setBoxText({});
    ms8->setRows(2);
    diarySearchMode = 0;
    tx9->setShown(false);
    setSaving(true);
    blankRows(*ms8);
    Adodc1.setVisible(false);
    Adodc1.setConnectionString(m_shared.connection());
    Adodc1.open(u"rjb"_s);
}

void DiaryPage::Form2_Option5_Click() {
    unloadPicker();
    diarySearchMode = 1;
    tx9->setShown(false);
    setSaving(false);
    Adodc1.setVisible(false);
    Adodc1.setConnectionString(m_shared.connection());
    Recordset& entries = Adodc1.open(u"select 日期,日记标题 from rjb"_s);
    m_entries = Adodc1.loaded();
    ms8->setRows(2);
    // An empty text blanks the row where the loan grid stands, and is meant to.
    fillTexts(*ms8, entries, entries.fieldCount(), [this] { return loanRow(m_shared); });
}

// ---- the grid and its box

void DiaryPage::Form2_ms8_Click() {
    tx8->setBoxText({});
    if (diarySearchMode == 1)
        showEntry();
    else
        editCell();
}

void DiaryPage::editCell() {
    tx9->lay();
    tx9->setShown(true);
    tx9->takeFocus();
    if (ms8->Col() == DateColumn)
        openPicker();
    else
        unloadPicker();
}

void DiaryPage::openPicker() {
    m_shared.openDatePicker({DateTarget, tx9, ms8}, Frame10.Left() + tx9->Left() + m_window.Left(),
                            Frame10.Top() + tx9->Top() + m_window.Top() + PickerGap);
}

void DiaryPage::showEntry() {
    tx9->setShown(false);
    const QString title = ms8->Text();
    if (m_entries->records().recordCount() == 0 || title.isEmpty() || ms8->Col() == DateColumn)
        return;
    // The text runs on over its line ends, and is meant to.
    tx8->setBoxText(diary::readLines(fileOf(title)));
}

QString DiaryPage::fileOf(const QString& title) const {
    return diary::filePath(m_shared.beside(u"mydiary"_s), title);
}

void DiaryPage::Form2_tx9_Click() {
    if (ms8->Col() == DateColumn)
        openPicker();
}

void DiaryPage::Form2_tx9_KeyPress(int KeyAscii) {
    if (KeyAscii == Escape) {
        tx9->setShown(false);
        ms8->takeFocus();
    } else if (KeyAscii == Enter) {
        ms8->setText(tx9->Text());
        if (ms8->Row() == ms8->Rows() - 1 && ms8->Col() == ms8->Cols() - 1) {
            tx9->setShown(false);
            ms8->takeFocus();
        } else if (ms8->Col() < TitleColumn) {
            ms8->setCol(ms8->Col() + 1);
            tx9->lay();
            unloadPicker();
            tx9->takeFocus();
        }
    }
}

void DiaryPage::Form2_tx8_Click() {
    // A title that was typed and not confirmed is kept so.
    ms8->setText(tx9->Text());
    tx9->setShown(false);
    unloadPicker();
}

// ---- adding, deleting, saving

void DiaryPage::Form2_Command22_Click() {
    unloadPicker();
    ms8->setRows(2);
    blankRows(*ms8);
    tx8->setBoxText({});
}

void DiaryPage::Form2_Command23_Click() {
    unloadPicker();
    tx9->setShown(false);
    if (m_shared.services.say(u"是否需要删除?"_s, MessageStyle::OkCancelInformation, u"温馨提示"_s) != Answer::Ok)
        return;
    // By place, whatever the grid shows; the file stays, so that the title is free again.
    deleteAt(Adodc1.open(u"rjb"_s), ms8->Row());
    if (ms8->Rows() >= 3)
        ms8->RemoveItem(ms8->Row());
}

bool DiaryPage::refusesGap() {
    if (ms8->firstEmpty(ms8->Row(), 1, ms8->Cols()) == ms8->Cols())
        return false;
    m_shared.services.say(u"日期和标题都不能为空"_s, MessageStyle::OkInformation, u"保存提示"_s);
    return true;
}

bool DiaryPage::refusesTitle() {
    Recordset& entries = Adodc1.recordset();
    if (entries.recordCount() == 0)
        return false;
    const QString title = ms8->TextMatrix(1, TitleColumn);
    for (entries.moveFirst(); !entries.eof(); entries.moveNext()) {
        if (entries.field(u"日记标题"_s).text() != title)
            continue;
        m_shared.services.say(u"此标题已经存在，请更换新的标题！"_s, MessageStyle::OkInformation, u"提示"_s);
        return true;
    }
    return false;
}

void DiaryPage::Form2_Command24_Click() {
    unloadPicker();
    Adodc1.setVisible(false);
    Adodc1.setConnectionString(m_shared.connection());
    Recordset& entries = Adodc1.open(u"rjb"_s);
    ms8->setRow(1);
    if (refusesGap())
        return;
    // Named only: titles are compared, and the row is added, in the whole table in hand.
    Adodc1.setRecordSource(u"select 日记标题 from rjb"_s);
    if (refusesTitle())
        return;
    entries.addNew();
    writeCells(*ms8, ms8->Row(), entries);
    entries.update();
    tx9->setShown(false);
    diary::write(fileOf(ms8->TextMatrix(1, TitleColumn)), tx8->Text());
    m_shared.services.say(u"日志已经保存！"_s, MessageStyle::Ok, u"保存提示"_s);
}

} // namespace qinghe
