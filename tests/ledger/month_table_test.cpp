#include "ledger/income_rig.h"

// The statistics table sztjlsb, which every opening of the page fills anew.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class MonthTableTest : public IncomeTest {
protected:
    QStringList statistics() { return rig.sql(u"select 时间,金额,项目,区别,人员 from sztjlsb order by rowid"_s); }
};

TEST_F(MonthTableTest, HoldsTheWholeLedgerOfIncomeInItsOrder) {
    rig.sql(u"insert into srb values('7','2024-12-03','工资','我',100.5,'现金','',9),"
            "('8','2024-05-31','利息','妻子',2,'存折','x',8)"_s);
    open(0);
    EXPECT_EQ(statistics(), (QStringList{u"2024-12|100.5|工资|1|我"_s, u"2024-5-|2|利息|2|妻子"_s}));
}

TEST_F(MonthTableTest, HoldsTheWholeLedgerOfExpenseWithItsPayers) {
    store(1);
    rig.sql(u"insert into zcb values('1','2024-05-03','买菜','我',12,'现金','',1)"_s);
    open(1);
    EXPECT_EQ(statistics(), QStringList{u"2024-5-|12|买菜|1|我"_s});
}

TEST_F(MonthTableTest, IsEmptiedFirst) {
    rig.sql(u"insert into sztjlsb values('2001-1-',1,'旧',1,'旧'),('2001-1-',1,'旧',1,'旧')"_s);
    open(1);
    EXPECT_EQ(statistics(), QStringList());
    store(2);
    open(0);
    open(0);
    EXPECT_EQ(statistics().size(), 2);
}

TEST_F(MonthTableTest, TakesNullFieldsAlong) {
    rig.sql(u"insert into srb values('1','2024-05-03',null,null,null,'现金',null,1)"_s);
    open();
    EXPECT_EQ(statistics(), QStringList{u"2024-5-|NULL|NULL|1|NULL"_s});
}

TEST_F(MonthTableTest, StaysAsItIsThroughASave) {
    openWith(2);
    const QStringList before = statistics();
    fillCell(1, 3, u"改过"_s);
    rig.click(save());
    EXPECT_EQ(rig.lastMessage(), SaveDone);
    EXPECT_EQ(statistics(), before);
}

TEST_F(MonthTableTest, StaysAsItIsWhenTheOptionReloadsTheGrid) {
    openWith(1);
    rig.sql(u"delete from sztjlsb"_s);
    choose(income::ByItem);
    choose(income::Records);
    EXPECT_EQ(statistics(), QStringList());
}

} // namespace
} // namespace qinghe::testing
