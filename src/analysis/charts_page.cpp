#include "analysis/charts_page.h"

#include "core/grid_rows.h"
#include "core/hover.h"
#include "core/picker_keys.h"
#include "core/scratch_ledger.h"
#include "runtime/months.h"

#include <algorithm>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr PageTab Tabs[] = {{u"Label12", u"  图表", 6480, PageCode::Charts}};
constexpr PageTraits Charts{u"Frame15", u"图表分析", 120, 1680, 11655, 6225, Tabs};

constexpr int Income = 1, Expense = 2;
constexpr double PickerGap = 20; ///< twips between a date box and the picker under it

/// The words in the date boxes before a date is chosen.
constexpr QStringView FirstDate = u"日期1", SecondDate = u"日期2";

} // namespace

struct ChartsPage::QueryChart {
    OptionButton* ChartsPage::*option;
    QStringView query;
    int kind = 0; ///< that can be narrowed to a range of dates, or 0
};

struct ChartsPage::MonthChart {
    OptionButton* ChartsPage::*option;
    QStringView ledger;
    QStringView work;
    QStringView workAgain; ///< the name under which the emptied table is opened once more, if it is
    QStringView sums;
};

ChartsPage::ChartsPage(MainWindow& form)
    : Page(form.navigation(), Charts),
      m_window(form),
      m_shared(form.shared()),
      Adodc1(*form.Adodc1),
      Adodc2(*form.Adodc2),
      Frame15(frame()),
      Frame11(new Frame(&Frame15, u"Frame11"_s)),
      Option10(new OptionButton(Frame11, u"Option10"_s, u"账户对比分析"_s)),
      Option11(new OptionButton(Frame11, u"Option11"_s, u"年度收入统计"_s)),
      Option12(new OptionButton(Frame11, u"Option12"_s, u"年度年支出统计"_s)),
      Option13(new OptionButton(Frame11, u"Option13"_s, u"收入分类统计"_s)),
      Option15(new OptionButton(Frame11, u"Option15"_s, u"支出分类统计"_s)),
      Frame1(new Frame(&Frame15, u"Frame1"_s, u"查询"_s)),
      Text1(new TextBox(Frame1, u"Text1"_s)),
      Text2(new TextBox(Frame1, u"Text2"_s)),
      Command25(new CommandButton(Frame1, u"Command25"_s, u"查询"_s)),
      Frame12(new Frame(&Frame15, u"Frame12"_s)),
      MSC1(new MSChart(Frame12, u"MSC1"_s)),
      m_span(new CommandButton(&Frame15, {}, {})) {
    Frame15.place(Charts.left, Charts.top, Charts.width, Charts.height);
    makeOptions();
    makeQueryRow();
    Frame12->place(360, 1440, 11055, 4695);
    Frame12->setRole(Role::InnerFrame);
    Frame12->setAccessibleName(u"图表"_s);
    MSC1->place(120, 240, 10815, 4335);
    // In the place of the range of dates, which the charts of months have not got.
    m_span->place(9795, 930, 1620, 360);
    m_span->setShown(false);
    m_span->Click = [this] { turnSpan(); };
    showHandOver(m_span);
}

void ChartsPage::makeOptions() {
    Frame11->place(240, 240, 11055, 615);
    Frame11->setRole(Role::BareFrame);
    Frame11->setAccessibleName(u"图表种类"_s);
    Option10->place(120, 240, 1815, 255);
    Option11->place(2280, 240, 1815, 255);
    Option12->place(4560, 240, 2055, 255);
    Option13->place(7080, 240, 1815, 255);
    Option15->place(9120, 240, 1815, 255);
    Option10->Click = [this] { Form2_Option10_Click(); };
    Option11->Click = [this] { Form2_Option11_Click(); };
    Option12->Click = [this] { Form2_Option12_Click(); };
    Option13->Click = [this] { Form2_Option13_Click(); };
    Option15->Click = [this] { Form2_Option15_Click(); };
    for (OptionButton* option : {Option10, Option11, Option12, Option13, Option15})
        showHandOver(option);
}

void ChartsPage::makeQueryRow() {
    Frame1->place(5280, 840, 6135, 615);
    Frame1->setRole(Role::StripFrame);
    Frame1->setShown(false);
    (new Label(Frame1, u"Label13"_s, u"在"_s))->place(720, 240, 255, 255);
    Text1->place(1080, 240, 1215, 270);
    (new Label(Frame1, u"Label14"_s, u"和"_s))->place(2400, 240, 255, 255);
    Text2->place(2760, 240, 1215, 270);
    (new Label(Frame1, u"Label15"_s, u"之间"_s))->place(4080, 240, 495, 255);
    Command25->place(5040, 240, 615, 255);
    Text1->setBoxText(FirstDate.toString());
    Text2->setBoxText(SecondDate.toString());
    Text1->setAccessibleName(u"开始日期"_s);
    Text2->setAccessibleName(u"结束日期"_s);
    for (TextBox* box : {Text1, Text2}) {
        box->setSelectsWhenClicked();
        new PickerKeys(m_shared, *box);
    }
    Text1->Click = [this] { Form2_Text1_Click(); };
    Text2->Click = [this] { Form2_Text2_Click(); };
    Command25->Click = [this] { Form2_Command25_Click(); };
    Frame1->Click = [this] { Form2_Frame1_Click(); };
    markHovered(*Frame1, {Command25});
}

void ChartsPage::Form2_Label12_Click() {
    navigation().leaveOthers(*this, PageCode::Charts);
    navigation().show(*this);
    Option10->setValue(true);
    navigation().bringForward(*this);
}

void ChartsPage::Form2_Option10_Click() {
    static constexpr QueryChart Shown{&ChartsPage::Option10, u"select 账户名称,余额 from zhb"};
    show(Shown);
}

void ChartsPage::Form2_Option11_Click() {
    static constexpr MonthChart Shown{&ChartsPage::Option11,
                                      u"select 时间,金额 from srb",
                                      u"nsrb",
                                      {},
                                      u"select 时间,sum(金额)as 金额 from nsrb group by 时间"};
    show(Shown);
}

void ChartsPage::Form2_Option12_Click() {
    static constexpr MonthChart Shown{&ChartsPage::Option12, u"select 时间,金额 from zcb", u" nzcb", u"nzcb",
                                      u"select 时间,sum(金额)as 金额 from nzcb group by 时间"};
    show(Shown);
}

void ChartsPage::Form2_Option13_Click() {
    static constexpr QueryChart Shown{&ChartsPage::Option13, u"select 项目,sum(金额) as 总金额 from srb group by 项目",
                                      Income};
    show(Shown);
}

void ChartsPage::Form2_Option15_Click() {
    static constexpr QueryChart Shown{&ChartsPage::Option15, u"select 项目,sum(金额) as 总金额 from zcb group by 项目",
                                      Expense};
    show(Shown);
}

/// The range of dates lies where the span's button is.
void ChartsPage::showRange(bool shown) {
    Frame1->setShown(shown);
    m_span->setCovered(shown);
}

void ChartsPage::show(const QueryChart& chart) {
    showRange(chart.kind != 0);
    if (chart.kind != 0)
        chartKind = chart.kind;
    Recordset& records = Adodc1.open(chart.query.toString());
    if (refuseEmpty(records, u"目前没有提供给图表统计的记录数据！"_s, u"提示"_s))
        return;
    draw(records, ChartLabels::Words);
    Frame12->setCaption((this->*chart.option)->text());
}

void ChartsPage::show(const MonthChart& chart) {
    showRange(false);
    Adodc1.open(chart.ledger.toString());
    gatherMonths(chart);
    Recordset& sums = Adodc2.open(chart.sums.toString());
    if (refuseEmpty(sums, u"目前没有提供给图表统计的记录数据！"_s, u"提示"_s))
        return;
    draw(sums, ChartLabels::Months);
    Frame12->setCaption((this->*chart.option)->text());
}

void ChartsPage::gatherMonths(const MonthChart& chart) {
    emptyTable(Adodc2.open(chart.work.toString()));
    if (!chart.workAgain.isEmpty())
        Adodc2.open(chart.workAgain.toString());
    fillScratchLedger(Adodc1.recordset(), Adodc2.recordset());
}

bool ChartsPage::refuseEmpty(const Recordset& records, const QString& message, const QString& title) {
    if (records.recordCount() > 0)
        return false;
    m_shared.tell(message, title);
    return true;
}

void ChartsPage::draw(Recordset& records, ChartLabels labels) {
    QVariantList points;
    points.reserve(records.recordCount());
    for (; !records.eof(); records.moveNext()) {
        const auto value = records.field(1).value().numberIfAny(); // a balance may be what no number can be read from
        points << QVariant(QVariantList{records.field(0).text(), value ? QVariant(*value) : QVariant()});
    }
    if (labels == ChartLabels::Months)
        std::ranges::stable_sort(
            points, {}, [](const QVariant& point) { return months::inCalendar(point.toList().front().toString()); });
    MSC1->setChartData(points, labels);
    m_span->setShown(labels == ChartLabels::Months && MSC1->overflows());
    showSpanButton();
    records.moveFirst();
}

void ChartsPage::turnSpan() {
    MSC1->showWhole(!MSC1->isWhole());
    showSpanButton();
}

void ChartsPage::showSpanButton() {
    m_span->setText(MSC1->isWhole() ? u"看最近月份"_s : u"看全部月份"_s);
}

void ChartsPage::pickDate(DateField field, TextBox& box) {
    m_shared.openDatePicker(field, FieldTarget(&box), placeBelow(box, box.Height() + PickerGap));
}

void ChartsPage::Form2_Text1_Click() {
    pickDate(DateField::ChartFrom, *Text1);
}

void ChartsPage::Form2_Text2_Click() {
    pickDate(DateField::ChartTo, *Text2);
}

void ChartsPage::Form2_Command25_Click() {
    m_shared.hideDatePicker();
    const QString from = Text1->Text(), to = Text2->Text();
    if (from == FirstDate || to == SecondDate) {
        m_shared.tell(u"请选择两个日期"_s, u"输入提示"_s);
        return;
    }
    const QString head = u"select 项目,sum(金额) as 总金额 from %1 where 时间 between #"_s;
    // What was typed stands in the query as it is, and one that the store cannot read ends the program.
    const QString query = chartKind == Income ? head.arg(u"srb"_s) + from + u"# and #"_s + to + u"# group by 项目"_s
                                              : head.arg(u"zcb"_s) + from + u"# and # "_s + to + u"# group by 项目"_s;
    Recordset& records = Adodc1.open(query);
    if (!refuseEmpty(records, u"当前日期范围内不存在记录"_s, u"查询提示"_s))
        draw(records, ChartLabels::Words);
}

void ChartsPage::Form2_Frame1_Click() {
    // The strip closes the editors of the loans and of the ledger, not its own boxes: the loans' box
    // goes into both grids.
    const auto loans = m_shared.editors.find(names::LoanGrid), ledger = m_shared.editors.find(names::LedgerGrid);
    if (loans == m_shared.editors.end() || ledger == m_shared.editors.end())
        return;
    for (const EditorTarget& editor : {loans->second, ledger->second}) {
        if (!editor.grid->Visible())
            continue;
        editor.grid->setText(loans->second.box->Text());
        editor.box->setShown(false);
        editor.grid->takeFocus();
    }
}

} // namespace qinghe
