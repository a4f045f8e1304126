#include "core/desktop_page.h"

#include "core/plans.h"
#include "look/fonts.h"
#include "runtime/money.h"
#include "runtime/months.h"
#include "runtime/number_text.h"
#include "store/tables.h"

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr PageTab Tabs[] = {{u"Label24", u"  桌面", 0, PageCode::Desktop}};
constexpr PageTraits DesktopTraits{u"Frame13", u"桌面", 200, 1680, 11535, 6135, Tabs};

struct SumColumn {
    QStringView name; ///< as it stands beside it in the picture
    QStringView column;
    QStringView table;
    QStringView dateColumn;
};

/// Rows of the desktop from top to bottom.
constexpr std::array<SumColumn, 5> Rows{{
    {u"收入", columns::Amount, tables::Income, columns::Time},
    {u"支出", columns::Amount, tables::Expense, columns::Time},
    {u"预算", columns::BudgetAmount, tables::Budget, columns::BudgetTime},
    {u"借入", columns::BorrowedAmount, tables::Borrowed, columns::Day},
    {u"借出", columns::LentAmount, tables::Lent, columns::Day},
}};

struct SumLabel {
    QStringView name;
    double left, top; ///< twips
};

/// Last month's five, then this month's.
constexpr std::array<SumLabel, 10> Labels{{
    {u"Label25", 2280, 1200}, // lastMonthIncome
    {u"Label27", 2280, 2160}, // lastMonthExpense
    {u"Label28", 2280, 3120}, // lastMonthBudget
    {u"Label29", 2280, 4080}, // lastMonthBorrowed
    {u"Label30", 2280, 4920}, // lastMonthLent
    {u"Label31", 6000, 1200}, // thisMonthIncome
    {u"Label32", 6000, 2160}, // thisMonthExpense
    {u"Label33", 6000, 3120}, // thisMonthBudget
    {u"Label34", 6000, 4080}, // thisMonthBorrowed
    {u"Label35", 6000, 4920}, // thisMonthLent
}};

constexpr QStringView OfTheSignIn = u"登陆时算好的数字；之后记的账，下次启动时才计入。";

/// A figure ends where all do; one that is longer has the rest of its card as well. What that cannot hold either, the
/// style sets in smaller type.
constexpr double FigureWidth = 1560, WidestFigure = 1680; // twips

double widthOf(const QString& figure) {
    return figureWidth(figure) * TwipsPerPixel > FigureWidth ? WidestFigure : FigureWidth;
}

QString sumQuery(const SumColumn& row, const QString& month) {
    return u"select sum(%1)as 总金额 from %2 where left(%3,7)='%4'"_s.arg(row.column.toString(), row.table.toString(),
                                                                          row.dateColumn.toString(), month);
}

} // namespace

DesktopPage::DesktopPage(Shared& shared, Navigation& navigation, Adodc& store)
    : Page(navigation, DesktopTraits), m_shared(shared), Adodc1(store) {
    Frame& page = frame();
    page.setRole(Role::PageFrame);
    Image2 = new Image(&page, u"Image2"_s);
    Image2->place(60, 240, 11415, 5835);
    Image2->setRole(Role::Picture);
    Image2->setAccessibleName(u"桌面图片"_s);
    for (std::size_t i = 0; i < Labels.size(); ++i) {
        auto* label = new Label(&page, Labels[i].name.toString());
        label->place(Labels[i].left, Labels[i].top, FigureWidth, 300);
        label->setRole(Role::Figure);
        label->setAccessibleName((i < Rows.size() ? u"上月"_s : u"本月"_s) + Rows[i % Rows.size()].name.toString());
        label->setToolTip(OfTheSignIn.toString());
        label->ToolTipAsked = [this, i] { tellTrueSum(i); };
        label->setReachable();
        m_sums[i].label = label;
    }
    Label36 = new Label(&page, u"Label36"_s);
    Label36->place(8160, 1680, 2775, 3855);
    Label36->setRole(Role::PlanList);
    Label36->setAccessibleName(u"今日日程"_s);
}

void DesktopPage::computeSums() {
    m_signedIn = m_shared.services.clock->today();
    for (std::size_t i = 0; i < m_sums.size(); ++i) {
        const QString month = i < Rows.size() ? months::lastMonth(m_signedIn) : months::thisMonth(m_signedIn);
        Recordset& sum = Adodc1.open(sumQuery(Rows[i % Rows.size()], month));
        m_sums[i].total = sum.recordCount() != 0 ? sum.field(u"总金额"_s).value() : Value(0);
    }
    showSums();
}

void DesktopPage::showSums() {
    for (const Sum& sum : m_sums) {
        const double total = sum.total.isNull() ? 0 : sum.total.number();
        const QString figure = total != 0 ? money::yuan(total) : money::none();
        sum.label->setCaption(figure);
        sum.label->setWidth(widthOf(figure));
    }
}

void DesktopPage::tellTrueSum(std::size_t figure) {
    const QString sum = trueSum(figure);
    m_sums[figure].label->setToolTip(sum.isEmpty() ? OfTheSignIn.toString()
                                                   : sum + u"\n框里是"_s + OfTheSignIn.toString());
}

QString DesktopPage::trueSum(std::size_t figure) const {
    const SumColumn& row = Rows[figure % Rows.size()];
    const QDate month = figure < Rows.size() ? m_signedIn.addMonths(-1) : m_signedIn;
    // A control of its own: what others have loaded stays theirs. What only explains waits for nobody and ends nothing.
    const std::unique_ptr<Adodc> control(m_shared.newControl(u"trueSum"_s, nullptr));
    const auto read = [&] { control->open(sumQuery(row, months::ofCalendar(month))); };
    try {
        if (!m_shared.store.tryNow(read))
            return {};
        const Value total = control->recordset().field(0).value();
        return u"%1年%2月的%3合计：%4"_s.arg(month.year())
            .arg(month.month())
            .arg(row.name.toString(), total.isNull() ? money::none() : money::fullYuan(total.number()));
    } catch (const RuntimeError&) {
        return {};
    }
}

void DesktopPage::listPlans(bool clearFirst) {
    Recordset& plans = plans::ofDay(Adodc1, m_shared.services.clock->today());
    if (plans.recordCount() == 0) {
        Label36->setCaption(plans::NoneToday.toString());
        return;
    }
    QString list = clearFirst ? QString() : Label36->Caption();
    for (int i = 1; !plans.eof(); ++i, plans.moveNext())
        list += u"日程"_s + spacedNumberText(i) + u"："_s + plans.field(columns::PlanText).text() + u"\r\n"_s;
    Label36->setCaption(list);
}

void DesktopPage::Form2_Label24_Click() {
    navigation().leaveOthers(*this, PageCode::Desktop);
    navigation().bringForward(*this);
    // Not computed afresh: the sums stay those of the sign-in.
    showSums();
    listPlans(true);
}

} // namespace qinghe
