#pragma once

#include "core/grid_page.h"
#include "ledger/month_statistics.h"

namespace qinghe {

/// The page of income and of expense, `Frame2`: one grid for two ledgers of the same shape, `srb` and `zcb`. Every
/// visit refills the statistics table `sztjlsb` with the whole ledger of the side chosen. It looks nothing up: items
/// and accounts are free text, and no account moves with this ledger.
class IncomeExpensePage : public GridPage {
    Q_OBJECT

public:
    explicit IncomeExpensePage(MainWindow& window);

    void tabClicked(PageCode code) override;

    void Form2_Label2_Click(int index); ///< 0 income, 1 expense
    void Form2_Option7_Click();
    void Form2_Option8_Click();
    void Form2_Option9_Click();
    void Form2_Frame2_Click();

protected:
    const List& list() const override;
    bool takesClicks() const override;
    void frameClicked() override { Form2_Frame2_Click(); }

private:
    /// What the two sides of the ledger differ in.
    struct Side;
    const Side& side() const;
    void placeControls();
    void refillStatistics();
    void requireStatistics() const;
    void showTotal();
    void setEditing(bool allowed);
    QString shownReport() const; ///< its name
    void closeEditing();
    bool pickerIsVisible() const;

    OptionButton* Option7; // 录入数据
    OptionButton* Option8; // 本月项目统计
    OptionButton* Option9; // 本月人员收支统计
    Label* Label10;        // the total

    Int16 ledgerSide = 0; ///< 1 income, 0 expense
    float incomeTotal = 0;
    float expenseTotal = 0;
    bool m_statisticsStand = true; ///< what the reports of the month read is of this opening of the page
    MonthStatistics m_statistics;
};

} // namespace qinghe
