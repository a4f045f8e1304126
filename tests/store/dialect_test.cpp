#include "store/dialect.h"
#include "store/store_fixture.h"

using namespace Qt::StringLiterals;

namespace qinghe {
namespace {

/// What was understood, in one normal form.
QString normal(const Comparison& comparison) {
    QString text =
        comparison.leading ? u"left(%1,%2)"_s.arg(comparison.column).arg(comparison.leading) : comparison.column;
    text += u' ' + comparison.sign;
    for (const Literal& literal : comparison.literals)
        text += (literal.isDate ? u" #%1#"_s : u" '%1'"_s).arg(literal.text);
    return text;
}

QString normal(const QString& source) {
    const Query query = parsedQuery(source);
    QStringList items;
    for (const SelectItem& item : query.items)
        items += (item.isSum ? u"sum(%1) as %2"_s : u"%1 as %2"_s).arg(item.column, item.name);
    QString text = (query.distinct ? u"distinct "_s : QString()) + items.join(u", "_s) + u" from "_s + query.table;
    if (query.where)
        text += u" where "_s + normal(*query.where);
    for (const QString& key : query.groupBy)
        text += u" by "_s + key;
    return text;
}

struct Reading {
    QString source;
    QString understood;
};

// Every query that the program sends, with the texts that it joins in.
const std::vector<Reading> Readings{
    {u"srb"_s, u" from srb"_s},
    {u" nzcb"_s, u" from nzcb"_s},
    {u"登陆用户记录表"_s, u" from 登陆用户记录表"_s},
    {u"select * from 皮肤选择 "_s, u" from 皮肤选择"_s},
    {u"select * from 主界面"_s, u" from 主界面"_s},
    {u"select 日程提醒 from txb"_s, u"日程提醒 as 日程提醒 from txb"_s},
    {u"select 时间,项目,收款人,金额 from srb"_s,
     u"时间 as 时间, 项目 as 项目, 收款人 as 收款人, 金额 as 金额 from srb"_s},
    {u"select sum(金额) as 金额 from srb "_s, u"sum(金额) as 金额 from srb"_s},
    {u"select sum(借出金额) as 借出金额,sum(已还金额) as 已还金额,sum(余额) as 余额 from jcb "_s,
     u"sum(借出金额) as 借出金额, sum(已还金额) as 已还金额, sum(余额) as 余额 from jcb"_s},
    {u"select sum(金额)as 总金额 from srb where left(时间,7)='2024-05'"_s,
     u"sum(金额) as 总金额 from srb where left(时间,7) = '2024-05'"_s},
    {u"select sum(预算金额)as 总金额 from ysb where left(预算时间,7)='2024-10'"_s,
     u"sum(预算金额) as 总金额 from ysb where left(预算时间,7) = '2024-10'"_s},
    {u"select * from rcb where 日程日期= #2024-6-18# "_s, u" from rcb where 日程日期 = #2024-6-18#"_s},
    {u"select * from rcb where 日程日期= # 2024-6-18 # "_s, u" from rcb where 日程日期 = #2024-6-18#"_s},
    {u"select 提醒时间,提醒音乐,日程内容 from rcb where 日程日期= # 2024-6-18 # "_s,
     u"提醒时间 as 提醒时间, 提醒音乐 as 提醒音乐, 日程内容 as 日程内容 from rcb where 日程日期 = #2024-6-18#"_s},
    {u"select 项目,sum(金额)as 总金额 from sztjlsb where 时间= '2024-10'group by 项目 "_s,
     u"项目 as 项目, sum(金额) as 总金额 from sztjlsb where 时间 = '2024-10' by 项目"_s},
    {u"select 人员,项目,sum(金额)as 总金额  from sztjlsb where 时间= '2024-10'  group by 项目,人员"_s,
     u"人员 as 人员, 项目 as 项目, sum(金额) as 总金额 from sztjlsb where 时间 = '2024-10' by 项目 by 人员"_s},
    {u"select 时间,sum(金额)as 金额 from nsrb group by 时间"_s, u"时间 as 时间, sum(金额) as 金额 from nsrb by 时间"_s},
    {u"select 项目,sum(金额) as 总金额 from zcb where 时间 between #2024-1-1# and # 2024-6-30# group by 项目"_s,
     u"项目 as 项目, sum(金额) as 总金额 from zcb where 时间 between #2024-1-1# #2024-6-30# by 项目"_s},
    {u"select * from srb where 时间<=#2024-6-18#"_s, u" from srb where 时间 <= #2024-6-18#"_s},
    {u"select * from jrb where 日期< = #2024-6-18#"_s, u" from jrb where 日期 <= #2024-6-18#"_s},
    {u"select * from ysb where 预算时间<= #2024-6-18#"_s, u" from ysb where 预算时间 <= #2024-6-18#"_s},
    {u"select distinct 收入大类 from srflb"_s, u"distinct 收入大类 as 收入大类 from srflb"_s},
    {u"select 支出大类 ,支出细类,快速代码 from zcflb where 支出大类 = '日常 \"生活\";#--'"_s,
     u"支出大类 as 支出大类, 支出细类 as 支出细类, 快速代码 as 快速代码 from zcflb where 支出大类 = '日常 \"生活\";#--'"_s},
    {u"select * from 软件皮肤 where 名称=''"_s, u" from 软件皮肤 where 名称 = ''"_s},
};

TEST(Dialect, UnderstandsWhatTheProgramSends) {
    for (const Reading& reading : Readings)
        EXPECT_EQ(normal(reading.source), reading.understood) << reading.source;
}

TEST(Dialect, ReadsKeywordsInAnyCaseAndBlanksAnywhere) {
    EXPECT_EQ(
        normal(u"  SELECT\tSum ( 金额 )AS 总\r\nFrom srb WHERE Left ( 时间 , 7 ) > = 'x' Group  BY 项目 , 人员 "_s),
        u"sum(金额) as 总 from srb where left(时间,7) >= 'x' by 项目 by 人员"_s);
}

TEST(Dialect, ReadsEveryComparisonSign) {
    for (const auto& sign : {u"="_s, u"<"_s, u">"_s, u"<="_s, u">="_s, u"<>"_s})
        EXPECT_EQ(normal(parsedComparison(u"金额"_s + sign + u"'5'"_s)), u"金额 "_s + sign + u" '5'"_s);
}

TEST(Dialect, LetsColumnsBeNamedLikeFunctions) {
    EXPECT_EQ(normal(u"select sum, left from srb where left = 'x'"_s),
              u"sum as sum, left as left from srb where left = 'x'"_s);
}

struct Refusal {
    QString source;
    QString named; ///< what the error's text points at
};

const std::vector<Refusal> Refusals{
    {u""_s, u"表名"_s},
    {u"   "_s, u"表名"_s},
    {u"srb; delete from srb"_s, u"; delete"_s},
    {u"srb where 1=1"_s, u"where 1=1"_s},
    {u"delete from srb"_s, u"from srb"_s},
    {u"update srb set 金额=0"_s, u"srb set"_s},
    {u"insert into srb values('x')"_s, u"into srb"_s},
    {u"attach 'x' as y"_s, u"'x'"_s},
    {u"pragma synchronous=off"_s, u"synchronous"_s},
    {u"drop table srb"_s, u"table srb"_s},
    {u"select * from srb, zcb"_s, u", zcb"_s},
    {u"select * from srb where 项目='a' or '1'='1'"_s, u"or '1'='1'"_s},
    {u"select * from srb where 项目='a' and 金额='1'"_s, u"and 金额"_s},
    {u"select * from srb where 项目='O'Brien'"_s, u"Brien'"_s},
    {u"select * from srb where 项目='a''b'"_s, u"'b'"_s},
    {u"select * from srb where 项目='a'; drop table srb"_s, u"; drop"_s},
    {u"select * from srb where 项目='a' union select * from yhb"_s, u"union"_s},
    {u"select * from srb where 项目='a' -- '"_s, u"-- '"_s},
    {u"select * from srb where 项目=(select 1)"_s, u"(select 1)"_s},
    {u"select * from srb where 项目=5"_s, u"5"_s},
    {u"select * from srb where 项目='abc"_s, u"'abc"_s},
    {u"select * from srb where 时间=#2024-5-3"_s, u"#2024-5-3"_s},
    {u"select * from srb where left(时间,0)='x'"_s, u"0)"_s},
    {u"select * from srb where left(时间,99999999999)='x'"_s, u"99999999999"_s},
    {u"select * from srb where mid(时间,7)='x'"_s, u"(时间"_s},
    {u"select * from srb where 时间 between #a# or #b#"_s, u"or #b#"_s},
    {u"select * from srb order by 金额"_s, u"order by"_s},
    {u"select sum(金额) from srb"_s, u"from srb"_s},
    {u"select count(*) as n from srb"_s, u"(*)"_s},
    {u"select *,项目 from srb"_s, u",项目"_s},
    {u"select 项目, from srb"_s, u"srb"_s},
    {u"select from srb"_s, u"srb"_s},
    {u"select * from"_s, u"表名"_s},
    {u"select * from [srb]"_s, u"[srb]"_s},
    {u"select * from srb group 项目"_s, u"项目"_s},
    {u"select 项目 as 'x' from srb"_s, u"'x'"_s},
    {QStringView(u"srb\0", 4).toString(), u"srb"_s},
};

TEST(Dialect, RefusesEverythingElseAndPointsAtIt) {
    for (const Refusal& refusal : Refusals)
        EXPECT_EQ(errorOf([&] { parsedQuery(refusal.source); }, refusal.named), RuntimeError::QueryFailure)
            << refusal.source;
}

TEST(Dialect, TellsThatAQuoteCanNotBeUsed) {
    EXPECT_EQ(errorOf([] { parsedQuery(u"select * from srb where 项目='O'Brien'"_s); }, u"不能有英文单引号"_s),
              RuntimeError::QueryFailure);
    EXPECT_EQ(errorOf([] { parsedQuery(u"select * from srb where 项目=#"_s); }, u"查询内容：select * from srb"_s),
              RuntimeError::QueryFailure);
}

TEST(Dialect, ReadsOneComparisonForASearch) {
    EXPECT_EQ(normal(parsedComparison(u"用户名='管理员'"_s)), u"用户名 = '管理员'"_s);
    EXPECT_EQ(normal(parsedComparison(u" 用户名 = '' "_s)), u"用户名 = ''"_s);
    for (const auto& text : {u"用户名='a' or 1=1"_s, u"用户名='a'b'"_s, u"用户名"_s, u"'a'='a'"_s, u""_s})
        EXPECT_EQ(errorOf([&] { parsedComparison(text); }), RuntimeError::QueryFailure) << text;
}

} // namespace
} // namespace qinghe
