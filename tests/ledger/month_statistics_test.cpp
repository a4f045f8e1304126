#include "ledger/month_rig.h"
#include "ledger/month_statistics.h"

// What both reports of the month share: the month's key, a grid that takes no work, the way back to entry, and a ledger
// side that is neither.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class MonthStatisticsTest : public MonthTest {};

TEST_F(MonthStatisticsTest, FindTheMonthsOfTwoDigitsAlone) {
    for (int month = 1; month <= 12; ++month)
        record(u"2024-%1-05"_s.arg(month, 2, 10, '0'_L1), u"'第%1月'"_s.arg(month), u"'甲'"_s, QString::number(month));
    for (const int month : {1, 9, 10, 12}) {
        setMonth(month);
        open();
        showItems();
        EXPECT_TRUE(adodc3().recordSource().contains(u"时间= '2024-%1'"_s.arg(month)));
        EXPECT_EQ(rows(), QStringList{month < 10 ? u"|"_s : u"第%1月|%1.00"_s.arg(month)});
        EXPECT_EQ(total(), month < 10 ? u"本月收入总额为："_s : u"本月收入总额为：%1.00元"_s.arg(month));
        showPeople();
        EXPECT_EQ(adodc3().recordset().recordCount(), month < 10 ? 0 : 1);
    }
}

TEST_F(MonthStatisticsTest, MatchTheMonthExactly) {
    storeHousehold();
    open();
    rig.sql(u"insert into sztjlsb(时间,金额,项目,人员) values('2024-10-',1,'长','甲'),('2024-1',1,'短','甲')"_s);
    showItems();
    EXPECT_EQ(rows().size(), 2);
    EXPECT_EQ(total(), u"本月收入总额为：9235.00元");
}

TEST_F(MonthStatisticsTest, TakeNoWorkFromGridAndButtons) {
    for (const auto& report : {income::ByItem, income::ByPerson}) {
        rig.sql(u"delete from srb"_s);
        openWith(1);
        clickCell(1, 3);
        choose(report);
        EXPECT_EQ(tx2().Text(), u"");
        EXPECT_FALSE(tx2().Visible());
        EXPECT_FALSE(ms2().isEnabled());
        for (CommandButton* button : {&add(), &remove(), &save()}) {
            EXPECT_FALSE(button->isEnabled());
            press(*button);
        }
        clickCell(1, 1);
        EXPECT_FALSE(tx2().Visible());
        EXPECT_TRUE(rig.messages->shown.empty());
        EXPECT_EQ(stored().size(), 1);
    }
}

TEST_F(MonthStatisticsTest, DoNothingOnASecondClick) {
    storeHousehold();
    open();
    showItems();
    const QStringList before = rows();
    rig.sql(u"delete from sztjlsb"_s);
    showItems();
    EXPECT_EQ(rows(), before);
    EXPECT_EQ(total(), u"本月收入总额为：9235.00元");
}

TEST_F(MonthStatisticsTest, ReadTheStatisticsAsOldAsTheOpeningOfThePage) {
    storeHousehold();
    open();
    ms2().setTextMatrix(1, 5, u"1"_s);
    press(save());
    showItems();
    EXPECT_EQ(total(), u"本月收入总额为：9235.00元");
    open();
    showItems();
    EXPECT_EQ(total(), u"本月收入总额为：1236.00元");
}

TEST_F(MonthStatisticsTest, ShowTheSideThatWasOpenedLast) {
    storeHousehold();
    record(u"2024-10-01"_s, u"'买菜'"_s, u"'丁'"_s, u"12"_s, Expense);
    open(0);
    showItems();
    open(1);
    showPeople();
    EXPECT_EQ(rows(), QStringList{u"丁|买菜|12.00"_s});
}

TEST_F(MonthStatisticsTest, GiveEverythingBackToEntry) {
    storeHousehold();
    open();
    const QStringList before = rows();
    for (const auto& report : {income::ByItem, income::ByPerson}) {
        choose(report);
        showEntry();
        EXPECT_EQ(row(0), u"编号|时间|项目|收款人|金额|账户|备注");
        EXPECT_EQ(rows(), before);
        EXPECT_EQ(total(), u"当前收入总额为：9251.00元");
        EXPECT_TRUE(ms2().isEnabled());
        for (int col = 1; col <= 6; ++col)
            EXPECT_EQ(ms2().ColWidth(col), 1150);
        EXPECT_EQ(ms2().ColWidth(7), 3900);
        for (CommandButton* button : {&add(), &remove(), &save()})
            EXPECT_TRUE(button->isEnabled());
        clickCell(1, 5);
        EXPECT_TRUE(tx2().Visible());
        EXPECT_EQ(tools(), forms::Calculator);
    }
}

TEST_F(MonthStatisticsTest, GiveEverythingBackWhenTheLabelIsClicked) {
    storeHousehold();
    open();
    const QStringList before = rows();
    showPeople();
    open();
    EXPECT_TRUE(option(income::Records).Value());
    EXPECT_EQ(rows(), before);
    EXPECT_EQ(total(), u"当前收入总额为：9251.00元 ");
    EXPECT_TRUE(save().isEnabled());
    EXPECT_TRUE(ms2().isEnabled());
}

TEST_F(MonthStatisticsTest, SaveTheBareTableAfterTheyWereLookedAt) {
    storeHousehold();
    open();
    const QStringList before = stored(u"时间, 项目, 金额"_s);
    showPeople();
    showEntry();
    press(save());
    EXPECT_EQ(rig.lastMessage(), SaveDone);
    EXPECT_EQ(stored(u"时间, 项目, 金额"_s), before);
}

} // namespace
} // namespace qinghe::testing
