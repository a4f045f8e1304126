#pragma once

#include "analysis/ms_chart.h"
#include "core/main_window.h"

namespace qinghe {

/// The page of the charts, `Frame15`: five summaries of the ledger in one chart, each read anew when its option is
/// chosen. The two charts by item can be narrowed to a range of dates.
class ChartsPage : public Page {
    Q_OBJECT

public:
    explicit ChartsPage(MainWindow& window);

    void tabClicked(PageCode) override { Form2_Label12_Click(); }

    void Form2_Label12_Click();
    void Form2_Option10_Click();
    void Form2_Option11_Click();
    void Form2_Option12_Click();
    void Form2_Option13_Click();
    void Form2_Option15_Click();
    void Form2_Text1_Click();
    void Form2_Text2_Click();
    void Form2_Command25_Click();
    void Form2_Frame1_Click();

private:
    /// A chart that is one query, and a chart that gathers a ledger by month in a table of its own.
    struct QueryChart;
    struct MonthChart;
    void show(const QueryChart& chart);
    void show(const MonthChart& chart);
    void gatherMonths(const MonthChart& chart);
    /// Draws field 1 over field 0; the set stands on its first row behind it.
    void draw(Recordset& records, ChartLabels labels);
    bool refuseEmpty(const Recordset& records, const QString& message, const QString& title);
    void pickDate(DateField field, TextBox& box);
    void showRange(bool shown);
    void turnSpan();
    void showSpanButton();

    void makeOptions();
    void makeQueryRow();

    MainWindow& m_window;
    Shared& m_shared;
    Adodc& Adodc1;
    Adodc& Adodc2;
    Frame& Frame15;
    Frame* Frame11;           // the options
    OptionButton* Option10;   // 账户对比分析
    OptionButton* Option11;   // 年度收入统计
    OptionButton* Option12;   // 年度年支出统计
    OptionButton* Option13;   // 收入分类统计
    OptionButton* Option15;   // 支出分类统计
    Frame* Frame1;            // the range of dates
    TextBox* Text1;           // from
    TextBox* Text2;           // to
    CommandButton* Command25; // 查询
    Frame* Frame12;           // the chart, under the name of the option shown
    MSChart* MSC1;
    CommandButton* m_span; ///< all months at once, or the newest alone; there while they do not all fit

    Int16 chartKind = 0; ///< 1 income by item, 2 expense by item
};

} // namespace qinghe
