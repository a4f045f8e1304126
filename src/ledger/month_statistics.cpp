#include "ledger/month_statistics.h"

#include "core/grid_rows.h"
#include "runtime/number_format.h"
#include "runtime/number_text.h"

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

QString money(const Value& value) {
    return formatNumber(value, u"##.00"_s);
}

} // namespace

/// One report of one side of the ledger.
struct MonthStatistics::Report {
    const char16_t* before; ///< of its query, up to the month
    const char16_t* behind;
    const char16_t* totalCaption;
    bool blankBehindConnection;
};

MonthStatistics::MonthStatistics(MainWindow& window, MSFlexGrid& grid, Label& total, const Int16& ledgerSide)
    : m_window(window), ms2(grid), Label10(total), m_side(ledgerSide) {}

void MonthStatistics::query(const Report& report) {
    Shared& shared = m_window.shared();
    const QDate today = shared.services.clock->today();
    const QString month = u"%1-%2"_s.arg(today.year(), 4, 10, QChar(u'0')).arg(today.month());
    const auto text = [&month](const char16_t* before, const char16_t* behind) {
        return QString::fromUtf16(before) + month + QString::fromUtf16(behind);
    };
    m_window.Adodc3->setConnectionString(shared.connection(report.blankBehindConnection));
    m_window.Adodc3->open(text(report.before, report.behind));
    m_window.Adodc2->setConnectionString(shared.connection());
    Recordset& total = m_window.Adodc2->open(text(u"select sum(金额) as 总金额 from sztjlsb where 时间= '", u"'"));
    Label10.setCaption(total.recordCount() == 0 ? u"0.00元"_s
                                                : QString::fromUtf16(report.totalCaption) +
                                                      formatNumber(total.field(u"总金额"_s).value(), u"##.00元"_s));
}

void MonthStatistics::layOut(std::initializer_list<const char16_t*> captions) {
    const int columns = static_cast<int>(captions.size());
    layEvenColumns(ms2, columns);
    ms2.setAmountColumns({columns});
    for (int column = 1; column <= columns && hasSide(); ++column)
        ms2.setTextMatrix(0, column, QString::fromUtf16(captions.begin()[column - 1]));
    startRows(ms2);
}

void MonthStatistics::showItems() {
    static constexpr std::array<Report, 2> reports{{
        {u"select 项目,sum(金额)as 总金额 from sztjlsb where 时间= '", u"'group by 项目 ", u"本月支出总额为：", true},
        {u"select 项目,sum(金额)as 总金额 from sztjlsb where 时间= '", u"' group by 项目", u"本月收入总额为：", false},
    }};
    if (hasSide())
        query(reports[static_cast<std::size_t>(m_side)]);
    layOut({u"项目", m_side == 1 ? u"本月收入总额" : u"本月消费总额"});
    ms2.setTextMatrix(1, 1, {});
    ms2.setTextMatrix(1, 2, {});
    Recordset& rows = m_window.Adodc3->recordset();
    if (rows.recordCount() != 0)
        rows.moveFirst();
    fillRows(ms2, rows, [this, &rows] {
        if (!rows.field(0).differsFromEmpty())
            return;
        ms2.setTextMatrix(ms2.Row(), 1, rows.field(u"项目"_s).text());
        ms2.setTextMatrix(ms2.Row(), 2, money(rows.field(u"总金额"_s).value()));
    });
    ms2.showTop();
}

void MonthStatistics::showPeople() {
    static constexpr std::array<Report, 2> reports{{
        {u"select 人员,项目,sum(金额)as 总金额  from sztjlsb where 时间= '", u"'  group by 项目,人员",
         u"本月人员支出总额为：", true},
        {u"select 人员,项目,sum(金额)as 总金额 from sztjlsb where 时间= '", u"' group by 项目,人员",
         u"本月人员收入总额为：", true},
    }};
    if (hasSide())
        query(reports[static_cast<std::size_t>(m_side)]);
    const bool income = m_side == 1;
    layOut({income ? u"收款人" : u"付款人", u"项目", income ? u"本月收入总额" : u"本月消费总额"});
    Recordset& rows = m_window.Adodc3->recordset();
    fillRows(ms2, rows, [this, &rows] {
        for (int column = 1; column <= rows.fieldCount(); ++column) {
            const Field field = rows.field(column - 1);
            // A name that reads as a number is shown as money, and an empty one goes to the row number of the loan
            // grid; both are meant.
            if (field.differsFromEmpty())
                ms2.setTextMatrix(ms2.Row(), column, isNumeric(field.text()) ? money(field.value()) : field.text());
            else if (field.equalsEmpty())
                ms2.setTextMatrix(loanRow(m_window.shared()), column, {});
        }
    });
    ms2.showTop();
}

} // namespace qinghe
