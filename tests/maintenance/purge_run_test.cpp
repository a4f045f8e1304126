#include "maintenance/purge_rig.h"
#include "runtime/runtime_error.h"

// 开始删除: which rows go, in which order, and what is told.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

template<class Param>
std::string nameOf(const ::testing::TestParamInfo<Param>& param) {
    return param.param.name;
}

class PurgeRunTest : public PurgeTest {
protected:
    PurgeRunTest() { storeEverywhere({u"2024-05-02"_s, u"2024-05-03"_s, u"2024-05-04"_s}); }

    std::vector<int> counts() {
        std::vector<int> counts;
        for (int kind = 0; kind < 7; ++kind)
            counts.push_back(count(kind));
        return counts;
    }
    void chooseAllButAccounts() { choose({IncomeKind, ExpenseKind, BorrowedKind, LentKind, BudgetKind, PlansKind}); }
    const std::vector<int> untouched = std::vector<int>(7, 3);
};

class PurgeKindTest : public PurgeRunTest, public ::testing::WithParamInterface<PurgeKind> {
protected:
    const PurgeKind& kind = GetParam();
    bool dated() const { return !kind.date.isEmpty(); }
    void chooseKind() { rig.click(rig.at(kind.box)); }
};

INSTANTIATE_TEST_SUITE_P(Of, PurgeKindTest, ::testing::ValuesIn(PurgeKinds), nameOf<PurgeKind>);

TEST_P(PurgeKindTest, LosesItsRowsUpToAndWithTheDayAndNoOtherKindLosesAny) {
    chooseKind();
    dated() ? purge(u"2024-5-3"_s) : start();
    EXPECT_EQ(told(), QStringList{kind.done.toString()});
    EXPECT_EQ(left(kind), dated() ? QStringList{u"2024-05-04"_s} : QStringList());
    for (const PurgeKind& other : PurgeKinds)
        EXPECT_EQ(left(other).size() == 3, QStringView(other.table) != kind.table) << other.name;
}

TEST_P(PurgeKindTest, IsToldToBeEmptyTheSecondTime) {
    chooseKind();
    dated() ? purge(u"2024-5-3"_s) : start();
    start();
    EXPECT_EQ(told(), QStringList{kind.none.toString()});
    EXPECT_EQ(left(kind).size(), dated() ? 1 : 0);
}

TEST_P(PurgeKindTest, AsksForADateWhereItNeedsOne) {
    chooseKind();
    start();
    EXPECT_EQ(told(), QStringList{dated() ? NoDate : kind.done.toString()});
    EXPECT_EQ(left(kind).size(), dated() ? 3 : 0);
}

TEST_P(PurgeKindTest, IsKeptBeforeItsMessage) {
    chooseKind();
    QStringList seen{u"not told"_s};
    rig.messages->whileShown = [&](const ShownMessage& message) {
        if (message.text == kind.done.toString())
            seen = left(kind); // through a second connection
    };
    dated() ? purge(u"2024-5-3"_s) : start();
    EXPECT_EQ(seen, dated() ? QStringList{u"2024-05-04"_s} : QStringList());
}

TEST_F(PurgeRunTest, AsksAndDoesNothingWhenNothingIsTicked) {
    start();
    EXPECT_EQ(rig.messages->shown, (std::vector{ShownMessage{u"是否确定清空选择的记录？"_s, 36, u"提示"_s}}));
    EXPECT_EQ(counts(), untouched);
}

TEST_F(PurgeRunTest, StopsAtANo) {
    chooseAllButAccounts();
    for (const Answer answer : {Answer::No, Answer::Cancel}) {
        rig.messages->answers = {answer};
        purge(u"2024-5-3"_s);
        EXPECT_EQ(told(), QStringList());
        EXPECT_EQ(counts(), untouched);
    }
}

TEST_F(PurgeRunTest, LeavesTheKeyboardToTheWindow) {
    auto& button = inside<CommandButton>(purge::Start);
    for (const Answer answer : {Answer::Yes, Answer::No}) {
        rig.messages->answers = {answer};
        button.setFocus();
        rig.press(button, Qt::Key_Return);
        EXPECT_FALSE(button.hasFocus());
        EXPECT_EQ(window()->focusWidget(), window());
    }
}

TEST_F(PurgeRunTest, NeedsNoDateForAccountsAloneWhichAllGo) {
    choose({AccountsKind});
    EXPECT_FALSE(date().Visible());
    start();
    EXPECT_EQ(told(), QStringList{u"账户记录已清空"_s});
    EXPECT_EQ(counts(), (std::vector{3, 3, 3, 3, 0, 3, 3}));
}

TEST_F(PurgeRunTest, AsksForADateForIncomeBesideAccountsWhichGoAllTheSame) {
    rig.type(date(), u"2024-5-3"_s);
    choose({IncomeKind, AccountsKind});
    start();
    EXPECT_EQ(told(), (QStringList{NoDate, u"账户记录已清空"_s}));
    EXPECT_EQ(counts(), (std::vector{3, 3, 3, 3, 0, 3, 3}));
}

TEST_F(PurgeRunTest, GoesThroughTheKindsInOneOrderHoweverTheyWereTicked) {
    choose({PlansKind, BudgetKind, LentKind, BorrowedKind, ExpenseKind, IncomeKind});
    std::vector<std::vector<int>> seen;
    rig.messages->whileShown = [&](const ShownMessage&) { seen.push_back(counts()); };
    purge(u"2024-5-3"_s);
    EXPECT_EQ(told(), (QStringList{u"收入记录已清空！"_s, u"支出记录已清空！"_s, u"借入记录已清空"_s,
                                   u"借出记录已清空"_s, u"预算记录已清空"_s, u"日程记录已清空"_s}));
    const std::vector<std::vector<int>> expected{{3, 3, 3, 3, 3, 3, 3}, {1, 3, 3, 3, 3, 3, 3}, {1, 1, 3, 3, 3, 3, 3},
                                                 {1, 1, 1, 3, 3, 3, 3}, {1, 1, 1, 1, 3, 3, 3}, {1, 1, 1, 1, 3, 1, 3},
                                                 {1, 1, 1, 1, 3, 1, 1}};
    EXPECT_EQ(seen, expected);
}

TEST_F(PurgeRunTest, TellsSevenMessagesForSevenTicks) {
    chooseAllButAccounts();
    choose({AccountsKind});
    start();
    EXPECT_EQ(told(), (QStringList{NoDate, NoDate, NoDate, NoDate, u"账户记录已清空"_s, NoDate, NoDate}));
}

TEST_F(PurgeRunTest, TellsOfKindsWithNothingOldAndGoesOn) {
    store(PurgeKinds[ExpenseKind], {u"2020-01-01"_s});
    choose({IncomeKind, ExpenseKind, LentKind});
    purge(u"2023-12-31"_s);
    EXPECT_EQ(told(), (QStringList{u"当前收入记录为空！"_s, u"支出记录已清空！"_s, u"当前借出记录为空！"_s}));
    EXPECT_EQ(counts(), untouched);
}

TEST_F(PurgeRunTest, StaysOpenWithItsTicksAndItsDate) {
    choose({IncomeKind, PlansKind});
    purge(u"2024-5-3"_s);
    ASSERT_TRUE(window() && window()->isVisible());
    EXPECT_TRUE(box(IncomeKind).Value() && box(PlansKind).Value());
    EXPECT_EQ(date().Text(), u"2024-5-3");
    EXPECT_TRUE(tick().Value());
}

TEST_F(PurgeRunTest, WorksWithADayFromThePicker) {
    choose({IncomeKind});
    rig.click(date());
    auto& back = rig.at(date_picker::Back); // to May 2024, which begins on a Wednesday
    rig.click(back);
    rig.doubleClick(rig.at(date_picker::Day[5]));
    ASSERT_EQ(date().Text(), u"2024-5-3");
    start();
    EXPECT_EQ(left(PurgeKinds[IncomeKind]), QStringList{u"2024-05-04"_s});
}

TEST_F(PurgeRunTest, TakesTheUsualWaysOfWritingADateAndBlanksAround) {
    choose({BudgetKind});
    purge(u"2024年5月2日"_s);
    EXPECT_EQ(left(PurgeKinds[BudgetKind]), (QStringList{u"2024-05-03"_s, u"2024-05-04"_s}));
    purge(u"  2024/05/03 "_s);
    EXPECT_EQ(left(PurgeKinds[BudgetKind]), QStringList{u"2024-05-04"_s});
}

TEST_F(PurgeRunTest, LeavesRowsWithoutADate) {
    rig.sql(u"insert into srb(编号) values('无日期')"_s);
    choose({IncomeKind});
    purge(u"9999-12-31"_s);
    EXPECT_EQ(left(PurgeKinds[IncomeKind]), QStringList{u"NULL"_s});
}

TEST_F(PurgeRunTest, ChangesNoBalanceAndNothingOnView) {
    rig.click(tick());
    rig.click(rig.at(pages::Income));
    rig.click(rig.at(pages::Settings));
    rig.settle();
    auto& ms2 = rig.at(income::Grid);
    ASSERT_EQ(ms2.Rows(), 4);
    const QString total = rig.at(income::Total).Caption();
    const QStringList accounts = rig.sql(u"select * from zhb"_s), statistics = rig.sql(u"select * from sztjlsb"_s);
    openPurge();
    chooseAllButAccounts();
    purge(u"2024-5-3"_s);
    EXPECT_EQ(ms2.Rows(), 4);
    EXPECT_EQ(rig.at(income::Total).Caption(), total);
    EXPECT_EQ(rig.sql(u"select * from zhb"_s), accounts);
    EXPECT_EQ(rig.sql(u"select * from sztjlsb"_s), statistics);
}

TEST_F(PurgeRunTest, LeavesTheMainWindowsDataControlAsItWas) {
    Adodc& main = *rig.mainWindow().Adodc1;
    const QString source = main.recordSource();
    choose({IncomeKind});
    purge(u"2024-5-3"_s);
    EXPECT_EQ(main.recordSource(), source);
    EXPECT_EQ(inside<Adodc>(u"Adodc1"_s).recordSource(), u"select * from srb where 时间<=#2024-5-3#");
}

TEST_F(PurgeRunTest, AsksTheStoreInItsOwnWordsForEachKind) {
    const QStringList sources{u"select * from srb where 时间<=#2024-5-3#"_s,
                              u"select * from zcb where 时间<= #2024-5-3#"_s,
                              u"select * from jrb where 日期< = #2024-5-3#"_s,
                              u"select * from jcb where 日期<= #2024-5-3#"_s,
                              u"zhb"_s,
                              u"select * from ysb where 预算时间<= #2024-5-3#"_s,
                              u"select * from rcb where 日程日期<=#2024-5-3#"_s};
    for (int kind = 0; kind < 7; ++kind) {
        choose({kind});
        if (kind == AccountsKind)
            start();
        else
            purge(u" 2024-5-3 "_s);
        EXPECT_EQ(inside<Adodc>(u"Adodc1"_s).recordSource(), sources[kind]);
        choose({kind});
    }
}

// A date that is none stops the run with the words of the store; what was done stays, the rest is untouched.

struct BadDate {
    const char* name;
    QStringView text;
    QStringView words; ///< that the error window tells
};

class PurgeBadDateTest : public PurgeRunTest, public ::testing::WithParamInterface<BadDate> {};

INSTANTIATE_TEST_SUITE_P(Of, PurgeBadDateTest,
                         ::testing::Values(BadDate{"Letters", u"abc", u"“abc”不是日期，日期应写成 2024-5-3 的样子"},
                                           BadDate{"AnApostrophe", u"2024-5-3' or '1'='1", u"不是日期"},
                                           BadDate{"NoSuchDay", u"2024-2-30", u"“2024-2-30”不是日期"},
                                           BadDate{"NoDay", u"2024-5-", u"“2024-5-”不是日期"},
                                           BadDate{"Blanks", u"  ", u"不是日期"},
                                           BadDate{"ADateMark", u"2024-5-3#", u"没有成对"},
                                           BadDate{"AnotherQuery", u"2024-5-3# group by 时间#", u"group"}),
                         nameOf<BadDate>);

TEST_P(PurgeBadDateTest, StopsTheRunWithHelpfulWordsAndLosesNothing) {
    choose({IncomeKind, ExpenseKind});
    purge(GetParam().text.toString());
    EXPECT_EQ(told(), QStringList());
    ASSERT_EQ(rig.messages->errors.size(), 1u);
    EXPECT_EQ(rig.messages->errors.front().first, RuntimeError::QueryFailure);
    EXPECT_TRUE(rig.messages->errors.front().second.contains(GetParam().words.toString()))
        << rig.messages->errors.front().second.toStdString();
    EXPECT_EQ(rig.exitCode(), 1);
    EXPECT_EQ(counts(), untouched);
}

TEST_F(PurgeRunTest, KeepsTheKindsDoneBeforeAFailure) {
    rig.sql(u"drop table zcb"_s);
    choose({IncomeKind, ExpenseKind, BorrowedKind});
    purge(u"2024-5-3"_s);
    EXPECT_EQ(told(), QStringList{u"收入记录已清空！"_s});
    EXPECT_EQ(rig.messages->errors.size(), 1u);
    EXPECT_EQ(rig.exitCode(), 1);
    EXPECT_EQ(count(IncomeKind), 1);
    EXPECT_EQ(count(BorrowedKind), 3);
}

} // namespace
} // namespace qinghe::testing
