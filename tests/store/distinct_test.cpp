#include "store/store_fixture.h"

using namespace Qt::StringLiterals;

namespace qinghe {
namespace {

class Distinct : public StoreTest {
protected:
    void addClass(const Value& major, const QString& minor) {
        add(second.open(u"srflb"_s), {{u"收入大类"_s, major}, {u"收入细类"_s, minor}});
    }
    Recordset& majors() { return control.open(u"select distinct 收入大类 from srflb"_s); }
    QStringList storedMinors() { return column(second.open(u"srflb"_s), u"收入细类"_s); }
};

TEST_F(Distinct, ValuesStandInTheOrderOfTheirText) {
    for (const auto& major :
         {Value(u"工资"_s), Value(u"b"_s), Value(), Value(u"工资"_s), Value(u""_s), Value(u"B"_s), Value()})
        addClass(major, u"x"_s);
    EXPECT_EQ(column(majors(), u"收入大类"_s), QStringList({u"NULL"_s, u""_s, u"B"_s, u"b"_s, u"工资"_s}));
    EXPECT_EQ(control.recordset().recordCount(), 5);
}

TEST_F(Distinct, DeletionTakesEveryStoredRowBehindTheValue) {
    addClass(u"工资"_s, u"基本"_s);
    addClass(u"奖金"_s, u"年终"_s);
    addClass(u"工资"_s, u"加班"_s);
    Recordset& set = majors();
    set.find(u"收入大类='工资'"_s);
    set.deleteCurrent();
    EXPECT_EQ(set.recordCount(), 1);
    EXPECT_EQ(storedMinors(), QStringList(u"年终"_s));
}

TEST_F(Distinct, NullAndEmptyTextAreDeletedApart) {
    addClass(Value(), u"无"_s);
    addClass(u""_s, u"空"_s);
    Recordset& set = majors();
    EXPECT_TRUE(set.field(0).isNull());
    set.deleteCurrent();
    EXPECT_EQ(storedMinors(), QStringList(u"空"_s));
}

TEST_F(Distinct, WalkThatDeletesEveryValueEmptiesTheTable) {
    for (const auto& major : {u"甲"_s, u"乙"_s, u"甲"_s, u"丙"_s})
        addClass(major, major);
    for (Recordset& set = majors(); !set.eof(); set.moveNext())
        set.deleteCurrent();
    EXPECT_EQ(storedMinors(), QStringList());
}

TEST_F(Distinct, AddedRowsHoldTheColumnAloneAndCanBeDeletedAgain) {
    addClass(u"甲"_s, u"x"_s);
    Recordset& set = majors();
    for (int round = 0; round < 2; ++round) {
        for (set.moveFirst(); !set.eof(); set.moveNext())
            set.deleteCurrent();
        add(set, {{u"收入大类"_s, u"乙"_s}});
        add(set, {{u"收入大类"_s, u"乙"_s}});
        EXPECT_EQ(set.recordCount(), 2);
    }
    EXPECT_EQ(column(second.open(u"srflb"_s), u"收入大类"_s), QStringList({u"乙"_s, u"乙"_s}));
    EXPECT_EQ(storedMinors(), QStringList({u"NULL"_s, u"NULL"_s}));
    EXPECT_EQ(majors().recordCount(), 1);
}

TEST_F(Distinct, ChangeReachesEveryStoredRowBehindTheValue) {
    addClass(u"甲"_s, u"x"_s);
    addClass(u"甲"_s, u"y"_s);
    Recordset& set = majors();
    set.field(0).setValue(u"乙"_s);
    set.update();
    EXPECT_EQ(column(second.open(u"srflb"_s), u"收入大类"_s), QStringList({u"乙"_s, u"乙"_s}));
}

TEST_F(Distinct, WorksOnColumnsOfOtherKinds) {
    for (const auto& [date, amount] : {std::pair(u"2024-10-1"_s, 5.0), {u"2024-9-1"_s, 5.0}, {u"2024-10-1"_s, 0.5}})
        addIncome(date, u"x"_s, amount);
    EXPECT_EQ(column(control.open(u"select distinct 时间 from srb"_s), u"时间"_s),
              QStringList({u"2024-9-1"_s, u"2024-10-1"_s}));
    EXPECT_EQ(column(control.open(u"select distinct 金额 from srb"_s), u"金额"_s), QStringList({u"0.5"_s, u"5"_s}));
}

} // namespace
} // namespace qinghe
