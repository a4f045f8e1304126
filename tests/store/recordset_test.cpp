#include "store/recordset.h"
#include "store/store_fixture.h"

using namespace Qt::StringLiterals;

namespace qinghe {
namespace {

class Records : public StoreTest {
protected:
    /// Users 甲, 乙, 丙 ... with their numbers, and the control's set on the first of them.
    Recordset& users(const QString& names) {
        Recordset& set = control.open(u"yhb"_s);
        for (int i = 0; i < names.size(); ++i)
            add(set, {{u"用户名"_s, QString(names[i])}, {u"区别"_s, i + 1}});
        return control.open(u"yhb"_s);
    }
    static QString names(Recordset& set) { return column(set, u"用户名"_s).join(QString()); }
    QString stored() { return names(second.open(u"yhb"_s)); }
    static void deleteAll(Recordset& set) {
        for (set.moveFirst(); !set.eof(); set.moveNext())
            set.deleteCurrent();
    }
};

TEST_F(Records, EmptySetStandsAtItsEnd) {
    Recordset& set = control.open(u"yhb"_s);
    EXPECT_EQ(set.recordCount(), 0);
    EXPECT_TRUE(set.eof());
    EXPECT_EQ(set.fieldCount(), 3);
    EXPECT_EQ(errorOf([&] { set.moveFirst(); }), RuntimeError::NoCurrentRecord);
    EXPECT_EQ(errorOf([&] { set.moveNext(); }), RuntimeError::NoCurrentRecord);
    EXPECT_EQ(errorOf([&] { set.field(0).value(); }), RuntimeError::NoCurrentRecord);
    EXPECT_EQ(errorOf([&] { set.field(0).text(); }), RuntimeError::NoCurrentRecord);
    EXPECT_EQ(errorOf([&] { set.field(0).isNull(); }), RuntimeError::NoCurrentRecord);
    EXPECT_EQ(errorOf([&] { set.field(0).setValue(u"x"); }), RuntimeError::NoCurrentRecord);
    EXPECT_EQ(errorOf([&] { set.deleteCurrent(); }), RuntimeError::NoCurrentRecord);
}

TEST_F(Records, StandsOnTheFirstRowAndWalksToTheEnd) {
    Recordset& set = users(u"甲乙丙"_s);
    EXPECT_EQ(set.recordCount(), 3);
    EXPECT_EQ(set.field(0).text(), u"甲"_s);
    set.moveNext();
    set.moveNext();
    EXPECT_EQ(set.field(0).text(), u"丙"_s);
    EXPECT_FALSE(set.eof());
    set.moveNext();
    EXPECT_TRUE(set.eof());
    EXPECT_EQ(set.recordCount(), 3);
    EXPECT_EQ(errorOf([&] { set.field(0).text(); }), RuntimeError::NoCurrentRecord);
    EXPECT_EQ(errorOf([&] { set.moveNext(); }), RuntimeError::NoCurrentRecord);
    set.moveFirst();
    EXPECT_EQ(set.field(0).text(), u"甲"_s);
}

TEST_F(Records, PositionCountsFromOne) {
    Recordset& set = users(u"甲乙丙"_s);
    set.setAbsolutePosition(3);
    EXPECT_EQ(set.field(0).text(), u"丙"_s);
    set.setAbsolutePosition(1);
    EXPECT_EQ(set.field(0).text(), u"甲"_s);
    for (const int outside : {0, -1, 4}) {
        EXPECT_EQ(errorOf([&] { set.setAbsolutePosition(outside); }), RuntimeError::NoCurrentRecord);
        EXPECT_TRUE(set.eof());
    }
}

TEST_F(Records, PositionPassesOverDeletedRows) {
    Recordset& set = users(u"甲乙丙丁"_s);
    set.deleteCurrent();
    set.setAbsolutePosition(2);
    EXPECT_EQ(set.field(0).text(), u"丙"_s);
    set.deleteCurrent();
    set.setAbsolutePosition(2);
    EXPECT_EQ(set.field(0).text(), u"丁"_s);
    EXPECT_EQ(errorOf([&] { set.setAbsolutePosition(3); }), RuntimeError::NoCurrentRecord);
}

TEST_F(Records, DeletionAtAPositionTakesThatRowAtOnce) {
    Recordset& set = users(u"甲乙丙"_s);
    set.setAbsolutePosition(2);
    set.deleteCurrent();
    set.update();
    EXPECT_EQ(set.recordCount(), 2);
    EXPECT_EQ(stored(), u"甲丙"_s);
}

TEST_F(Records, DeletedRowIsNoCurrentRowUntilTheNextMove) {
    Recordset& set = users(u"甲乙"_s);
    set.deleteCurrent();
    EXPECT_FALSE(set.eof());
    EXPECT_EQ(errorOf([&] { set.field(0).text(); }), RuntimeError::NoCurrentRecord);
    EXPECT_EQ(errorOf([&] { set.deleteCurrent(); }), RuntimeError::NoCurrentRecord);
    EXPECT_EQ(errorOf([&] { set.field(0).setValue(u"x"); }), RuntimeError::NoCurrentRecord);
    set.moveNext();
    EXPECT_EQ(set.field(0).text(), u"乙"_s);
    set.moveFirst();
    EXPECT_EQ(set.field(0).text(), u"乙"_s);
}

TEST_F(Records, WalkThatDeletesEveryRowEmptiesTheTable) {
    Recordset& set = users(u"甲乙丙"_s);
    deleteAll(set);
    EXPECT_TRUE(set.eof());
    EXPECT_EQ(set.recordCount(), 0);
    EXPECT_EQ(errorOf([&] { set.moveFirst(); }), RuntimeError::NoCurrentRecord);
    EXPECT_EQ(stored(), QString());
}

TEST_F(Records, WalkOverAQueryDeletesItsRowsAlone) {
    for (const auto& date : {u"2024-1-1"_s, u"2024-9-9"_s, u"2024-2-2"_s})
        addIncome(date, date, 1);
    Recordset& set = control.open(u"select * from srb where 时间<=#2024-2-2#"_s);
    EXPECT_EQ(set.recordCount(), 2);
    deleteAll(set);
    EXPECT_EQ(column(second.open(u"srb"_s), u"时间"_s), QStringList(u"2024-9-9"_s));
}

TEST_F(Records, WalkOverAQueryDeletesItsRowsAloneHoweverManyTheyAre) {
    constexpr int many = 5000;
    Recordset& all = control.open(u"yhb"_s);
    for (int i = 1; i <= many; ++i)
        add(all, {{u"用户名"_s, i % 2 == 0 ? u"旧"_s : u"新"_s}, {u"区别"_s, i}});
    deleteAll(control.open(u"select * from yhb where 用户名='旧'"_s));
    const QStringList left = column(second.open(u"yhb"_s), u"区别"_s);
    ASSERT_EQ(left.size(), many / 2);
    for (int i = 0; i < left.size(); ++i)
        EXPECT_EQ(left[i], QString::number(2 * i + 1));
}

TEST_F(Records, WholeTableSpareRowsOfAnotherSet) {
    Recordset& old = users(u"甲乙"_s);
    add(second.open(u"yhb"_s), {{u"用户名"_s, u"丙"_s}});
    deleteAll(old); // all that it knows, but no longer all that there is
    EXPECT_EQ(stored(), u"丙"_s);
}

TEST_F(Records, AddedRowIsCountedOnceStored) {
    Recordset& set = users(u"甲"_s);
    set.addNew();
    EXPECT_EQ(set.recordCount(), 1);
    EXPECT_FALSE(set.eof());
    EXPECT_TRUE(set.field(u"用户名").isNull());
    set.field(u"用户名").setValue(u"乙"_s);
    EXPECT_EQ(set.field(u"用户名").text(), u"乙"_s);
    EXPECT_EQ(set.recordCount(), 1);
    set.update();
    EXPECT_EQ(set.recordCount(), 2);
    EXPECT_EQ(set.field(u"用户名").text(), u"乙"_s);
    EXPECT_TRUE(set.field(u"用户密码").isNull());
    EXPECT_EQ(names(set), u"甲乙"_s);
    EXPECT_EQ(stored(), u"甲乙"_s);
}

TEST_F(Records, AddedRowJoinsAtTheEndWhereverTheSetStands) {
    Recordset& set = users(u"甲乙"_s);
    set.moveFirst();
    add(set, {{u"用户名"_s, u"丙"_s}});
    set.moveNext();
    EXPECT_TRUE(set.eof());
    EXPECT_EQ(names(set), u"甲乙丙"_s);
}

TEST_F(Records, UpdateWithNothingPendingDoesNothing) {
    Recordset& set = users(u"甲"_s);
    store.commit();
    set.update();
    EXPECT_FALSE(store.inTransaction());
    EXPECT_EQ(set.recordCount(), 1);
}

TEST_F(Records, NewRowWithoutFieldsIsStored) {
    Recordset& set = control.open(u"yhb"_s);
    set.addNew();
    set.update();
    EXPECT_EQ(column(second.open(u"yhb"_s), u"用户名"_s), QStringList(u"NULL"_s));
}

TEST_F(Records, SecondAddNewStoresTheFirstRow) {
    Recordset& set = control.open(u"yhb"_s);
    set.addNew();
    set.field(0).setValue(u"甲"_s);
    set.addNew();
    set.field(0).setValue(u"乙"_s);
    set.moveFirst();
    EXPECT_EQ(stored(), u"甲乙"_s);
}

TEST_F(Records, DeletingAPendingRowGivesItUp) {
    Recordset& set = users(u"甲"_s);
    set.addNew();
    set.field(0).setValue(u"乙"_s);
    set.deleteCurrent();
    set.update();
    EXPECT_EQ(names(set), u"甲"_s);
    EXPECT_EQ(stored(), u"甲"_s);
}

TEST_F(Records, ChangedFieldsReachTheStoreWithUpdate) {
    Recordset& set = users(u"甲乙"_s);
    set.moveNext();
    set.field(u"用户密码").setValue(u"1"_s);
    EXPECT_EQ(set.field(u"用户密码").text(), u"1"_s);
    EXPECT_EQ(column(second.open(u"yhb"_s), u"用户密码"_s), QStringList({u"NULL"_s, u"NULL"_s}));
    set.update();
    EXPECT_EQ(column(second.open(u"yhb"_s), u"用户密码"_s), QStringList({u"NULL"_s, u"1"_s}));
    EXPECT_EQ(column(set, u"用户密码"_s), QStringList({u"NULL"_s, u"1"_s}));
    EXPECT_EQ(names(set), u"甲乙"_s);
}

TEST_F(Records, MovingOnStoresChangedFields) {
    Recordset& set = users(u"甲乙"_s);
    set.field(0).setValue(u"子"_s);
    set.moveNext();
    set.field(0).setValue(u"丑"_s);
    set.moveNext();
    EXPECT_EQ(stored(), u"子丑"_s);
}

TEST_F(Records, ChangeOfAnAddedRowIsStoredInIt) {
    Recordset& set = users(u"甲"_s);
    add(set, {{u"用户名"_s, u"乙"_s}});
    set.field(0).setValue(u"丙"_s);
    set.update();
    EXPECT_EQ(stored(), u"甲丙"_s);
}

TEST_F(Records, AddedRowsCanBeDeletedAndTheTableRewrittenTwice) {
    Recordset& set = users(u"甲乙"_s);
    for (const auto& name : {u"丙"_s, u"丁"_s}) {
        deleteAll(set);
        add(set, {{u"用户名"_s, name}});
        EXPECT_EQ(set.recordCount(), 1);
        EXPECT_EQ(names(set), name);
        EXPECT_EQ(stored(), name);
    }
}

TEST_F(Records, DeletionsAndAdditionsMix) {
    Recordset& set = users(u"甲乙丙"_s);
    set.moveNext();
    set.deleteCurrent();
    add(set, {{u"用户名"_s, u"丁"_s}});
    set.deleteCurrent();
    add(set, {{u"用户名"_s, u"戊"_s}});
    EXPECT_EQ(set.recordCount(), 3);
    EXPECT_EQ(names(set), u"甲丙戊"_s);
    EXPECT_EQ(stored(), u"甲丙戊"_s);
}

TEST_F(Records, SetsDoNotSeeWhatOthersWrite) {
    Recordset& set = users(u"甲乙"_s);
    Recordset& other = second.open(u"yhb"_s);
    other.deleteCurrent();
    add(other, {{u"用户名"_s, u"丙"_s}});
    EXPECT_EQ(names(set), u"甲乙"_s);
    EXPECT_EQ(names(other), u"乙丙"_s);
}

TEST_F(Records, OldSetNeverDeletesARowThatTookThePlaceOfItsOwn) {
    users(u"甲乙丙"_s);
    store.close();
    Recordset& old = control.open(u"yhb"_s);
    Recordset& other = second.open(u"yhb"_s);
    deleteAll(other);
    for (const auto& name : {u"子"_s, u"丑"_s, u"寅"_s})
        add(other, {{u"用户名"_s, name}});
    store.commit();
    deleteAll(old);
    EXPECT_EQ(stored(), u"子丑寅"_s);
}

TEST_F(Records, OldSetDeletesNothingOnceAnotherProgramEmptiedTheTable) {
    Recordset& old = users(u"甲乙丙"_s);
    store.commit();
    OtherProgram(path()).run(u"DELETE FROM yhb"_s);
    add(second.open(u"yhb"_s), {{u"用户名"_s, u"子"_s}});
    deleteAll(old);
    EXPECT_EQ(stored(), u"子"_s);
}

TEST_F(Records, RowsOfAPartOfTheColumnsAreWrittenWithTheRestNull) {
    add(control.open(u"select 日记标题 from rjb"_s), {{u"日记标题"_s, u"春"_s}});
    Recordset& set = second.open(u"rjb"_s);
    EXPECT_EQ(set.field(u"日记标题").text(), u"春"_s);
    EXPECT_TRUE(set.field(u"日期").isNull());
}

TEST_F(Records, SumsAndGroupsCanNotBeWritten) {
    addIncome(u"2024-5-3"_s, u"工资"_s, 100);
    for (const auto& source :
         {u"select sum(金额) as 金额 from srb"_s, u"select 项目,sum(金额) as 金额 from srb group by 项目"_s}) {
        Recordset& set = control.open(source);
        EXPECT_EQ(errorOf([&] { set.deleteCurrent(); }), RuntimeError::QueryFailure);
        EXPECT_EQ(errorOf([&] { set.addNew(); }), RuntimeError::QueryFailure);
        EXPECT_EQ(errorOf([&] { set.field(0).setValue(u"x"_s); }), RuntimeError::QueryFailure);
        set.update();
    }
    EXPECT_EQ(control.open(u"srb"_s).recordCount(), 1);
}

TEST_F(Records, FindStandsOnTheFirstRowThatMatchesExactly) {
    Recordset& set = users(u"甲乙丙"_s);
    add(set, {{u"用户名"_s, u"admin"_s}, {u"用户密码"_s, u"1"_s}});
    add(set, {{u"用户名"_s, u"乙"_s}, {u"用户密码"_s, u"第二个"_s}});
    set.find(u"用户名='乙'"_s);
    EXPECT_EQ(set.field(u"区别").text(), u"2"_s);
    set.find(u"用户名='甲'"_s); // from the first row again
    EXPECT_EQ(set.field(u"区别").text(), u"1"_s);
    for (const auto& missing : {u"丁"_s, u"Admin"_s, u"admin "_s, u""_s}) {
        set.find(u"用户名='"_s + missing + u"'"_s);
        EXPECT_TRUE(set.eof()) << missing;
    }
}

TEST_F(Records, FindPassesOverDeletedRowsAndNulls) {
    Recordset& set = users(u"甲乙甲"_s);
    set.deleteCurrent();
    set.find(u"用户名='甲'"_s);
    EXPECT_EQ(set.field(u"区别").text(), u"3"_s);
    add(set, {});
    set.find(u"用户名=''"_s);
    EXPECT_TRUE(set.eof());
}

TEST_F(Records, FindOnAnEmptySetIsAMiss) {
    Recordset& set = control.open(u"yhb"_s);
    set.find(u"用户名='甲'"_s);
    EXPECT_TRUE(set.eof());
}

TEST_F(Records, FindRefusesWhatIsNotOneComparisonWithAText) {
    Recordset& set = users(u"甲"_s);
    for (const auto& criterion : {u"用户名='it's'"_s, u"用户名='甲' or '1'='1'"_s, u"用户名>'甲'"_s,
                                  u"用户名=#2024-1-1#"_s, u"left(用户名,1)='甲'"_s, u"用户名 between '甲' and '乙'"_s})
        EXPECT_EQ(errorOf([&] { set.find(criterion); }, criterion), RuntimeError::QueryFailure) << criterion;
    EXPECT_EQ(errorOf([&] { set.find(u"姓名='甲'"_s); }, u"姓名"_s), RuntimeError::NoSuchField);
}

TEST_F(Records, FieldsAreReachedByNameAndOrdinalOnly) {
    Recordset& set = users(u"甲"_s);
    EXPECT_EQ(set.field(u"用户名").text(), set.field(0).text());
    EXPECT_EQ(errorOf([&] { set.field(3); }), RuntimeError::NoSuchField);
    EXPECT_EQ(errorOf([&] { set.field(-1); }), RuntimeError::NoSuchField);
    EXPECT_EQ(errorOf([&] { set.field(u"密码"); }, u"“密码”"_s), RuntimeError::NoSuchField);
}

TEST_F(Records, RowIsReadAsTheTextsOfItsFields) {
    Recordset& set = users(u"甲乙"_s);
    std::vector<std::optional<QString>> texts{u"from before"_s, u"and this"_s, std::nullopt};
    set.moveNext();
    set.readTexts(texts);
    EXPECT_EQ(texts, (std::vector<std::optional<QString>>{u"乙"_s, std::nullopt, u"2"_s}));
    set.field(1).setValue(QString()); // not stored yet
    set.readTexts(texts);
    EXPECT_EQ(texts, (std::vector<std::optional<QString>>{u"乙"_s, QString(), u"2"_s}));
    set.moveNext();
    EXPECT_EQ(errorOf([&] { set.readTexts(texts); }), RuntimeError::NoCurrentRecord);
}

TEST_F(Records, SetOfManyLongTextsKeepsEachOfThem) {
    Recordset& set = control.open(u"yhb"_s);
    for (int i = 1; i <= 300; ++i)
        add(set, {{u"用户名"_s, QString(i * 7 % 1000, QChar(u'a' + i % 26))}, {u"用户密码"_s, QString::number(i)}});
    add(set, {{u"用户名"_s, QString(200'000, u'饭')}});
    Recordset& again = control.open(u"yhb"_s);
    for (int i = 1; i <= 300; ++i, again.moveNext()) {
        ASSERT_EQ(again.field(0).text(), QString(i * 7 % 1000, QChar(u'a' + i % 26)));
        ASSERT_EQ(again.field(1).text(), QString::number(i));
    }
    EXPECT_EQ(again.field(0).text(), QString(200'000, u'饭'));
}

TEST_F(Records, MovedSetWorksOn) {
    Recordset set = std::move(users(u"甲乙"_s));
    set.moveNext();
    EXPECT_EQ(set.field(0).text(), u"乙"_s);
}

} // namespace
} // namespace qinghe
