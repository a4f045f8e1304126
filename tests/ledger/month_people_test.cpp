#include "ledger/month_rig.h"
#include "runtime/runtime_error.h"

// 本月人员收支统计: the month's sums by person and item.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class MonthPeopleTest : public MonthTest {};

TEST_F(MonthPeopleTest, HaveTheirSumsOfIncome) {
    storeHousehold();
    open(0);
    showPeople();
    EXPECT_EQ(row(0), u"收款人|项目|本月收入总额");
    EXPECT_EQ(rows(), (QStringList{u"甲|利息|.50"_s, u"乙|工资|1234.50"_s, u"甲|工资|8000.00"_s}));
    EXPECT_EQ(total(), u"本月人员收入总额为：9235.00元");
}

TEST_F(MonthPeopleTest, HaveTheirSumsOfExpense) {
    storeHousehold(Expense);
    open(1);
    showPeople();
    EXPECT_EQ(row(0), u"付款人|项目|本月消费总额");
    EXPECT_EQ(rows(), (QStringList{u"甲|利息|.50"_s, u"乙|工资|1234.50"_s, u"甲|工资|8000.00"_s}));
    EXPECT_EQ(total(), u"本月人员支出总额为：9235.00元");
}

TEST_F(MonthPeopleTest, ShareTheWidthOfTheGridBetweenThreeColumns) {
    open();
    showPeople();
    EXPECT_EQ(ms2().Cols(), 4);
    EXPECT_EQ(ms2().ColWidth(0), 300);
    for (int col = 1; col <= 3; ++col)
        EXPECT_EQ(ms2().ColWidth(col), 3672);
}

TEST_F(MonthPeopleTest, AreAskedForInTheseWords) {
    open(0);
    showPeople();
    EXPECT_EQ(adodc3().recordSource(),
              u"select 人员,项目,sum(金额)as 总金额 from sztjlsb where 时间= '2024-10' group by 项目,人员");
    EXPECT_EQ(adodc2().recordSource(), u"select sum(金额) as 总金额 from sztjlsb where 时间= '2024-10'");
    EXPECT_TRUE(adodc3().connectionString().endsWith("data.dll "_L1));
    open(1);
    showPeople();
    EXPECT_EQ(adodc3().recordSource(),
              u"select 人员,项目,sum(金额)as 总金额  from sztjlsb where 时间= '2024-10'  group by 项目,人员");
    EXPECT_TRUE(adodc3().connectionString().endsWith("data.dll "_L1));
    EXPECT_TRUE(adodc2().connectionString().endsWith("data.dll "_L1));
}

TEST_F(MonthPeopleTest, AreShownAsMoneyWhenTheirNamesReadAsNumbers) {
    record(u"2024-10-01"_s, u"'0.5'"_s, u"'12'"_s, u"3"_s);
    record(u"2024-10-01"_s, u"'工资'"_s, u"'12号'"_s, u"4"_s);
    open();
    showPeople();
    EXPECT_EQ(rows(), (QStringList{u"12.00|.50|3.00"_s, u"12号|工资|4.00"_s}));
}

TEST_F(MonthPeopleTest, KeepTheFirstRowAsItWasForAMonthWithoutRecords) {
    openWith(1); // in May
    showPeople();
    EXPECT_EQ(rows(), QStringList{u"1|2024-5-1|项目1"_s}); // what the entry showed there
    EXPECT_EQ(total(), u"本月人员收入总额为：");
}

TEST_F(MonthPeopleTest, KeepTheFirstRowOfTheItemsWithABlankThirdColumn) {
    storeHousehold();
    open();
    showItems();
    rig.sql(u"delete from sztjlsb"_s);
    showPeople();
    EXPECT_EQ(rows(), QStringList{u"利息|.50|"_s});
}

TEST_F(MonthPeopleTest, AreBlankedInTheRowNumberOfTheLoanListByAnEmptyName) {
    store(Lent, 3);
    open(Lent);
    rig.clickCell(rig.at(loans::Grid), 1, 1);
    record(u"2024-10-01"_s, u"'乙项'"_s, u"'甲'"_s, u"1"_s);
    record(u"2024-10-01"_s, u"'甲项'"_s, u"''"_s, u"2"_s);
    open();
    showPeople();
    EXPECT_EQ(rows(), (QStringList{u"|乙项|1.00"_s, u"|甲项|2.00"_s})); // the first row lost its person
}

TEST_F(MonthPeopleTest, StopTheProgramWhenTheRowNumberOfTheLoanListIsBeyondTheirs) {
    store(Lent, 3);
    open(Lent); // which leaves the third row current
    record(u"2024-10-01"_s, u"'甲项'"_s, u"''"_s, u"1"_s);
    open();
    showPeople();
    expectError(RuntimeError::SubscriptOutOfRange);
}

TEST_F(MonthPeopleTest, AreSkippedWhereThereIsNoName) {
    record(u"2024-10-01"_s, u"'甲项'"_s, u"null"_s, u"1"_s);
    record(u"2024-10-01"_s, u"null"_s, u"'乙'"_s, u"2"_s);
    open();
    showItems(); // leaves a cleared row behind
    showPeople();
    EXPECT_EQ(rows().size(), 2);
    EXPECT_EQ(rows().back(), u"|甲项|1.00");
}

TEST_F(MonthPeopleTest, CloseThePickerAndLeaveTheCalculatorOpen) {
    openWith(1);
    clickCell(1, 2);
    shared().openCalculator(AmountField::None, {}, {0, 0});
    EXPECT_EQ(tools(), u"Form1+Form9");
    showPeople();
    EXPECT_EQ(tools(), forms::Calculator);
}

} // namespace
} // namespace qinghe::testing
