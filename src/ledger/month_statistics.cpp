#include "ledger/month_statistics.h"

#include "core/grid_rows.h"
#include "runtime/money.h"
#include "runtime/months.h"
#include "runtime/number_text.h"

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

/// Of a report that has found nothing; %1 is the chart that has the sums of all months.
constexpr QStringView LookAtTheChart = u"这里没有查到本月的记录\n每个月的合计，在“图表”页点“%1”就能看到";
constexpr QStringView TotalSource = u"select sum(金额) as 总金额 from sztjlsb where 时间= '%1'";

} // namespace

/// One report of one side of the ledger.
struct MonthStatistics::Report {
    QStringView source; ///< %1 stands for the month
    QStringView chart;
    QStringView totalCaption;
    std::array<QStringView, 3> captions; ///< of its columns, the sum last
    int columns;
};

MonthStatistics::MonthStatistics(MainWindow& window, MSFlexGrid& grid, Label& total, const Int16& ledgerSide)
    : m_window(window), ms2(grid), Label10(total), m_side(ledgerSide) {}

Recordset& MonthStatistics::begin(const Reports& reports) {
    const Report& report = reports[static_cast<std::size_t>(m_side)];
    const QString month = months::thisMonth(m_window.shared().services.clock->today());
    Recordset& rows = m_window.Adodc3->open(report.source.toString().arg(month));
    Recordset& total = m_window.Adodc2->open(TotalSource.toString().arg(month));
    Label10.setCaption(total.recordCount() == 0
                           ? money::none()
                           : report.totalCaption.toString() + money::yuan(total.field(u"总金额"_s).value()));
    layEvenColumns(ms2, report.columns);
    ms2.setAmountColumns({report.columns});
    for (int column = 1; column <= report.columns; ++column)
        ms2.setTextMatrix(0, column, report.captions[static_cast<std::size_t>(column - 1)].toString());
    ms2.ground.set(rows.recordCount() == 0 ? LookAtTheChart.toString().arg(report.chart) : QString(),
                   GroundWords::Shown::Always);
    startRows(ms2);
    return rows;
}

void MonthStatistics::showItems() {
    static constexpr Reports BySide{{
        {u"select 项目,sum(金额)as 总金额 from sztjlsb where 时间= '%1'group by 项目 ",
         u"年度年支出统计",
         u"本月支出总额为：",
         {u"项目", u"本月消费总额"},
         2},
        {u"select 项目,sum(金额)as 总金额 from sztjlsb where 时间= '%1' group by 项目",
         u"年度收入统计",
         u"本月收入总额为：",
         {u"项目", u"本月收入总额"},
         2},
    }};
    Recordset& rows = begin(BySide);
    blankRow(ms2, 1);
    fillRows(ms2, rows, [this, &rows] {
        if (!rows.field(0).differsFromEmpty())
            return;
        ms2.setTextMatrix(ms2.Row(), 1, rows.field(u"项目"_s).text());
        ms2.setTextMatrix(ms2.Row(), 2, money::amount(rows.field(u"总金额"_s).value()));
    });
    ms2.showTop();
}

void MonthStatistics::showPeople() {
    static constexpr Reports BySide{{
        {u"select 人员,项目,sum(金额)as 总金额  from sztjlsb where 时间= '%1'  group by 项目,人员",
         u"年度年支出统计",
         u"本月人员支出总额为：",
         {u"付款人", u"项目", u"本月消费总额"},
         3},
        {u"select 人员,项目,sum(金额)as 总金额 from sztjlsb where 时间= '%1' group by 项目,人员",
         u"年度收入统计",
         u"本月人员收入总额为：",
         {u"收款人", u"项目", u"本月收入总额"},
         3},
    }};
    Recordset& rows = begin(BySide);
    fillRows(ms2, rows, [this, &rows] {
        for (int column = 1; column <= rows.fieldCount(); ++column) {
            const Field field = rows.field(column - 1);
            // A name that reads as a number is shown as money, because any text that does is taken for a sum, and an
            // empty one goes to the row number that all lists share, the loan grid's.
            if (field.differsFromEmpty())
                ms2.setTextMatrix(ms2.Row(), column,
                                  isNumeric(field.text()) ? money::amount(field.value()) : field.text());
            else if (field.equalsEmpty())
                ms2.setTextMatrix(m_window.shared().loanRow(), column, {});
        }
    });
    ms2.showTop();
}

} // namespace qinghe
