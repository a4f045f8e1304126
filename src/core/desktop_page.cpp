#include "core/desktop_page.h"

#include "look/fonts.h"
#include "runtime/number_format.h"
#include "runtime/number_text.h"

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr int PageCode = 24;
constexpr PageTab Tabs[] = {{u"Label24", u"  桌面", 0, PageCode}};
constexpr PageTraits DesktopTraits{u"Frame13", u"桌面", 200, 1680, 11535, 6135, Tabs};

struct SumColumn {
    const char16_t* column;
    const char16_t* table;
    const char16_t* dateColumn;
};

/// Rows of the desktop from top to bottom.
constexpr std::array<SumColumn, 5> Rows{{
    {u"金额", u"srb", u"时间"},
    {u"金额", u"zcb", u"时间"},
    {u"预算金额", u"ysb", u"预算时间"},
    {u"借入金额", u"jrb", u"日期"},
    {u"借出金额", u"jcb", u"日期"},
}};

struct SumLabel {
    const char16_t* name;
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

/// A figure ends where all do; one that is longer has the rest of its card as well. What that cannot hold either, the
/// style sets in smaller type.
constexpr double FigureWidth = 1560, WidestFigure = 1680; // twips

double widthOf(const QString& figure) {
    return figureWidth(figure) * TwipsPerPixel > FigureWidth ? WidestFigure : FigureWidth;
}

QString sumQuery(const SumColumn& row, const QString& month) {
    return u"select sum(%1)as 总金额 from %2 where left(%3,7)='%4'"_s.arg(
        QString::fromUtf16(row.column), QString::fromUtf16(row.table), QString::fromUtf16(row.dateColumn), month);
}

} // namespace

QString lastMonthKey(const QDate& today) {
    return u"%1-0%2"_s.arg(today.year()).arg(today.month() - 1);
}

QString thisMonthKey(const QDate& today) {
    return u"%1-%2"_s.arg(today.year()).arg(today.month());
}

DesktopPage::DesktopPage(Shared& shared, Navigation& navigation, Adodc& store)
    : Page(navigation, DesktopTraits), m_shared(shared), Adodc1(store) {
    Frame& page = frame();
    page.setRole(Role::PageFrame);
    Image2 = new Image(&page, u"Image2"_s);
    Image2->place(60, 240, 11415, 5835);
    Image2->setRole(Role::Picture);
    for (std::size_t i = 0; i < Labels.size(); ++i) {
        auto* label = new Label(&page, QString::fromUtf16(Labels[i].name));
        label->place(Labels[i].left, Labels[i].top, FigureWidth, 300);
        label->setRole(Role::Figure);
        m_sums[i].label = label;
    }
    Label36 = new Label(&page, u"Label36"_s);
    Label36->place(8160, 1680, 2775, 3855);
    Label36->setRole(Role::PlanList);
}

void DesktopPage::computeSums() {
    const QDate today = m_shared.services.clock->today();
    for (std::size_t i = 0; i < m_sums.size(); ++i) {
        const QString month = i < Rows.size() ? lastMonthKey(today) : thisMonthKey(today);
        Recordset& sum = Adodc1.open(sumQuery(Rows[i % Rows.size()], month));
        m_sums[i].total = sum.recordCount() != 0 ? sum.field(u"总金额"_s).value() : Value(0);
    }
    showSums();
}

void DesktopPage::showSums() {
    for (const Sum& sum : m_sums) {
        const double total = sum.total.isNull() ? 0 : sum.total.number();
        const QString figure = total != 0 ? formatNumber(total, u"##.00元"_s) : u"0.00元"_s;
        sum.label->setCaption(figure);
        sum.label->setWidth(widthOf(figure));
    }
}

void DesktopPage::listPlans(bool clearFirst) {
    Recordset& plans =
        Adodc1.open(u"select * from rcb where 日程日期= #"_s + dateText(m_shared.services.clock->today()) + u"# "_s);
    if (plans.recordCount() == 0) {
        Label36->setCaption(u"您还未添加今日日程！"_s);
        return;
    }
    QString list = clearFirst ? QString() : Label36->Caption();
    for (int i = 1; !plans.eof(); ++i, plans.moveNext())
        list += u"日程"_s + spacedNumberText(i) + u"："_s + plans.field(u"日程内容"_s).text() + u"\r\n"_s;
    Label36->setCaption(list);
}

void DesktopPage::Form2_Label24_Click() {
    navigation().leaveOthers(*this, PageCode);
    navigation().bringForward(*this);
    // Not computed afresh: the sums stay those of the sign-in.
    showSums();
    Adodc1.setConnectionString(m_shared.connection());
    listPlans(true);
}

} // namespace qinghe
