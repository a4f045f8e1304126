#include "analysis/charts_rig.h"

// The charts by month: how a ledger is gathered in its work table.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

/// The two months' charts and what they are made of.
struct Side {
    const char* name;
    Name<OptionButton> option;
    QStringView ledger;
    QStringView work;
    QStringView caption;
    QStringView sums;
};

class ChartMonthsTest : public ChartsTest, public ::testing::WithParamInterface<Side> {
protected:
    ChartMonthsTest() { storeAccount(u"'现金'"_s, u"100"_s); }

    QString ledger() const { return GetParam().ledger.toString(); }
    QString work() const { return GetParam().work.toString(); }
    void choose() { ChartsTest::choose(GetParam().option); }
    void store(const QString& date, double amount) { ChartsTest::store(ledger(), date, u"'项'"_s, amount); }
    /// One amount a month from 2014-12 on.
    void storeMonths(int count) {
        rig.sql(
            u"with recursive n(n) as (select 0 union all select n + 1 from n where n < %1) insert into %2 "
            "select n, date('2014-12-05', n || ' months'), '项', '我', 14000 + n, '现金', '', n from n"_s.arg(count - 1)
                .arg(ledger()));
    }
    /// The button for all months, which is no told control.
    CommandButton* span() {
        for (auto* button : rig.at(charts::Page).findChildren<CommandButton*>(Qt::FindDirectChildrenOnly))
            if (button->objectName().isEmpty())
                return button;
        return nullptr;
    }
    QStringList workRows() { return rig.sql(u"select * from %1 order by rowid"_s.arg(work())); }
};

TEST_P(ChartMonthsTest, GiveEachMonthOfEachYearAPoint) {
    store(u"'2006-09-05'"_s, 1);
    store(u"'2006-10-05'"_s, 2);
    store(u"'2006-09-25'"_s, 4);
    store(u"'2007-09-05'"_s, 8);
    choose();
    EXPECT_EQ(points(), u"2006-9-=5 2006-10=2 2007-9-=8"); // in the order of the calendar
    EXPECT_EQ(caption(), GetParam().caption.toString());
    EXPECT_FALSE(rig.at(charts::Range).Visible());
    EXPECT_EQ(chart().places().label(0).lines, QStringList(u"2006-9"_s));
}

TEST_P(ChartMonthsTest, CopyEveryRowWithARunningNumber) {
    store(u"'2024-05-03'"_s, 1.5);
    store(u"'2024-11-30'"_s, -2);
    choose();
    EXPECT_EQ(workRows(), (QStringList{u"2024-5-|1.5|1"_s, u"2024-11|-2|2"_s}));
}

TEST_P(ChartMonthsTest, EmptyTheWorkTableFirst) {
    rig.sql(u"insert into %1 values('1999-1-', 5, 1), ('1999-2-', 6, 2)"_s.arg(work()));
    store(u"'2024-05-03'"_s, 1.5);
    choose();
    EXPECT_EQ(workRows(), QStringList(u"2024-5-|1.5|1"_s));
    store(u"'2024-06-03'"_s, 1);
    click(charts::Accounts);
    click(GetParam().option);
    EXPECT_EQ(workRows(), (QStringList{u"2024-5-|1.5|1"_s, u"2024-6-|1|2"_s}));
    EXPECT_EQ(points(), u"2024-5-=1.5 2024-6-=1");
}

TEST_P(ChartMonthsTest, SayThatThereIsNothingAndLeaveTheWorkTableEmpty) {
    rig.sql(u"insert into %1 values('1999-1-', 5, 1)"_s.arg(work()));
    choose();
    EXPECT_EQ(rig.messages->shown, std::vector{NothingToChart});
    EXPECT_EQ(workRows(), QStringList());
    EXPECT_EQ(points(), u"现金=100");
    EXPECT_EQ(caption(), u"账户对比分析");
}

TEST_P(ChartMonthsTest, LeaveTheWorkTableEmptyWhenTheProgramEndsBeforeTheCopy) {
    rig.sql(u"insert into %1 values('1999-1-', 5, 1)"_s.arg(work()));
    rig.sql(u"alter table %1 rename column 区别 to 别"_s.arg(work()));
    store(u"'2024-05-03'"_s, 1.5);
    choose();
    EXPECT_EQ(rig.exitCode(), 1);
    EXPECT_EQ(rig.messages->errors.size(), 1u);
    EXPECT_EQ(adodc2().recordSource(), work());
    EXPECT_EQ(workRows(), QStringList());
    EXPECT_EQ(rig.sql(u"select count(*) from "_s + ledger()), QStringList(u"1"_s));
}

TEST_P(ChartMonthsTest, LeaveTheirSumsInTheSecondControl) {
    store(u"'2024-05-03'"_s, 1.5);
    choose();
    EXPECT_EQ(adodc1().recordSource(), u"select 时间,金额 from %1"_s.arg(ledger()));
    EXPECT_EQ(adodc2().recordSource(), GetParam().sums.toString());
    EXPECT_EQ(adodc1().connectionString(), rig.program->shared().connection());
    EXPECT_EQ(adodc2().connectionString(), rig.program->shared().connection());
    EXPECT_EQ(adodc2().recordset().recordCount(), 1);
    EXPECT_FALSE(adodc2().recordset().eof());
}

TEST_P(ChartMonthsTest, ShowAMonthWithoutAmountsAsOneWithoutValue) {
    rig.sql(u"insert into %1 values('1', '2024-05-03', '项', '我', NULL, '', '', 1)"_s.arg(ledger()));
    rig.sql(u"insert into %1 values('2', NULL, '项', '我', 3, '', '', 2)"_s.arg(ledger()));
    choose();
    EXPECT_EQ(points(), u"=3 2024-5-=");
}

TEST_P(ChartMonthsTest, OpenWithTheNewestInViewAndShowTheWholeSpanAtAClick) {
    storeMonths(120);
    choose();
    const auto inView = [this] { return chart().places().rowsInView(chart().scrolled()); };
    ASSERT_TRUE(span()->isVisible());
    EXPECT_EQ(inView().behindLast, 120);
    EXPECT_GT(inView().first, 100);
    press(*span());
    EXPECT_EQ(inView().first, 0);
    EXPECT_EQ(inView().behindLast, 120);
    EXPECT_EQ(chart().places().longestScroll(), 0);
    press(*span());
    EXPECT_GT(inView().first, 100);
    EXPECT_EQ(inView().behindLast, 120);
}

TEST_P(ChartMonthsTest, AreShownAnewWithTheNewestInView) {
    storeMonths(120);
    choose();
    press(*span());
    click(charts::Accounts);
    EXPECT_FALSE(span()->isVisible());
    click(GetParam().option);
    EXPECT_FALSE(chart().isWhole());
    EXPECT_EQ(chart().scrolled(), chart().places().longestScroll());
}

TEST_P(ChartMonthsTest, OfferTheWholeSpanOnlyWhereItIsNotInView) {
    storeMonths(3);
    choose();
    EXPECT_FALSE(span()->isVisible());
    EXPECT_EQ(chart().scrolled(), 0);
}

TEST_P(ChartMonthsTest, GiveTheirButtonsPlaceToTheRangeOfDates) {
    storeMonths(120);
    choose();
    rig.sql(u"delete from "_s + ledger()); // the chart of items is refused: that of months stays
    rig.sql(u"delete from "_s + (ledger() == u"srb" ? u"zcb"_s : u"srb"_s));
    click(charts::ExpenseByItem);
    ASSERT_TRUE(rig.at(charts::Range).isVisible());
    EXPECT_FALSE(span()->isVisible());
}

TEST_P(ChartMonthsTest, TouchNoOtherTable) {
    store(u"'2024-05-03'"_s, 1.5);
    rig.sql(u"insert into nsrb values('x', 1, 1)"_s);
    rig.sql(u"insert into nzcb values('x', 1, 1)"_s);
    const QString other = work() == u"nsrb" ? u"nzcb"_s : u"nsrb"_s;
    choose();
    EXPECT_EQ(rig.sql(u"select * from "_s + other), QStringList(u"x|1|1"_s));
    EXPECT_EQ(rig.sql(u"select count(*) from "_s + ledger()), QStringList(u"1"_s));
}

INSTANTIATE_TEST_SUITE_P(Sides, ChartMonthsTest,
                         ::testing::Values(Side{"Income", charts::YearsIncome, u"srb", u"nsrb", u"年度收入统计",
                                                u"select 时间,sum(金额)as 金额 from nsrb group by 时间"},
                                           Side{"Expense", charts::YearsExpense, u"zcb", u"nzcb", u"年度年支出统计",
                                                u"select 时间,sum(金额)as 金额 from nzcb group by 时间"}),
                         [](const auto& side) { return side.param.name; });

} // namespace
} // namespace qinghe::testing
