#include "ledger/loans_page.h"

#include "core/grid_rows.h"
#include "core/hover.h"
#include "runtime/number_format.h"

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr int PageCode = 1;
constexpr int AmountColumn = 3, NoteColumn = 8;
// When the picture brings the page up; twips.
constexpr double WideNoteWidth = 3200, RaisedTop = 1560;

constexpr PageTab Tabs[] = {{u"Label1", u"  暂借", 3240, PageCode}};

constexpr std::array<GridPage::Column, 8> Columns{{
    {u"账户", 1150},
    {u"日期", 1150},
    {u"借出金额", 1150},
    {u"已还金额", 1150},
    {u"余额", 1150},
    {u"借出人", 1150},
    {u"借给人", 1150},
    {u"备注", 2800},
}};

const GridPage::Traits Loans{
    .page = {u"Frame6", u"借入—借出", 120, 1680, 11655, 6255, Tabs},
    .grid = u"ms1",
    .editor = u"tx1",
    .add = u"Command1",
    .remove = u"Command2",
    .save = u"Command3",
    .columns = Columns,
    .date = {.column = 2, .target = 4, .opensOnEnter = true},
    .amounts = {.onClick = {3, 4}, .onEnter = {}, .target = 2},
    .shownAsAmounts = {3, 5},
    .closedColumn = 5,
    .addedBox = GridPage::AddedBox::KeepsText,
    .lastRow = GridPage::LastRow::BlankedWhenFirst,
    .rowInSave = GridPage::RowInSave::Stays,
    .refreshWhenEmptied = true,
};

} // namespace

struct LoansPage::List {
    const char16_t* table;
    const char16_t* amount; ///< caption of the first amount
    const char16_t* frameCaption;
    const char16_t* totalSource;
    std::array<const char16_t*, 4> totalWords; ///< before, between and behind the sums
};

const LoansPage::List& LoansPage::borrowed() {
    static constexpr List list{
        u"jrb", u"借入金额", u"借入记录", u"select sum(借入金额) as 借入金额 from jrb ", {u"当前借入总额为：", u"元 "},
    };
    return list;
}

const LoansPage::List& LoansPage::lent() {
    static constexpr List list{
        u"jcb",
        u"借出金额",
        u"借出表",
        u"select sum(借出金额) as 借出金额,sum(已还金额) as 已还金额,sum(余额) as 余额 from jcb ",
        {u"当前借出总额为：", u"元 ，已还金额为：", u" 元，目前余额为", u" 元"},
    };
    return list;
}

LoansPage::LoansPage(MainWindow& form)
    : GridPage(form, Loans),
      Option1(new OptionButton(&frame, u"Option1"_s, u"借入表"_s)),
      Option2(new OptionButton(&frame, u"Option2"_s, u"借出表"_s)),
      Label11(new Label(&frame, u"Label11"_s)),
      Image1(new Image(&form, u"Image1"_s)) {
    Option1->place(240, 390, 1200, 300);
    Option2->place(1560, 390, 1200, 300);
    Label11->place(240, 5760, 11000, 375);
    Label11->setRole(Role::Total);
    Option1->Click = [this] { Form2_Option1_Click(); };
    Option2->Click = [this] { Form2_Option2_Click(); };
    for (OptionButton* option : {Option1, Option2})
        showHandOver(option);
    makeImage1();
}

void LoansPage::makeImage1() {
    Image1->place(9510, 150, 375, 375);
    Image1->setRole(Role::Glyph);
    Image1->setGlyph(Glyph::Borrow);
    Image1->setToolTip(u"借入记录"_s);
    Image1->Click = [this] { Form2_Image1_Click(); };
    showHandOver(Image1);
}

QString LoansPage::table() const {
    return QString::fromUtf16((Option1->Value() ? borrowed() : lent()).table);
}

void LoansPage::Form2_Label1_Click() {
    navigation().leaveOthers(*this, PageCode);
    hideEditor();
    navigation().bringForward(*this);
    bringUp(*Option2, lent());
}

void LoansPage::Form2_Image1_Click() {
    // Tools stay open, and neither the labels nor currentPage follow: the page is laid over the one that is chosen.
    navigation().hideOthers(*this);
    hideEditor();
    const PageTraits& place = traits.page;
    frame.place(place.left, RaisedTop, place.width, place.height);
    navigation().show(*this);
    bringUp(*Option1, borrowed());
    grid->setColWidth(NoteColumn, WideNoteWidth);
}

void LoansPage::bringUp(OptionButton& option, const List& list) {
    // Only an option that was not set yet runs its click, which writes the totals as well.
    option.setValue(true);
    loadList(list);
}

void LoansPage::Form2_Option1_Click() {
    choose(borrowed());
}

void LoansPage::Form2_Option2_Click() {
    choose(lent());
}

void LoansPage::choose(const List& list) {
    m_shared.unloadPickers();
    hideEditor();
    m_shared.editors.at(u"ms2"_s).box->setShown(false);
    frame.setCaption(QString::fromUtf16(list.frameCaption));
    startRows(*grid);
    blankRow(*grid, 1);
    loadList(list);
    navigation().bringForward(*this);
    showTotal(list);
    // Whoever asks the control finds the bare table there, not the sum.
    Adodc1.setConnectionString(m_shared.connection());
    load(QString::fromUtf16(list.table));
}

void LoansPage::formClicked() {
    // The list's own visibility decides, which stays while the page is hidden: its box is committed then as well.
    if (!grid->Visible())
        return;
    commitAndHideBox();
    grid->takeFocus();
}

void LoansPage::loadList(const List& list) {
    loadTable();
    captionColumn(AmountColumn, list.amount);
}

void LoansPage::showTotal(const List& list) {
    Recordset& sums = Adodc1.open(QString::fromUtf16(list.totalSource));
    if (!sums.field(0).differsFromEmpty()) {
        // The word for lent stands on the borrowed list too, and is meant to.
        Label11->setCaption(QString::fromUtf16(lent().totalWords[0]) + u"0.00元"_s);
        return;
    }
    QString caption;
    for (int i = 0; i < sums.fieldCount(); ++i)
        caption += QString::fromUtf16(list.totalWords[static_cast<std::size_t>(i)]) +
                   formatNumber(sums.field(i).value(), u"##.00"_s);
    Label11->setCaption(caption + QString::fromUtf16(list.totalWords[static_cast<std::size_t>(sums.fieldCount())]));
}

} // namespace qinghe
