#include "ledger/income_expense_page.h"

#include "controls/report_reader.h"
#include "core/hover.h"
#include "core/scratch_ledger.h"
#include "runtime/money.h"
#include "store/tables.h"

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

using Kind = GridPage::Kind;

constexpr PageTab Tabs[] = {
    {u"Label2(0)", u"  收入", 1080, PageCode::Income},
    {u"Label2(1)", u"  支出", 2160, PageCode::Expense},
};

constexpr std::array<GridPage::Column, 7> columnsOf(QStringView person) {
    return {{
        {{u"编号", columns::Code}, 1150},
        {{u"时间", columns::Time}, 1150, Kind::Date},
        {{u"项目", columns::Item}, 1150},
        {{person, person}, 1150},
        {{u"金额", columns::Amount}, 1150, Kind::Amount},
        {{u"账户", columns::Account}, 1150},
        {{u"备注", columns::Note}, 3900},
    }};
}

constexpr auto IncomeColumns = columnsOf(columns::Payee), ExpenseColumns = columnsOf(columns::Payer);

const GridPage::Traits IncomeExpense{
    .page = {u"Frame2", u"收入—支出", 120, 1680, 11655, 6255, Tabs},
    .grid = names::LedgerGrid,
    .editor = u"tx2",
    .buttons = {u"Command4", u"Command5", u"Command6"},
    .list = {tables::Income, IncomeColumns, u"收入"},
    .dateField = DateField::Ledger,
    .amountField = AmountField::Ledger,
    .quirks = {.saveLoadsAnew = true, .formClickReachesHidden = true, .formClickTakesKeyboard = true},
};

} // namespace

struct IncomeExpensePage::Side {
    PageCode page;
    List list;
    QStringView person;
    QStringView statisticsSource;
    QStringView totalSource;
    QStringView frameCaption;
    QStringView totalCaption;
    float IncomeExpensePage::*total;
};

IncomeExpensePage::IncomeExpensePage(MainWindow& window)
    : GridPage(window, IncomeExpense),
      Option7(new OptionButton(&m_frame, u"Option7"_s, u"录入数据"_s)),
      Option8(new OptionButton(&m_frame, u"Option8"_s, u"本月项目统计"_s)),
      Option9(new OptionButton(&m_frame, u"Option9"_s, u"本月人员收支统计"_s)),
      Label10(new Label(&m_frame, u"Label10"_s)),
      m_statistics(window, *m_grid, *Label10, ledgerSide) {
    new ReportReader(*m_grid);
    placeControls();
    Option7->setValue(true);
    Option7->Click = [this] { Form2_Option7_Click(); };
    Option8->Click = [this] { Form2_Option8_Click(); };
    Option9->Click = [this] { Form2_Option9_Click(); };
    for (OptionButton* option : {Option7, Option8, Option9})
        showHandOver(option);
}

void IncomeExpensePage::placeControls() {
    Option7->place(240, 390, 1380, 300);
    Option8->place(1740, 390, 1800, 300);
    Option9->place(3660, 390, 2280, 300);
    Label10->place(240, 5760, 11000, 375);
    Label10->setRole(Role::Total);
    Label10->setToolTip(u"打开本页时算的总额，之后的增删和保存没有计入；\n再点一次上面的“收入”或“支出”就会重算。"_s);
}

const IncomeExpensePage::Side& IncomeExpensePage::side() const {
    static constexpr Side Income{PageCode::Income,
                                 {tables::Income, IncomeColumns, u"收入"},
                                 columns::Payee,
                                 u"select 时间,项目,收款人,金额 from srb",
                                 u"select sum(金额) as 金额 from srb ",
                                 u"收入记录",
                                 u"当前收入总额为：",
                                 &IncomeExpensePage::incomeTotal};
    static constexpr Side Expense{PageCode::Expense,
                                  {tables::Expense, ExpenseColumns, u"支出"},
                                  columns::Payer,
                                  u"select 时间,项目,付款人,金额 from zcb",
                                  u"select sum(金额) as 金额 from zcb ",
                                  u"支出记录",
                                  u"当前支出总额为：",
                                  &IncomeExpensePage::expenseTotal};
    return ledgerSide == 1 ? Income : Expense;
}

const GridPage::List& IncomeExpensePage::list() const {
    return side().list;
}

bool IncomeExpensePage::takesClicks() const {
    return !Option8->Value() && !Option9->Value();
}

// ---- the way in

void IncomeExpensePage::tabClicked(PageCode code) {
    Form2_Label2_Click(code == PageCode::Income ? 0 : 1);
}

void IncomeExpensePage::Form2_Label2_Click(int index) {
    ledgerSide = index == 0 ? 1 : 0;
    navigation().leaveOthers(*this, side().page);
    Adodc1.open(side().statisticsSource.toString());
    m_statisticsStand = m_shared.store.tryToWrite([this] { refillStatistics(); });

    m_grid->setUsable(true);
    m_frame.setCaption(side().frameCaption.toString());
    startRows(*m_grid);
    blankRow(*m_grid, 1);
    loadTable();
    m_editing.close();
    Option7->setValue(true);
    showTotal();
    showLoaded(); // not the sum
    navigation().bringForward(*this);
}

void IncomeExpensePage::refillStatistics() {
    Recordset& statistics = m_window.Adodc2->open(tables::MonthScratch.toString());
    emptyTable(statistics);
    const ScratchColumn more[] = {{columns::Item, columns::Item}, {side().person, columns::Person}};
    fillScratchLedger(Adodc1.recordset(), statistics, more);
}

/// The records can be looked at on a full disk too; the reports, which would be of another time or side, can not.
void IncomeExpensePage::requireStatistics() const {
    if (!m_statisticsStand)
        throw RuntimeError(RuntimeError::DiskFull, u"磁盘已满，本月的统计没有能算出来。请腾出空间，再启动程序。"_s);
}

void IncomeExpensePage::showTotal() {
    const Field sum = Adodc1.open(side().totalSource.toString()).field(0);
    const QString caption = side().totalCaption.toString();
    if (!sum.differsFromEmpty()) {
        Label10->setCaption(caption + money::none());
        return;
    }
    const Value total = sum.value();
    this->*side().total = money::singleTotal(total.number());
    Label10->setCaption(caption + money::yuan(total) + ' '_L1);
}

// ---- data, or a report of the month

void IncomeExpensePage::Form2_Option7_Click() {
    m_shared.unloadPickers();
    setEditing(true);
    // An empty table leaves the first row as it is.
    loadTable();
    // No sum is computed here: the total is that of the last opening.
    Label10->setCaption(side().totalCaption.toString() + money::fullYuan(this->*side().total));
    navigation().bringForward(*this);
    m_editing.close();
}

void IncomeExpensePage::setEditing(bool allowed) {
    m_buttons.setUsable(allowed);
    m_grid->setRole(allowed ? Role::Plain : Role::Report);
    m_grid->setAccessibleName(allowed ? QString() : list().subject.toString() + shownReport());
    m_grid->setUsable(allowed);
    if (allowed)
        m_grid->ground.set(HowToBegin.toString()); // a report has its own
}

QString IncomeExpensePage::shownReport() const {
    return (Option9->Value() ? Option9 : Option8)->text();
}

bool IncomeExpensePage::pickerIsVisible() const {
    const Form* picker = m_shared.forms.loaded(names::DatePicker);
    return picker && picker->Visible();
}

void IncomeExpensePage::Form2_Option8_Click() {
    requireStatistics();
    if (pickerIsVisible())
        m_shared.unloadPickers();
    closeEditing();
    m_statistics.showItems();
}

void IncomeExpensePage::Form2_Option9_Click() {
    requireStatistics();
    // A calculator stays open here: somebody may be reckoning with what the report shows.
    if (pickerIsVisible())
        m_shared.unloadDatePicker();
    closeEditing();
    m_statistics.showPeople();
}

void IncomeExpensePage::closeEditing() {
    m_grid->restChanges(); // a report follows
    m_editing.box->setBoxText({});
    m_editing.close();
    setEditing(false);
}

void IncomeExpensePage::Form2_Frame2_Click() {
    m_shared.finishPickers();
    if (const auto loans = m_shared.editors.find(names::LoanGrid);
        loans != m_shared.editors.end() && loans->second.grid->Visible()) {
        loans->second.box->setShown(false);
        loans->second.grid->takeFocus();
    }
    if (!m_grid->Visible())
        return;
    m_editing.close();
    if (m_grid->isEnabled())
        m_grid->takeFocus();
}

} // namespace qinghe
