#include "store/store_fixture.h"

using namespace Qt::StringLiterals;

namespace qinghe {
namespace {

/// What is left of recordsets when a handler has returned.
class Rest : public StoreTest {
protected:
    /// A set of users 1 to `count`, rested.
    Recordset& restedUsers(int count) {
        Recordset& set = control.open(u"yhb"_s);
        for (int i = 1; i <= count; ++i)
            add(set, {{u"用户名"_s, QString::number(i)}, {u"区别"_s, i}});
        control.open(u"yhb"_s);
        endHandler();
        return control.recordset();
    }
    void endHandler() {
        store.commit();
        store.rest();
    }
    /// Another control's set on user number `position`.
    Recordset& other(int position) {
        Recordset& set = second.open(u"yhb"_s);
        set.setAbsolutePosition(position);
        return set;
    }
    static QString names(Recordset& set) { return column(set, u"用户名"_s).join(u','); }
    QString stored() { return names(second.open(u"yhb"_s)); }
};

TEST_F(Rest, ValuesAreReadAgainWhereTheyAreAskedFor) {
    Recordset& set = restedUsers(3);
    EXPECT_EQ(set.recordCount(), 3);
    EXPECT_EQ(set.field(u"用户名").text(), u"1"_s);
    set.setAbsolutePosition(3);
    EXPECT_EQ(set.field(u"区别").value().number(), 3);
    EXPECT_TRUE(set.field(u"用户密码").isNull());
    EXPECT_TRUE(set.field(u"用户名").differsFromEmpty());
    EXPECT_EQ(names(set), u"1,2,3"_s);
}

TEST_F(Rest, LongSetIsWalkedAndSearchedAgainToItsEnd) {
    constexpr int count = 1000;
    Recordset& set = restedUsers(count);
    int expected = 0;
    for (; !set.eof(); set.moveNext())
        ASSERT_EQ(set.field(u"用户名").text(), QString::number(++expected));
    EXPECT_EQ(expected, count);
    set.find(u"用户名='777'"_s);
    EXPECT_EQ(set.field(u"区别").text(), u"777"_s);
    set.find(u"用户名='1001'"_s);
    EXPECT_TRUE(set.eof());
}

TEST_F(Rest, RowsOfAQueryAreReadAgainInItsOwnShape) {
    for (int day = 1; day <= 9; ++day)
        addIncome(u"2024-5-%1"_s.arg(day % 2 ? day : day + 20), QString::number(day), day);
    Recordset& set = control.open(u"select 金额 as 总额,项目 from srb where 时间<=#2024-5-9#"_s);
    endHandler();
    EXPECT_EQ(column(set, u"项目"_s), QStringList({u"1"_s, u"3"_s, u"5"_s, u"7"_s, u"9"_s}));
    EXPECT_EQ(column(set, u"总额"_s), QStringList({u"1"_s, u"3"_s, u"5"_s, u"7"_s, u"9"_s}));
}

TEST_F(Rest, ValuesAreThoseOfTheTimeWhenTheyAreReadAgain) {
    Recordset& set = restedUsers(2);
    const auto rename = [&](const QString& name) {
        Recordset& changed = other(1);
        changed.field(0).setValue(name);
        changed.update();
    };
    rename(u"子"_s);
    EXPECT_EQ(set.field(0).text(), u"子"_s);
    rename(u"丑"_s);
    EXPECT_EQ(set.field(0).text(), u"子"_s); // of this handler
    endHandler();
    EXPECT_EQ(set.field(0).text(), u"丑"_s);
}

TEST_F(Rest, RowDeletedMeanwhileHasNoValuesButItsPlace) {
    Recordset& set = restedUsers(3);
    other(2).deleteCurrent();
    EXPECT_EQ(set.recordCount(), 3);
    set.moveNext();
    EXPECT_FALSE(set.eof());
    EXPECT_EQ(errorOf([&] { set.field(0).text(); }), RuntimeError::NoCurrentRecord);
    EXPECT_EQ(errorOf([&] { set.field(0).value(); }), RuntimeError::NoCurrentRecord);
    EXPECT_EQ(errorOf([&] { set.field(0).isNull(); }), RuntimeError::NoCurrentRecord);
    set.moveNext();
    EXPECT_EQ(set.field(0).text(), u"3"_s);
    set.find(u"用户名='3'"_s);
    EXPECT_EQ(set.field(0).text(), u"3"_s);
    set.find(u"用户名='2'"_s);
    EXPECT_TRUE(set.eof());
}

TEST_F(Rest, TableEmptiedMeanwhileLeavesNoValues) {
    Recordset& set = restedUsers(2);
    OtherProgram(path()).run(u"DELETE FROM yhb"_s);
    EXPECT_EQ(errorOf([&] { set.field(0).text(); }), RuntimeError::NoCurrentRecord);
}

TEST_F(Rest, RowsAreDeletedByTheirPlaces) {
    Recordset& set = restedUsers(4);
    set.setAbsolutePosition(2);
    set.deleteCurrent();
    endHandler();
    set.setAbsolutePosition(3);
    set.deleteCurrent();
    EXPECT_EQ(names(set), u"1,3"_s);
    EXPECT_EQ(stored(), u"1,3"_s);
}

TEST_F(Rest, FieldsAreChangedAndRowsAddedAsBefore) {
    Recordset& set = restedUsers(2);
    EXPECT_EQ(set.field(0).text(), u"1"_s);
    set.field(0).setValue(u"子"_s);
    set.update();
    EXPECT_EQ(set.field(0).text(), u"子"_s);
    add(set, {{u"用户名"_s, u"丙"_s}});
    EXPECT_EQ(set.recordCount(), 3);
    EXPECT_EQ(names(set), u"子,2,丙"_s);
    endHandler();
    EXPECT_EQ(names(set), u"子,2,丙"_s);
    EXPECT_EQ(stored(), u"子,2,丙"_s);
}

TEST_F(Rest, PendingRowStaysPending) {
    Recordset& set = restedUsers(1);
    set.addNew();
    set.field(0).setValue(u"丙"_s);
    endHandler();
    EXPECT_EQ(set.field(0).text(), u"丙"_s);
    set.update();
    EXPECT_EQ(stored(), u"1,丙"_s);
}

TEST_F(Rest, DistinctValuesStayAndAreDeletedByValue) {
    for (const auto& minor : {u"x"_s, u"y"_s})
        add(second.open(u"srflb"_s), {{u"收入大类"_s, u"工资"_s}, {u"收入细类"_s, minor}});
    Recordset& set = control.open(u"select distinct 收入大类 from srflb"_s);
    add(set, {{u"收入大类"_s, u"奖金"_s}});
    endHandler();
    EXPECT_EQ(column(set, u"收入大类"_s), QStringList({u"工资"_s, u"奖金"_s}));
    set.moveFirst();
    set.deleteCurrent();
    EXPECT_EQ(column(second.open(u"srflb"_s), u"收入大类"_s), QStringList(u"奖金"_s));
}

TEST_F(Rest, SumsStay) {
    addIncome(u"2024-5-3"_s, u"工资"_s, 100);
    Recordset& set = second.open(u"select sum(金额) as 金额 from srb"_s);
    endHandler();
    addIncome(u"2024-5-3"_s, u"工资"_s, 1);
    EXPECT_EQ(set.field(0).text(), u"100"_s);
}

TEST_F(Rest, NothingIsReadAgainFromAClosedFile) {
    Recordset& set = restedUsers(2);
    Recordset& fresh = second.open(u"yhb"_s);
    store.close();
    EXPECT_EQ(fresh.field(0).text(), u"1"_s);
    EXPECT_EQ(errorOf([&] { set.field(0).text(); }), RuntimeError::StoreFailure);
    EXPECT_EQ(set.recordCount(), 2);
}

TEST_F(Rest, TellsHowMuchWasLetGo) {
    restedUsers(1000);
    EXPECT_EQ(store.rest(), 0u);
    control.open(u"yhb"_s);
    EXPECT_GT(store.rest(), 1000u * 3 * 16);
    EXPECT_EQ(store.rest(), 0u);
}

TEST_F(Rest, AddedRowsHoldNoValuesFromTheBeginning) {
    Recordset& set = restedUsers(1);
    for (set.moveFirst(); !set.eof(); set.moveNext())
        set.deleteCurrent();
    for (int i = 0; i < 1000; ++i)
        add(set, {{u"用户名"_s, u"甲"_s}});
    EXPECT_EQ(store.rest(), 0u);
    EXPECT_EQ(set.field(0).text(), u"甲"_s);
    EXPECT_EQ(set.recordCount(), 1000);
}

TEST_F(Rest, StoreThatWasNeverOpenedRests) {
    Store unused;
    EXPECT_EQ(unused.rest(), 0u);
}

} // namespace
} // namespace qinghe
