#include "ledger/income_expense_page.h"

#include "core/grid_rows.h"
#include "core/hover.h"
#include "runtime/number_format.h"
#include "runtime/runtime_error.h"

#include <cmath>
#include <limits>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr int IncomePage = 20, ExpensePage = 21;
constexpr int PersonColumn = 4;
constexpr int MonthLength = 7; ///< characters of a date's text that make its month

constexpr PageTab Tabs[] = {
    {u"Label2(0)", u"  收入", 1080, IncomePage},
    {u"Label2(1)", u"  支出", 2160, ExpensePage},
};

constexpr std::array<GridPage::Column, 7> Columns{{
    {u"编号", 1150},
    {u"时间", 1150},
    {u"项目", 1150},
    {u"收款人", 1150},
    {u"金额", 1150},
    {u"账户", 1150},
    {u"备注", 3900},
}};

const GridPage::Traits IncomeExpense{
    .page = {u"Frame2", u"收入—支出", 120, 1680, 11655, 6255, Tabs},
    .grid = u"ms2",
    .editor = u"tx2",
    .add = u"Command4",
    .remove = u"Command5",
    .save = u"Command6",
    .columns = Columns,
    .date = {.column = 2, .target = 3, .opensOnEnter = true},
    .amounts = {.onClick = {5, 5}, .onEnter = {5, 5}, .target = 1},
    .shownAsAmounts = {5, 5},
};

float single(double total) {
    if (!(std::abs(total) <= std::numeric_limits<float>::max()))
        throw RuntimeError(RuntimeError::Overflow, u"溢出：收支总额太大，超过了 3.4E+38。"_s);
    return static_cast<float>(total);
}

} // namespace

struct IncomeExpensePage::Side {
    int page;
    const char16_t* table;
    const char16_t* statisticsSource;
    const char16_t* totalSource;
    const char16_t* person; ///< the column and its caption
    const char16_t* frameCaption;
    const char16_t* totalCaption;
    float IncomeExpensePage::*total;
};

IncomeExpensePage::IncomeExpensePage(MainWindow& form)
    : GridPage(form, IncomeExpense),
      Option7(new OptionButton(&frame, u"Option7"_s, u"录入数据"_s)),
      Option8(new OptionButton(&frame, u"Option8"_s, u"本月项目统计"_s)),
      Option9(new OptionButton(&frame, u"Option9"_s, u"本月人员收支统计"_s)),
      Label10(new Label(&frame, u"Label10"_s)),
      m_statistics(form, *grid, *Label10, ledgerSide) {
    Option7->place(240, 390, 1380, 300);
    Option8->place(1740, 390, 1800, 300);
    Option9->place(3660, 390, 2280, 300);
    Label10->place(240, 5760, 11000, 375);
    Label10->setRole(Role::Total);
    Option7->setValue(true);
    Option7->Click = [this] { Form2_Option7_Click(); };
    Option8->Click = [this] { Form2_Option8_Click(); };
    Option9->Click = [this] { Form2_Option9_Click(); };
    for (OptionButton* option : {Option7, Option8, Option9})
        showHandOver(option);
    frame.Click = [this] { Form2_Frame2_Click(); };
}

const IncomeExpensePage::Side& IncomeExpensePage::side() const {
    static constexpr Side income{IncomePage,
                                 u"srb",
                                 u"select 时间,项目,收款人,金额 from srb",
                                 u"select sum(金额) as 金额 from srb ",
                                 u"收款人",
                                 u"收入记录",
                                 u"当前收入总额为：",
                                 &IncomeExpensePage::incomeTotal};
    static constexpr Side expense{ExpensePage,
                                  u"zcb",
                                  u"select 时间,项目,付款人,金额 from zcb",
                                  u"select sum(金额) as 金额 from zcb ",
                                  u"付款人",
                                  u"支出记录",
                                  u"当前支出总额为：",
                                  &IncomeExpensePage::expenseTotal};
    return ledgerSide == 1 ? income : expense;
}

QString IncomeExpensePage::table() const {
    return QString::fromUtf16(side().table);
}

void IncomeExpensePage::beforeSave() {
    load(table());
}

bool IncomeExpensePage::takesClicks() const {
    return !Option8->Value() && !Option9->Value();
}

void IncomeExpensePage::tabClicked(int code) {
    Form2_Label2_Click(code == IncomePage ? 0 : 1);
}

void IncomeExpensePage::Form2_Label2_Click(int index) {
    ledgerSide = index == 0 ? 1 : 0;
    navigation().leaveOthers(*this, side().page);
    Adodc1.setConnectionString(m_shared.connection());
    Adodc1.open(QString::fromUtf16(side().statisticsSource));
    refillStatistics();

    grid->setUsable(true);
    frame.setCaption(QString::fromUtf16(side().frameCaption));
    startRows(*grid);
    blankRow(*grid, 1);
    loadTable();
    captionPerson();
    hideEditor();
    Option7->setValue(true);
    showTotal();
    // Whoever asks the control finds the bare table there, not the sum.
    load(table());
    navigation().bringForward(*this);
}

void IncomeExpensePage::captionPerson() {
    grid->setTextMatrix(0, PersonColumn, QString::fromUtf16(side().person));
}

void IncomeExpensePage::refillStatistics() {
    Adodc& Adodc2 = *m_window.Adodc2;
    Adodc2.setConnectionString(m_shared.connection());
    Recordset& statistics = Adodc2.open(u"sztjlsb"_s);
    emptyTable(statistics);
    Recordset& records = Adodc1.recordset();
    const QString person = QString::fromUtf16(side().person);
    for (int counter = 1; !records.eof(); records.moveNext(), ++counter) {
        statistics.addNew();
        statistics.field(u"时间"_s).setValue(records.field(u"时间"_s).text().left(MonthLength));
        statistics.field(u"金额"_s).setValue(records.field(u"金额"_s).value());
        statistics.field(u"项目"_s).setValue(records.field(u"项目"_s).value());
        statistics.field(u"区别"_s).setValue(counter);
        statistics.field(u"人员"_s).setValue(records.field(person).value());
        statistics.update();
    }
}

void IncomeExpensePage::showTotal() {
    Recordset& sum = Adodc1.open(QString::fromUtf16(side().totalSource));
    const QString caption = QString::fromUtf16(side().totalCaption);
    const Field field = sum.field(0);
    if (!field.differsFromEmpty()) {
        Label10->setCaption(caption + u"0.00元"_s);
        return;
    }
    const double total = field.value().number();
    this->*side().total = single(total);
    Label10->setCaption(caption + formatNumber(total, u"##.00"_s) + u"元 "_s);
}

void IncomeExpensePage::Form2_Option7_Click() {
    m_shared.unloadPickers();
    setEditing(true);
    // An empty table leaves the first row as it is.
    loadTable();
    captionPerson();
    // No sum is computed here: the total is that of the last opening.
    Label10->setCaption(QString::fromUtf16(side().totalCaption) + formatNumber(this->*side().total, u"0.00元"_s));
    navigation().bringForward(*this);
    hideEditor();
}

void IncomeExpensePage::formClicked() {
    // The list's own visibility decides, which stays while the page is hidden: its box is committed then as well.
    if (!grid->isEnabled() || !grid->Visible())
        return;
    commitAndHideBox();
    grid->takeFocus();
}

void IncomeExpensePage::setEditing(bool allowed) {
    for (CommandButton* button : {addButton, removeButton, saveButton})
        button->setUsable(allowed);
    grid->setRole(allowed ? Role::Plain : Role::Report);
    grid->setUsable(allowed);
}

bool IncomeExpensePage::pickerIsVisible() const {
    const Form* picker = m_shared.forms.loaded(u"Form1"_s);
    return picker && picker->Visible();
}

void IncomeExpensePage::Form2_Option8_Click() {
    if (pickerIsVisible())
        m_shared.unloadPickers();
    closeEditing();
    m_statistics.showItems();
}

void IncomeExpensePage::Form2_Option9_Click() {
    // A calculator stays open here, and is meant to.
    if (pickerIsVisible())
        m_shared.forms.unload(u"Form1"_s);
    closeEditing();
    m_statistics.showPeople();
}

void IncomeExpensePage::closeEditing() {
    editor->setBoxText({});
    hideEditor();
    setEditing(false);
}

void IncomeExpensePage::Form2_Frame2_Click() {
    m_shared.unloadPickers();
    if (const auto loans = m_shared.editors.find(u"ms1"_s);
        loans != m_shared.editors.end() && loans->second.grid->Visible()) {
        loans->second.box->setShown(false);
        loans->second.grid->takeFocus();
    }
    if (!grid->Visible())
        return;
    hideEditor();
    if (grid->isEnabled())
        grid->takeFocus();
}

} // namespace qinghe
