#include "journal/diary_page.h"

#include "core/hover.h"
#include "core/list_records.h"
#include "core/picker_keys.h"
#include "core/rescued_texts.h"
#include "journal/diary_files.h"
#include "store/tables.h"

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr PageTab Tabs[] = {{u"Label8", u"  日记", 8640, PageCode::Diary}};
constexpr PageTraits Diary{u"Frame10", u"日记", 120, 1680, 11655, 6255, Tabs};

constexpr int DateColumn = 1, TitleColumn = 2;
constexpr ListColumn Columns[] = {{u"日期", columns::Day}, {u"标题", columns::DiaryTitle}};
constexpr RowButtonTraits Buttons{
    .add = u"Command22",
    .remove = u"Command23",
    .save = u"Command24",
    .addCaption = u"添加",
    .saveCaption = u"保存日志",
    .saveWidth = 1380,
};
constexpr QStringView HowToWrite = u"先填左边的日期和标题，再写正文；清空了的按 Ctrl+Z 找回";
constexpr QStringView HowToRead = u"点标题看正文"; // on empty paper
constexpr QStringView NothingToFind = u"还没有日记：\n点“写日记”写下第一篇";
constexpr double PickerGap = 300; ///< twips from the top of the box to the picker

/// Qt paints an empty paper anew only when its hint comes or goes, not when another one takes its place.
void setHint(LongTextBox& paper, QStringView hint) {
    paper.setPlaceholderText(hint.toString());
    paper.viewport()->update();
}

} // namespace

DiaryPage::DiaryPage(MainWindow& window)
    : Page(window.navigation(), Diary),
      m_shared(window.shared()),
      Adodc1(*window.Adodc1),
      Frame10(frame()),
      Option6(new OptionButton(&Frame10, u"Option6"_s, u"写日记"_s)),
      Option5(new OptionButton(&Frame10, u"Option5"_s, u"查找日记"_s)),
      ms8(new MSFlexGrid(&Frame10, u"ms8"_s)),
      m_buttons(&Frame10, Buttons, *ms8),
      m_editing(&Frame10, u"tx9", *ms8),
      tx8(new LongTextBox(&Frame10, u"tx8"_s)) {
    Option6->place(240, 390, 1200, 300);
    Option5->place(1560, 390, 1320, 300);
    ms8->place(120, 840, 4215, 4815);
    m_editing.box->setSubject(u"日记");
    tx8->setAccessibleName(u"日记正文"_s);
    ms8->setAccessibleName(u"日记列表"_s);
    tx8->place(4455, 840, 7080, 4815);
    m_shared.emptyDiaryPage = [this] {
        if (!Frame10.Visible())
            return;
        blankRow(*ms8, 1);
        tx8->forgetTyped(); // what is wiped does not come back
        tx8->setBoxText({});
        m_editing.box->setBoxText({});
    };
    bindEvents();
}

void DiaryPage::bindEvents() {
    Option6->Click = [this] { Form2_Option6_Click(); };
    Option5->Click = [this] { Form2_Option5_Click(); };
    for (OptionButton* option : {Option6, Option5})
        showHandOver(option);
    m_buttons.remove->setToolTip(u"删除日记列表里的第一条，不看这里填了什么；\n正文的文件会留着。"_s);
    m_buttons.add->Click = [this] { Form2_Command22_Click(); };
    m_buttons.remove->Click = [this] { Form2_Command23_Click(); };
    m_buttons.save->Click = [this] { Form2_Command24_Click(); };
    markHovered(Frame10, {m_buttons.add, m_buttons.remove, m_buttons.save});
    Frame10.Click = [this] { m_shared.unloadDatePicker(); };
    ms8->Click = [this] { Form2_ms8_Click(); };
    ms8->objection = [this](int row, int col) { return objectionTo(row, col); };
    m_editing.box->Click = [this] { Form2_tx9_Click(); };
    m_editing.entered = [this] { entered(); };
    m_editing.keys.remove = m_buttons.remove;
    m_editing.keys.takesTyping = [this] { return !diarySearchMode; };
    new PickerKeys(m_shared, *m_editing.box, [this] { return ms8->Col() == DateColumn; });
    tx8->Click = [this] { Form2_tx8_Click(); };
}

// ---- the two modes

void DiaryPage::Form2_Label8_Click() {
    navigation().leaveOthers(*this, PageCode::Diary);
    Option6->setValue(true);
    m_editing.close();
    navigation().bringForward(*this);
    layOutGrid();
}

void DiaryPage::layOutGrid() {
    layEvenColumns(*ms8, Columns, 350);
    startRows(*ms8);
}

void DiaryPage::Form2_Option6_Click() {
    m_shared.unloadDatePicker();
    tx8->setBoxText({});
    ms8->setRows(2);
    diarySearchMode = false;
    m_editing.close();
    m_buttons.setUsable(true);
    setHint(*tx8, HowToWrite);
    ms8->ground.clear();
    blankRows(*ms8);
    ms8->watchChanges(0);
    m_dayColumn = Adodc1.open(tables::Diary.toString()).field(columns::Day).column();
}

void DiaryPage::Form2_Option5_Click() {
    m_shared.unloadDatePicker();
    diarySearchMode = true;
    setHint(*tx8, HowToRead);
    ms8->restChanges();
    m_editing.close();
    m_buttons.setUsable(false);
    Recordset& entries = Adodc1.open(u"select 日期,日记标题 from rjb"_s);
    m_entries = Adodc1.loaded();
    ms8->ground.set(entries.recordCount() == 0 ? NothingToFind.toString() : QString(), GroundWords::Shown::Always);
    ms8->setRows(2);
    // An empty text goes to the row number that all lists share, the loan grid's.
    KeptValues unsaved; // what is found is only read
    fillList(*ms8, entries, shownFields(Columns), unsaved, [this] { return m_shared.loanRow(); });
}

std::vector<EditorTarget> DiaryPage::searchedLists() const {
    if (!diarySearchMode)
        return {};
    return {{m_editing.box, ms8}};
}

// ---- the grid and its box

void DiaryPage::Form2_ms8_Click() {
    tx8->setBoxText({});
    if (diarySearchMode)
        showEntry();
    else
        editCell();
}

void DiaryPage::editCell() {
    m_editing.open();
    if (ms8->Col() == DateColumn)
        openPicker();
    else
        m_shared.unloadDatePicker();
}

/// Of the entry that is being written; what the list shows has been saved.
QString DiaryPage::objectionTo(int row, int col) const {
    const QString text = ms8->TextMatrix(row, col);
    if (diarySearchMode || text.isEmpty())
        return {};
    if (col == DateColumn)
        return stopsTheSave(refusal(m_dayColumn, text, m_shared.store.thisYear()));
    const QString why = diary::objection(text);
    return stopsTheSave(why.isEmpty() ? why : u"不能用作文件名（"_s + why + u'）');
}

void DiaryPage::openPicker() {
    m_shared.openDatePicker(DateField::Diary, {m_editing.box, ms8}, placeBelow(*m_editing.box, PickerGap));
}

void DiaryPage::showEntry() {
    m_editing.close();
    const QString title = ms8->Text();
    if (m_entries->records().recordCount() == 0 || title.isEmpty() || ms8->Col() == DateColumn)
        return;
    // The text runs on over its line ends: an entry is read as one paragraph.
    tx8->setBoxText(diary::readLines(fileOf(title)));
}

QString DiaryPage::fileOf(const QString& title) const {
    return diary::filePath(m_shared.safeDiaryFolder(), title);
}

void DiaryPage::Form2_tx9_Click() {
    if (ms8->Col() == DateColumn)
        openPicker();
}

void DiaryPage::entered() {
    m_editing.commit();
    if (ms8->Row() == ms8->Rows() - 1 && ms8->Col() == ms8->Cols() - 1) {
        m_editing.close();
        ms8->takeFocus();
    } else if (ms8->Col() < TitleColumn) {
        ms8->setCol(ms8->Col() + 1);
        m_editing.open();
        m_shared.unloadDatePicker();
    }
}

void DiaryPage::Form2_tx8_Click() {
    // A title that was typed and not confirmed is kept so.
    m_editing.commitAndClose();
    m_shared.unloadDatePicker();
}

// ---- adding, deleting, saving

void DiaryPage::Form2_Command22_Click() {
    m_shared.unloadDatePicker();
    ms8->setRows(2);
    blankRows(*ms8);
    ms8->watchChanges(0);
    tx8->setBoxText({});
}

void DiaryPage::Form2_Command23_Click() {
    m_shared.unloadDatePicker();
    m_editing.close();
    if (!isDeletionWanted(m_shared))
        return;
    // By place, whatever the grid shows; the file stays, so that the title is free again.
    deleteAt(Adodc1.open(tables::Diary.toString()), ms8->Row());
    if (ms8->Rows() >= 3)
        ms8->RemoveItem(ms8->Row());
}

bool DiaryPage::refusesGap() {
    if (ms8->firstEmpty(ms8->Row(), 1, ms8->Cols()) == ms8->Cols())
        return false;
    m_shared.tell(u"日期和标题都不能为空"_s, u"保存提示"_s);
    return true;
}

bool DiaryPage::refusesTitle() {
    Recordset& entries = Adodc1.recordset();
    if (entries.recordCount() == 0)
        return false;
    const QString title = ms8->TextMatrix(1, TitleColumn);
    for (entries.moveFirst(); !entries.eof(); entries.moveNext()) {
        if (entries.field(columns::DiaryTitle).text() != title)
            continue;
        m_shared.tell(u"此标题已经存在，请更换新的标题！"_s, u"提示"_s);
        return true;
    }
    return false;
}

void DiaryPage::Form2_Command24_Click() {
    m_shared.unloadDatePicker();
    Recordset& entries = Adodc1.open(tables::Diary.toString());
    ms8->setRow(1);
    if (refusesGap())
        return;
    // Named only: titles are compared, and the row is added, in the whole table in hand.
    Adodc1.setRecordSource(u"select 日记标题 from rjb"_s);
    if (refusesTitle())
        return;
    const KeptValues none; // the entry has just been typed
    RowWriter(*ms8, entries, savedFields(Columns), none).add(ms8->Row());
    m_editing.closeSaved();
    diary::write(fileOf(ms8->TextMatrix(1, TitleColumn)), tx8->Text());
    m_kept = entry();
    tx8->forgetTyped();
    ms8->watchChanges(1);
    m_shared.services.say(u"日志已经保存！"_s, MessageStyle::Ok, u"保存提示"_s);
}

// ---- what is not in the book

QStringList DiaryPage::entry() const {
    const auto cell = [this](int column) {
        if (column >= ms8->Cols()) // the page was not opened yet
            return QString();
        const bool typing = m_editing.box->Visible() && ms8->Col() == column;
        return typing ? m_editing.box->Text() : ms8->TextMatrix(1, column);
    };
    return {cell(DateColumn), cell(TitleColumn), tx8->Text()};
}

void DiaryPage::rescue(RescuedTexts& texts) const {
    const QStringList written = entry();
    // What find mode lists and shows is in the book.
    if (diarySearchMode || written == m_kept || written.join(QString()).isEmpty())
        return;
    texts.add(Frame10.Caption(), {u"日期："_s + written[0], u"标题："_s + written[1], u"正文："_s, written[2]});
}

} // namespace qinghe
