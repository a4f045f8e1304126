#pragma once

#include "analysis/ms_chart.h"
#include "support/program_test.h"

namespace qinghe::testing {

/// A program in whose main window the page of the charts can be opened.
class ChartsTest : public ProgramTest {
protected:
    ChartsTest() { rig.signIn(); }

    /// Stores a row of the income (srb) or the expense (zcb); date and item as SQL: "'2024-05-03'", "NULL".
    void store(const QString& table, const QString& date, const QString& item, double amount);
    void storeAccount(const QString& name, const QString& balance);
    /// One row of everything, so that no chart is refused: 现金 100, 工资 10 in 2024-5, 买菜 20 in 2024-6.
    void storeOneEach();

    void open();
    /// Opens the page, with something to show, and chooses an option by a click.
    void choose(const QString& name);
    void click(const QString& option);
    void query(const QString& from, const QString& to);

    MSChart& chart() { return rig.at(charts::Chart); }
    OptionButton& option(const QString& name) { return rig.onMain<OptionButton>(name); }
    TextBox& Text1() { return rig.at(charts::From); }
    TextBox& Text2() { return rig.at(charts::To); }
    QString caption() { return rig.at(charts::ChartFrame).Caption(); }

    /// The chart's data: "label=value" a point, "label=" without a value, joined with blanks.
    QString points();
};

inline const ShownMessage NothingToChart{u"目前没有提供给图表统计的记录数据！"_s, 64, u"提示"_s};
inline const ShownMessage TwoDatesWanted{u"请选择两个日期"_s, 64, u"输入提示"_s};
inline const ShownMessage NothingInRange{u"当前日期范围内不存在记录"_s, 64, u"查询提示"_s};

} // namespace qinghe::testing
