#include "ledger/loans_page.h"

#include "core/hover.h"
#include "runtime/money.h"
#include "store/tables.h"

#include <QMenu>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

using Kind = GridPage::Kind;

constexpr int NoteColumn = 8;
// When the picture brings the page up; twips.
constexpr double WideNoteWidth = 3200, RaisedTop = 1560;

constexpr PageTab Tabs[] = {{u"Label1", u"  暂借", 3240, PageCode::Loans}};

constexpr std::array<GridPage::Column, 8> columnsOf(QStringView amountCaption, QStringView amountField) {
    return {{
        {{u"账户", columns::Account}, 1150},
        {{u"日期", columns::Day}, 1150, Kind::Date},
        {{amountCaption, amountField}, 1150, Kind::Amount},
        {{u"已还金额", columns::PaidBack}, 1150, Kind::Amount},
        {{u"余额", columns::Balance}, 1150, Kind::WorkedOut},
        {{u"借出人", columns::Lender}, 1150},
        {{u"借给人", columns::Borrower}, 1150},
        {{u"备注", columns::Note}, 2800},
    }};
}

constexpr auto BorrowedColumns = columnsOf(u"借入金额", columns::BorrowedAmount);
constexpr auto LentColumns = columnsOf(u"借出金额", columns::LentAmount);

const GridPage::Traits LoanPage{
    .page = {u"Frame6", u"借入—借出", 120, 1680, 11655, 6255, Tabs},
    .grid = names::LoanGrid,
    .editor = u"tx1",
    .buttons = {u"Command1", u"Command2", u"Command3"},
    .list = {tables::Lent, LentColumns, u"借出记录"},
    .dateField = DateField::Loans,
    .amountField = AmountField::Loans,
    .quirks = {.calculatorOnEnter = GridPage::CalculatorOnEnter::Never,
               .addKeepsBoxText = true,
               .deleteBlanksFirstRow = true,
               .rowInSave = GridPage::RowInSave::Stays,
               .saveReadsEmptied = true,
               .formClickReachesHidden = true,
               .formClickTakesKeyboard = true},
};

} // namespace

struct LoansPage::Loans {
    List list;
    QStringView frameCaption;
    QStringView totalSource;
    QStringView total; ///< %1 and on stand for the sums, ¤ for the sign of money
};

const LoansPage::Loans& LoansPage::borrowed() {
    static constexpr Loans Chosen{
        {tables::Borrowed, BorrowedColumns, u"借入记录"},
        u"借入记录",
        u"select sum(借入金额) as 借入金额 from jrb ",
        u"当前借入总额为：%1¤ ",
    };
    return Chosen;
}

const LoansPage::Loans& LoansPage::lent() {
    static constexpr Loans Chosen{
        {tables::Lent, LentColumns, u"借出记录"},
        u"借出表",
        u"select sum(借出金额) as 借出金额,sum(已还金额) as 已还金额,sum(余额) as 余额 from jcb ",
        u"当前借出总额为：%1¤ ，已还金额为：%2 ¤，目前余额为%3 ¤",
    };
    return Chosen;
}

LoansPage::LoansPage(MainWindow& window)
    : GridPage(window, LoanPage),
      Option1(new OptionButton(&m_frame, u"Option1"_s, u"借入表"_s)),
      Option2(new OptionButton(&m_frame, u"Option2"_s, u"借出表"_s)),
      Label11(new Label(&m_frame, u"Label11"_s)),
      Image1(new Image(&window, u"Image1"_s)),
      m_balanceMenu(new QMenu(m_grid)) {
    Option1->place(240, 390, 1200, 300);
    Option2->place(1560, 390, 1200, 300);
    Label11->place(240, 5760, 11000, 375);
    Label11->setRole(Role::Total);
    Label11->setToolTip(u"换到这张表时算的总额，之后的增删和保存没有计入；\n在借入表和借出表之间换一次就会重算。"_s);
    Option1->Click = [this] { Form2_Option1_Click(); };
    Option2->Click = [this] { Form2_Option2_Click(); };
    for (OptionButton* option : {Option1, Option2})
        showHandOver(option);
    makeImage1();
    makeBalanceMenu();
}

void LoansPage::makeBalanceMenu() {
    const QAction* entry = m_balanceMenu->addAction(u"用计算器填余额…"_s);
    connect(entry, &QAction::triggered, this,
            [this] { handlers::enter([this] { reckon(m_menuRow, columnOf(columns::Balance)); }); });
    m_grid->hints.menuOf = [this](int row, int col) {
        m_menuRow = row;
        return col == columnOf(columns::Balance) ? m_balanceMenu : nullptr;
    };
    m_grid->hints.tipOf = [this](int, int col) {
        return col == columnOf(columns::Balance) ? u"余额不能直接键入：点右键（或按菜单键），选“用计算器填余额…”。"_s
                                                 : QString();
    };
}

void LoansPage::makeImage1() {
    Image1->place(9510, 150, 375, 375);
    Image1->setRole(Role::Glyph);
    Image1->setGlyph(Glyph::Borrow);
    Image1->setToolTip(u"借入记录"_s);
    Image1->Click = [this] { Form2_Image1_Click(); };
    Image1->setReachable();
    showHandOver(Image1);
}

const LoansPage::Loans& LoansPage::chosen() const {
    return Option1->Value() ? borrowed() : lent();
}

const GridPage::List& LoansPage::list() const {
    return chosen().list;
}

void LoansPage::Form2_Label1_Click() {
    navigation().leaveOthers(*this, PageCode::Loans);
    m_editing.close();
    navigation().bringForward(*this);
    Option2->setValue(true); // only where it was not set yet this runs its click, which writes the totals as well
    loadTable();
}

void LoansPage::Form2_Image1_Click() {
    // Tools stay open, and neither the labels nor currentPage follow: the page is laid over the one that is chosen.
    navigation().hideOthers(*this);
    m_editing.close();
    const PageTraits& place = m_traits.page;
    m_frame.place(place.left, RaisedTop, place.width, place.height);
    navigation().show(*this);
    Option1->setValue(true);
    loadTable();
    m_grid->setColWidth(NoteColumn, WideNoteWidth);
}

void LoansPage::Form2_Option1_Click() {
    choose();
}

void LoansPage::Form2_Option2_Click() {
    choose();
}

void LoansPage::choose() {
    m_shared.unloadPickers();
    m_editing.close();
    m_shared.editors.at(names::LedgerGrid).box->setShown(false);
    m_frame.setCaption(chosen().frameCaption.toString());
    startRows(*m_grid);
    blankRow(*m_grid, 1);
    loadTable();
    navigation().bringForward(*this);
    showTotal();
    showLoaded(); // not the sum
}

void LoansPage::showTotal() {
    Recordset& sums = Adodc1.open(chosen().totalSource.toString());
    if (!sums.field(0).differsFromEmpty()) {
        // One line for both lists: that of a list without loans.
        Label11->setCaption(u"当前借出总额为："_s + money::none());
        return;
    }
    QString total = chosen().total.toString().replace(u'¤', money::Sign.toString());
    for (int i = 0; i < sums.fieldCount(); ++i)
        total = total.arg(money::amount(sums.field(i).value()));
    Label11->setCaption(total);
}

} // namespace qinghe
