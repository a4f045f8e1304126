#include "ledger/month_rig.h"

// 本月项目统计: the month's sums by item.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class MonthItemsTest : public MonthTest {};

TEST_F(MonthItemsTest, ShowTheSumsOfIncome) {
    storeHousehold();
    open(0);
    showItems();
    EXPECT_EQ(row(0), u"项目|本月收入总额");
    EXPECT_EQ(rows(), (QStringList{u"利息|.50"_s, u"工资|9234.50"_s}));
    EXPECT_EQ(total(), u"本月收入总额为：9235.00元");
}

TEST_F(MonthItemsTest, ShowTheSumsOfExpense) {
    storeHousehold(Expense);
    record(u"2024-10-01"_s, u"'工资'"_s, u"'甲'"_s, u"1"_s);
    open(1);
    showItems();
    EXPECT_EQ(row(0), u"项目|本月消费总额");
    EXPECT_EQ(rows(), (QStringList{u"利息|.50"_s, u"工资|9234.50"_s}));
    EXPECT_EQ(total(), u"本月支出总额为：9235.00元");
}

TEST_F(MonthItemsTest, ShareTheWidthOfTheGridBetweenTwoColumns) {
    open();
    showItems();
    EXPECT_EQ(ms2().Cols(), 3);
    EXPECT_EQ(ms2().ColWidth(0), 300);
    EXPECT_EQ(ms2().ColWidth(1), 5508); // 5507.5
    EXPECT_EQ(ms2().ColWidth(2), 5508);
    EXPECT_EQ(ms2().RowHeight(0), 300);
}

TEST_F(MonthItemsTest, AskTheStatisticsTableInTheseWords) {
    open(0);
    showItems();
    EXPECT_EQ(adodc3().recordSource(),
              u"select 项目,sum(金额)as 总金额 from sztjlsb where 时间= '2024-10' group by 项目");
    EXPECT_EQ(adodc2().recordSource(), u"select sum(金额) as 总金额 from sztjlsb where 时间= '2024-10'");
    EXPECT_TRUE(adodc3().connectionString().endsWith("data.dll "_L1));
    EXPECT_TRUE(adodc2().connectionString().endsWith("data.dll "_L1));
    open(1);
    showItems();
    EXPECT_EQ(adodc3().recordSource(),
              u"select 项目,sum(金额)as 总金额 from sztjlsb where 时间= '2024-10'group by 项目 ");
    EXPECT_EQ(adodc2().recordSource(), u"select sum(金额) as 总金额 from sztjlsb where 时间= '2024-10'");
    EXPECT_TRUE(adodc3().connectionString().endsWith("data.dll "_L1));
}

TEST_F(MonthItemsTest, ShowOneClearedRowAndAnEmptyTotalForAMonthWithoutRecords) {
    store(2); // in May and June
    open(0);
    showItems();
    EXPECT_EQ(rows(), QStringList{u"|"_s});
    EXPECT_EQ(total(), u"本月收入总额为：");
    open(1);
    showItems();
    EXPECT_EQ(total(), u"本月支出总额为：");
}

TEST_F(MonthItemsTest, LeaveOutAnItemWithoutANameAndKeepItsRow) {
    record(u"2024-10-01"_s, u"null"_s, u"'甲'"_s, u"1"_s);
    record(u"2024-10-01"_s, u"''"_s, u"'甲'"_s, u"2"_s);
    record(u"2024-10-01"_s, u"'丙'"_s, u"'甲'"_s, u"4"_s);
    open();
    showItems();
    EXPECT_EQ(rows(), (QStringList{u"|"_s, u"|"_s, u"丙|4.00"_s}));
    EXPECT_EQ(total(), u"本月收入总额为：7.00元");
}

TEST_F(MonthItemsTest, ShowANameThatReadsAsANumberAsItIs) {
    record(u"2024-10-01"_s, u"'12'"_s, u"'甲'"_s, u"0"_s);
    open();
    showItems();
    EXPECT_EQ(rows(), QStringList{u"12|.00"_s});
    EXPECT_EQ(total(), u"本月收入总额为：.00元");
}

TEST_F(MonthItemsTest, ShowAnItemWithoutAmountsWithAnEmptySum) {
    record(u"2024-10-01"_s, u"'丙'"_s, u"'甲'"_s, u"null"_s);
    open();
    showItems();
    EXPECT_EQ(rows(), QStringList{u"丙|"_s});
}

TEST_F(MonthItemsTest, TakeAQuoteInAName) {
    record(u"2024-10-01"_s, u"'小王''s'"_s, u"'甲'"_s, u"3"_s);
    open();
    showItems();
    EXPECT_EQ(rows(), QStringList{u"小王's|3.00"_s});
}

TEST_F(MonthItemsTest, CloseBothToolsWhenThePickerIsOnView) {
    openWith(1);
    clickCell(1, 2);
    shared().openCalculator(AmountField::None, {}, {0, 0});
    EXPECT_EQ(tools(), u"Form1+Form9");
    showItems();
    EXPECT_EQ(tools(), u"none");
}

TEST_F(MonthItemsTest, LeaveTheCalculatorOpenWhenNoPickerIsOnView) {
    openWith(1);
    clickCell(1, 5);
    showItems();
    EXPECT_EQ(tools(), forms::Calculator);
}

TEST_F(MonthItemsTest, SayWhichSumIsBeyondAllNumbers) {
    for (int i = 0; i < 2; ++i)
        record(u"2024-10-01"_s, u"'工资'"_s, u"'甲'"_s, u"1e308"_s);
    open(0);
    showItems();
    EXPECT_EQ(rows(), QStringList{u"工资|溢出"_s});
    EXPECT_EQ(total(), u"本月收入总额为：溢出");
    showPeople();
    EXPECT_EQ(rows(), QStringList{u"甲|工资|溢出"_s});
}

TEST_F(MonthItemsTest, SayWhereTheSumsOfMonthsAreWhenTheyFindNothing) {
    setMonth(5);
    record(u"2024-05-03"_s, u"'工资'"_s, u"'甲'"_s, u"1"_s);
    for (const int side : {0, 1}) {
        open(side);
        for (const auto& report : {income::ByItem, income::ByPerson}) {
            choose(report);
            EXPECT_TRUE(ms2().ground.shown().contains(side == 0 ? u"年度收入统计"_s : u"年度年支出统计"_s));
        }
        showEntry();
        EXPECT_FALSE(ms2().ground.shown().contains(u"年度"_s));
    }
    setMonth(10);
    record(u"2024-10-03"_s, u"'工资'"_s, u"'甲'"_s, u"1"_s);
    open(0);
    showItems();
    EXPECT_EQ(ms2().ground.shown(), QString());
}

} // namespace
} // namespace qinghe::testing
