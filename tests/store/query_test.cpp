#include "store/selection.h"
#include "store/store_fixture.h"

using namespace Qt::StringLiterals;

namespace qinghe {
namespace {

class Queries : public StoreTest {
protected:
    QStringList column(const QString& source, const QString& name) {
        return StoreTest::column(control.open(source), name);
    }
    int failure(const QString& source, const QString& named) {
        return errorOf([&] { control.open(source); }, named);
    }
    /// How SQLite would go about a source.
    QString plan(const QString& source) {
        const Query query = parsedQuery(source);
        const Selection selection = selectionOf(query, store.columns(query.table));
        return OtherProgram(path()).row(u"EXPLAIN QUERY PLAN "_s + QString::fromUtf8(selection.sql));
    }
    void addSpending(const QString& date, const QString& item, double amount) {
        add(control.open(u"zcb"_s), {{u"时间"_s, date}, {u"项目"_s, item}, {u"金额"_s, amount}});
    }
};

TEST_F(Queries, SumOverNoRowsIsOneRowThatHoldsNull) {
    Recordset& set = control.open(u"select sum(金额)as 总金额 from srb where left(时间,7)='2024-5-'"_s);
    ASSERT_EQ(set.recordCount(), 1);
    EXPECT_TRUE(set.field(u"总金额").isNull());
    EXPECT_EQ(set.field(u"总金额").text(), QString());
}

TEST_F(Queries, SumOfAnEmptyGroupingHasNoRows) {
    Recordset& set = control.open(u"select 项目,sum(金额) as 总金额 from srb group by 项目"_s);
    EXPECT_EQ(set.recordCount(), 0);
    EXPECT_TRUE(set.eof());
}

TEST_F(Queries, SumSkipsNullsAndIsANumber) {
    addIncome(u"2024-5-3"_s, u"工资"_s, 0.1);
    addIncome(u"2024-5-4"_s, u"工资"_s, 0.2);
    add(control.recordset(), {{u"时间"_s, u"2024-5-5"_s}});
    EXPECT_EQ(column(u"select sum(金额) as 金额 from srb "_s, u"金额"_s), QStringList(u"0.3"_s));
}

TEST_F(Queries, SumsOfSeveralColumnsStandSideBySide) {
    add(control.open(u"jcb"_s), {{u"借出金额"_s, 100}, {u"已还金额"_s, 30}, {u"余额"_s, 70}});
    add(control.recordset(), {{u"借出金额"_s, 50}, {u"余额"_s, 50}});
    Recordset& set =
        control.open(u"select sum(借出金额) as 借出金额,sum(已还金额) as 已还金额,sum(余额) as 余额 from jcb "_s);
    EXPECT_EQ(set.field(0).text() + u'|' + set.field(1).text() + u'|' + set.field(2).text(), u"150|30|120"_s);
}

TEST_F(Queries, SumsOfHugeWholeAmountsDoNotOverflow) {
    for (int i = 0; i < 3; ++i)
        addIncome(u"2024-5-3"_s, u"工资"_s, 9e18);
    EXPECT_EQ(column(u"select sum(金额) as 金额 from srb "_s, u"金额"_s), QStringList(u"2.7E+19"_s));
}

TEST_F(Queries, MonthIsTheFirstSevenCharactersOfTheDatesText) {
    for (const auto& date : {u"2024-5-3"_s, u"2024-5-31"_s, u"2024-10-3"_s, u"2024-1-15"_s, u"2023-5-3"_s})
        addIncome(date, date, 1);
    const auto month = [this](const QString& text) {
        return column(u"select 项目 from srb where left(时间,7)='"_s + text + u"'"_s, u"项目"_s).join(u' ');
    };
    EXPECT_EQ(month(u"2024-5-"_s), u"2024-5-3 2024-5-31"_s);
    EXPECT_EQ(month(u"2024-10"_s), u"2024-10-3"_s);
    EXPECT_EQ(month(u"2024-1-"_s), u"2024-1-15"_s);
    for (const auto& none : {u"2024-5"_s, u"2024-05"_s, u"2024-010"_s, u"2024-00"_s, u"2024-1"_s})
        EXPECT_EQ(month(none), QString()) << none;
}

TEST_F(Queries, LeftWorksOnTheWholeTextFormOfADate) {
    for (const auto& text : {u"2024-5-3 8:05:09"_s, u"2024-10-20 0:00:01"_s, u"2024-12-31 23:59:59"_s, u"999-1-2"_s,
                             u"100-10-10 10:10:10"_s, u"100-1-1 8:05:09"_s, u"2020-2-20"_s, u"2000-1-10"_s})
        addIncome(text, text, 1);
    for (int length = 1; length <= 20; ++length) {
        for (const auto& text : column(u"srb"_s, u"时间"_s)) {
            const QString query = u"select 项目 from srb where left(时间,%1)='%2'"_s;
            const QStringList found = column(query.arg(length).arg(text.left(length)), u"项目"_s);
            EXPECT_TRUE(found.contains(text)) << length << text;
            for (const QString& other : found)
                EXPECT_EQ(other.left(length), text.left(length)) << length;
        }
    }
}

TEST_F(Queries, LeftOfATextColumnIsTheBeginningOfItsText) {
    add(control.open(u"nsrb"_s), {{u"时间"_s, u"2024-5-"_s}, {u"金额"_s, 5}});
    EXPECT_EQ(column(u"select 金额 from nsrb where left(时间,6)='2024-5'"_s, u"金额"_s), QStringList(u"5"_s));
}

TEST_F(Queries, DatesAreComparedAsDays) {
    for (const auto& date : {u"2024-10-2"_s, u"2024-9-30"_s, u"2023-12-31"_s, u"2024-9-3"_s})
        addIncome(date, date, 1);
    EXPECT_EQ(column(u"select * from srb where 时间<=#2024-9-30#"_s, u"项目"_s),
              QStringList({u"2024-9-30"_s, u"2023-12-31"_s, u"2024-9-3"_s}));
    EXPECT_EQ(column(u"select * from srb where 时间<= # 2024年9月3日 #"_s, u"项目"_s),
              QStringList({u"2023-12-31"_s, u"2024-9-3"_s}));
    EXPECT_EQ(column(u"select 项目 from srb where 时间 between #2024-9-3# and #2024-10-2#"_s, u"项目"_s),
              QStringList({u"2024-10-2"_s, u"2024-9-30"_s, u"2024-9-3"_s}));
    EXPECT_EQ(column(u"select 项目 from srb where 时间 between #2024-10-2# and #2024-9-3#"_s, u"项目"_s),
              QStringList());
    EXPECT_EQ(column(u"select 项目 from srb where 时间 = #2024-9# "_s, u"项目"_s), QStringList());
    EXPECT_EQ(column(u"select 项目 from srb where 时间 > #2024-9# "_s, u"项目"_s).size(), 3);
}

TEST_F(Queries, DatesAreTakenAsAHouseholdWritesThem) {
    for (const auto& date : {u"2024-5-3"_s, u"2024-5-4"_s, u"2023-5-3"_s})
        addIncome(date, date, 1);
    for (const auto& text :
         {u"5-3"_s, u" 5月3日 "_s, u"24-5-3"_s, u"20240503"_s, u"２０２４。５。３"_s, u"2024年5月3号"_s})
        EXPECT_EQ(column(u"select * from srb where 时间=#"_s + text + u'#', u"项目"_s), QStringList(u"2024-5-3"_s))
            << text;
    for (const auto& text : {u"24-5"_s, u"5-32"_s, u"2-30"_s})
        EXPECT_EQ(failure(u"select * from srb where 时间=#"_s + text + u'#', u'“' + text + u'”'),
                  RuntimeError::QueryFailure);
}

TEST_F(Queries, ADayHoldsOnlyWhatHasNoTime) {
    addIncome(u"2024-5-3 8:05:09"_s, u"早"_s, 1);
    addIncome(u"2024-5-3 0:00:00"_s, u"零点"_s, 1);
    EXPECT_EQ(column(u"select * from srb where 时间= #2024-5-3# "_s, u"项目"_s), QStringList(u"零点"_s));
    EXPECT_EQ(column(u"select * from srb where 时间= #2024-5-3 08:05:09# "_s, u"项目"_s), QStringList(u"早"_s));
}

TEST_F(Queries, TextThatIsNoDateBreaksTheQuery) {
    for (const auto& text : {u"昨天"_s, u"2024-13-1"_s, u""_s, u"12元"_s})
        EXPECT_EQ(failure(u"select * from srb where 时间<=#"_s + text + u"#"_s, u'“' + text + u'”'),
                  RuntimeError::QueryFailure);
}

TEST_F(Queries, QuoteInATextBreaksTheQuery) {
    EXPECT_EQ(failure(u"select * from 软件皮肤 where 名称='it's'"_s, u"s'"_s), RuntimeError::QueryFailure);
}

TEST_F(Queries, TextsCompareExactly) {
    for (const auto& name : {u"abc"_s, u"ABC"_s, u"abc "_s, u"工资"_s})
        addIncome(u"2024-5-3"_s, name, 1);
    EXPECT_EQ(column(u"select * from srb where 项目='abc'"_s, u"项目"_s), QStringList(u"abc"_s));
    EXPECT_EQ(column(u"select * from srb where 项目='工资'"_s, u"项目"_s), QStringList(u"工资"_s));
}

TEST_F(Queries, GroupsStandInTheOrderOfTheirTextAndNullIsAGroupOfItsOwn) {
    const QStringList items{u"b"_s, u"NULL"_s, u"工资"_s, u""_s, u"B"_s, u"b"_s, u"NULL"_s};
    for (int amount = 1; const QString& item : items) {
        add(control.open(u"srb"_s), {{u"项目"_s, item == u"NULL" ? Value() : item}, {u"金额"_s, amount}});
        amount *= 2;
    }
    const QString source = u"select 项目,sum(金额) as 总金额 from srb group by 项目"_s;
    EXPECT_EQ(column(source, u"项目"_s), QStringList({u"NULL"_s, u""_s, u"B"_s, u"b"_s, u"工资"_s}));
    EXPECT_EQ(column(source, u"总金额"_s), QStringList({u"66"_s, u"8"_s, u"16"_s, u"33"_s, u"4"_s}));
}

TEST_F(Queries, TwoKeysGroupInTheOrderOfTheGroupByClause) {
    for (const auto& [item, person] :
         {std::pair(u"饭"_s, u"乙"_s), {u"衣"_s, u"甲"_s}, {u"饭"_s, u"甲"_s}, {u"衣"_s, u"甲"_s}})
        add(control.open(u"sztjlsb"_s),
            {{u"时间"_s, u"2024-10"_s}, {u"项目"_s, item}, {u"人员"_s, person}, {u"金额"_s, 1}});
    const QString source =
        u"select 人员,项目,sum(金额)as 总金额  from sztjlsb where 时间= '2024-10'  group by 项目,人员"_s;
    EXPECT_EQ(column(source, u"人员"_s), QStringList({u"甲"_s, u"乙"_s, u"甲"_s}));
    EXPECT_EQ(column(source, u"项目"_s), QStringList({u"衣"_s, u"饭"_s, u"饭"_s}));
    EXPECT_EQ(column(source, u"总金额"_s), QStringList({u"2"_s, u"1"_s, u"1"_s}));
}

TEST_F(Queries, ASumMayBearTheNameOfItsColumn) {
    for (const auto& [month, amount] : {std::pair(u"2024-5-"_s, 1), {u"2024-10"_s, 2}, {u"2024-5-"_s, 4}})
        add(control.open(u"nsrb"_s), {{u"时间"_s, month}, {u"金额"_s, amount}});
    const QString source = u"select 时间,sum(金额)as 金额 from nsrb group by 时间"_s;
    EXPECT_EQ(column(source, u"时间"_s), QStringList({u"2024-10"_s, u"2024-5-"_s}));
    EXPECT_EQ(column(source, u"金额"_s), QStringList({u"2"_s, u"5"_s}));
}

TEST_F(Queries, RowsComeInTheOrderOfWriting) {
    for (const auto& date : {u"2024-6-18"_s, u"2020-1-1"_s, u"2024-6-18"_s, u"2022-1-1"_s})
        add(control.open(u"rcb"_s), {{u"日程日期"_s, date}, {u"日程内容"_s, date}});
    EXPECT_EQ(column(u"rcb"_s, u"日程内容"_s),
              QStringList({u"2024-6-18"_s, u"2020-1-1"_s, u"2024-6-18"_s, u"2022-1-1"_s}));
    EXPECT_EQ(column(u"select * from rcb where 日程日期<=#2022-1-1#"_s, u"日程内容"_s),
              QStringList({u"2020-1-1"_s, u"2022-1-1"_s}));
}

TEST_F(Queries, MonthsAreLookedUpInAnIndex) {
    control.open(u"srb"_s);
    const std::vector<std::pair<QString, QString>> tables{{u"srb"_s, u"时间"_s},
                                                          {u"zcb"_s, u"时间"_s},
                                                          {u"ysb"_s, u"预算时间"_s},
                                                          {u"jrb"_s, u"日期"_s},
                                                          {u"jcb"_s, u"日期"_s}};
    for (const auto& [table, date] : tables) {
        const QString amount = store.columns(table)[table == u"srb"_s || table == u"zcb"_s ? 4 : 2].name;
        const QString source = u"select sum(%1)as 总金额 from %2 where left(%3,7)='2024-5-'"_s.arg(amount, table, date);
        EXPECT_TRUE(plan(source).contains(u"SEARCH "_s + table + u" USING INDEX"_s)) << plan(source);
    }
}

TEST_F(Queries, DaysAreLookedUpInAnIndexWithoutSorting) {
    control.open(u"rcb"_s);
    const QString chosen = plan(u"select * from rcb where 日程日期= #2024-6-18# "_s);
    EXPECT_TRUE(chosen.contains(u"SEARCH rcb USING INDEX"_s)) << chosen;
    EXPECT_FALSE(chosen.contains(u"TEMP B-TREE"_s)) << chosen;
}

TEST_F(Queries, AliasesNameTheColumns) {
    addIncome(u"2024-5-3"_s, u"工资"_s, 100);
    EXPECT_EQ(column(u"select 项目 as 名目 from srb"_s, u"名目"_s), QStringList(u"工资"_s));
}

TEST_F(Queries, TablesAndColumnsThatAreNotThereAreNamed) {
    EXPECT_EQ(failure(u"nosuch"_s, u"“nosuch”"_s), RuntimeError::QueryFailure);
    EXPECT_EQ(failure(u"sqlite_master"_s, u"“sqlite_master”"_s), RuntimeError::QueryFailure);
    EXPECT_EQ(failure(u"select * from sqlite_schema"_s, u"“sqlite_schema”"_s), RuntimeError::QueryFailure);
    EXPECT_EQ(failure(u"select 姓名 from srb"_s, u"“姓名”"_s), RuntimeError::QueryFailure);
    EXPECT_EQ(failure(u"select sum(姓名) as x from srb"_s, u"“姓名”"_s), RuntimeError::QueryFailure);
    EXPECT_EQ(failure(u"select * from srb where 姓名='a'"_s, u"“姓名”"_s), RuntimeError::QueryFailure);
    EXPECT_EQ(failure(u"select 项目 from srb group by 项目,姓名"_s, u"“姓名”"_s), RuntimeError::QueryFailure);
    EXPECT_EQ(failure(u"select rowid from srb"_s, u"“rowid”"_s), RuntimeError::QueryFailure);
}

TEST_F(Queries, WhatDoesNotFitIsRefused) {
    EXPECT_EQ(failure(u"select * from srb where 时间='2024-5-3'"_s, u"“时间”"_s), RuntimeError::QueryFailure);
    EXPECT_EQ(failure(u"select * from srb where 项目=#2024-5-3#"_s, u"“项目”"_s), RuntimeError::QueryFailure);
    EXPECT_EQ(failure(u"select * from srb where 金额='5'"_s, u"“金额”"_s), RuntimeError::QueryFailure);
    EXPECT_EQ(failure(u"select * from srb where left(金额,1)='5'"_s, u"“金额”"_s), RuntimeError::QueryFailure);
    EXPECT_EQ(failure(u"select * from srb where left(时间,7)=#2024-5-3#"_s, u"“时间”"_s), RuntimeError::QueryFailure);
    EXPECT_EQ(failure(u"select sum(项目) as x from srb"_s, u"“项目”"_s), RuntimeError::QueryFailure);
    EXPECT_EQ(failure(u"select 项目,sum(金额) as x from srb"_s, u"“项目”"_s), RuntimeError::QueryFailure);
    EXPECT_EQ(failure(u"select 项目,账户 from srb group by 账户"_s, u"“项目”"_s), RuntimeError::QueryFailure);
    EXPECT_EQ(failure(u"select distinct 项目,账户 from srb"_s, u"distinct"_s), RuntimeError::QueryFailure);
    EXPECT_EQ(failure(u"select distinct * from srb"_s, u"distinct"_s), RuntimeError::QueryFailure);
    EXPECT_EQ(failure(u"select * from srb group by 项目"_s, u"分组"_s), RuntimeError::QueryFailure);
}

TEST_F(Queries, ARefusedQueryLeavesTheOpenWorkAsItIs) {
    addIncome(u"2024-5-3"_s, u"工资"_s, 100);
    EXPECT_EQ(failure(u"nosuch"_s, u"nosuch"_s), RuntimeError::QueryFailure);
    store.commit();
    EXPECT_EQ(OtherProgram(path()).row(u"SELECT count(*) FROM srb"_s), u"1"_s);
}

} // namespace
} // namespace qinghe
