#include "store/store_fixture.h"
#include "store/stored_value.h"

using namespace Qt::StringLiterals;

namespace qinghe {
namespace {

class Fields : public StoreTest {
protected:
    /// What a value reads as once it was stored and fetched again.
    QString stored(const QString& table, const QString& column, const Value& value) {
        add(control.open(table), {{column, value}});
        store.close();
        Recordset& set = control.open(table);
        set.setAbsolutePosition(set.recordCount());
        return set.field(column).text();
    }
    int refusal(const QString& table, const QString& column, const Value& value, const QString& named) {
        Recordset& set = control.open(table);
        set.addNew();
        return errorOf([&] { set.field(column).setValue(value); }, named);
    }
};

TEST_F(Fields, NullIsNeitherEmptyNorDifferentFromEmpty) {
    Recordset& set = control.open(u"yhb"_s);
    add(set, {{u"用户名"_s, u""_s}, {u"区别"_s, 1}});
    for (int pass = 0; pass < 2; ++pass, control.refresh()) {
        Recordset& read = control.recordset();
        EXPECT_FALSE(read.field(u"用户名").isNull());
        EXPECT_TRUE(read.field(u"用户名").equalsEmpty());
        EXPECT_FALSE(read.field(u"用户名").differsFromEmpty());
        EXPECT_TRUE(read.field(u"用户密码").isNull());
        EXPECT_FALSE(read.field(u"用户密码").equalsEmpty());
        EXPECT_FALSE(read.field(u"用户密码").differsFromEmpty());
        EXPECT_EQ(read.field(u"用户密码").text(), QString());
        EXPECT_TRUE(read.field(u"区别").differsFromEmpty());
    }
}

TEST_F(Fields, PendingValuesAreReadBack) {
    Recordset& set = control.open(u"yhb"_s);
    set.addNew();
    EXPECT_TRUE(set.field(0).isNull());
    EXPECT_FALSE(set.field(0).differsFromEmpty());
    set.field(0).setValue(u"甲"_s);
    EXPECT_TRUE(set.field(0).differsFromEmpty());
    set.field(0).setValue(u""_s);
    EXPECT_TRUE(set.field(0).equalsEmpty());
    set.field(0).setValue(Value());
    EXPECT_TRUE(set.field(0).isNull());
}

TEST_F(Fields, StoredValuesAreWrittenAsTheyAre) {
    OtherProgram(path()).run(u"insert into srb(编号,时间,金额) values(cast(x'FF41' as text),'2024/5/3',1e17)"_s);
    Recordset& set = control.open(u"srb"_s);
    std::vector<std::optional<QString>> texts(5);
    EXPECT_FALSE(set.readTexts(texts));
    const StoredValue code = set.field(0).asStored(), day = set.field(1).asStored(), amount = set.field(4).asStored();
    set.addNew();
    set.field(0).setStored(code);
    set.field(1).setStored(day);
    EXPECT_EQ(set.field(1).text(), u"2024/5/3"_s); // pending
    set.field(4).setStored(amount);
    set.field(4).setValue(5); // the last one counts
    set.update();
    EXPECT_TRUE(set.field(2).isNull());
    store.close();
    EXPECT_EQ(OtherProgram(path()).rows(u"select hex(编号), 时间, 金额 from srb"_s),
              (QStringList{u"FF41|2024/5/3|100000000000000000"_s, u"FF41|2024/5/3|5"_s}));
}

TEST_F(Fields, OneChangedFieldRewritesNoOther) {
    OtherProgram(path()).run(u"insert into srb(编号,时间,金额) values(cast(x'FF41' as text),'2024/5/3',1e17)"_s);
    Recordset& set = control.open(u"srb"_s);
    set.field(3).setValue(u"张"_s);
    set.update();
    store.close();
    EXPECT_EQ(OtherProgram(path()).rows(u"select hex(编号), 时间, 收款人, 金额 from srb"_s),
              QStringList{u"FF41|2024/5/3|张|100000000000000000"_s});
}

TEST_F(Fields, OrdinaryValuesComeBackFromTheirTexts) {
    OtherProgram(path()).run(u"insert into srb values('甲','2024-05-03','','a b',0.1,' ',null,1),"
                             "('1','2024-12-31 08:05:09','🙂','李',999999999999999,'x',char(65533),2),"
                             "('','1000-01-01','','',-1e300,'','',3)"_s);
    Recordset& set = control.open(u"srb"_s);
    std::vector<std::optional<QString>> texts(7);
    for (; !set.eof(); set.moveNext())
        EXPECT_TRUE(set.readTexts(texts)) << texts[0]->toStdString();
}

TEST_F(Fields, DatesReadInTheirTextForm) {
    EXPECT_EQ(stored(u"srb"_s, u"时间"_s, u"2024-05-03"_s), u"2024-5-3"_s);
    EXPECT_EQ(stored(u"srb"_s, u"时间"_s, u"2024-5"_s), u"2024-5-1"_s);
    EXPECT_EQ(stored(u"rcb"_s, u"设置日期"_s, DateValue{QDate(2024, 5, 3), QTime(8, 5, 9)}), u"2024-5-3 8:05:09"_s);
    EXPECT_EQ(stored(u"rcb"_s, u"设置日期"_s, DateValue{QDate(2024, 5, 3), {}}), u"2024-5-3"_s);
}

TEST_F(Fields, DatesLieInTheFileAsIsoText) {
    addIncome(u"2024-5-3"_s, u"x"_s, 1);
    addIncome(u"2024-5-3 8:05:09"_s, u"x"_s, 1);
    store.commit();
    EXPECT_EQ(OtherProgram(path()).rows(u"SELECT 时间 FROM srb"_s),
              QStringList({u"2024-05-03"_s, u"2024-05-03 08:05:09"_s}));
}

TEST_F(Fields, NumbersKeepFifteenDigits) {
    for (const auto& text : {u"0.5"_s, u"-0.5"_s, u"1250.55"_s, u"123456789.012345"_s, u"0"_s, u"1E+15"_s, u"-7"_s})
        EXPECT_EQ(stored(u"srb"_s, u"金额"_s, text), text);
}

TEST_F(Fields, BooleansReadTrueAndFalse) {
    EXPECT_EQ(stored(u"txb"_s, u"日程提醒"_s, true), u"True"_s);
    EXPECT_TRUE(control.recordset().field(0).value().truth());
    EXPECT_EQ(stored(u"txb"_s, u"日程提醒"_s, false), u"False"_s);
}

TEST_F(Fields, TextsComeBackAsTheyWere) {
    for (const auto& text : {u"it's \"quoted\""_s, u"两行\r\n文字"_s, u" 前后 "_s, u"😀𠮷"_s, u"'; drop table srb; --"_s,
                             QStringView(u"a\0b", 3).toString(), u"12"_s, u"2024-5-3"_s})
        EXPECT_EQ(stored(u"srb"_s, u"备注"_s, text), text);
}

TEST_F(Fields, ValuesThatAColumnRefusesAreRefusedAtOnceAndNamed) {
    EXPECT_EQ(refusal(u"srb"_s, u"金额"_s, u"12元"_s, u"“12元”"_s), RuntimeError::TypeMismatch);
    EXPECT_EQ(refusal(u"srb"_s, u"时间"_s, u"2024-13-1"_s, u"“时间”"_s), RuntimeError::TypeMismatch);
    EXPECT_EQ(refusal(u"srb"_s, u"金额"_s, u""_s, u"“金额”"_s), RuntimeError::TypeMismatch);
}

TEST_F(Fields, RefusedValueLeavesTheRowsWrittenBefore) {
    addIncome(u"2024-5-3"_s, u"旧"_s, 1);
    store.commit();
    Recordset& set = control.open(u"srb"_s);
    set.deleteCurrent();
    set.moveNext();
    add(set, {{u"项目"_s, u"新"_s}});
    set.addNew();
    EXPECT_EQ(errorOf([&] { set.field(u"金额").setValue(u"12元"_s); }), RuntimeError::TypeMismatch);
    store.commit();
    EXPECT_EQ(OtherProgram(path()).rows(u"SELECT 项目 FROM srb"_s), QStringList(u"新"_s));
}

TEST_F(Fields, BinariesMakeTheRoundTrip) {
    QByteArray picture(3'000'000, '\0');
    for (qsizetype i = 0; i < picture.size(); ++i)
        picture[i] = static_cast<char>(i * 7 + i / 251);
    Recordset& set = control.open(u"软件皮肤"_s);
    set.addNew();
    set.field(u"名称").setValue(u"青禾"_s);
    set.field(u"大小").setValue(static_cast<double>(picture.size() - 1));
    set.field(u"皮肤").appendChunk(picture);
    EXPECT_EQ(set.field(u"皮肤").getChunk(10), picture.first(10));
    set.update();
    store.close();
    Recordset& read = control.open(u"select * from 软件皮肤 where 名称='青禾'"_s);
    const int size = static_cast<int>(read.field(u"大小").value().number());
    EXPECT_EQ(size, picture.size() - 1);
    EXPECT_EQ(read.field(u"皮肤").getChunk(size), picture.first(size));
    EXPECT_EQ(read.field(u"皮肤").getChunk(size + 100), picture);
    EXPECT_EQ(read.field(u"皮肤").getChunk(0), QByteArray());
}

TEST_F(Fields, BinariesAreNoTexts) {
    add(control.open(u"主界面"_s), {{u"名称"_s, u"图"_s}, {u"文件"_s, QByteArray("x")}});
    EXPECT_EQ(errorOf([&] { control.recordset().field(u"文件").text(); }), RuntimeError::TypeMismatch);
    EXPECT_EQ(errorOf([&] { control.recordset().field(u"名称").getChunk(1); }), RuntimeError::TypeMismatch);
    EXPECT_EQ(errorOf([&] { control.recordset().field(u"文件").getChunk(-1); }), RuntimeError::InvalidCall);
    EXPECT_EQ(errorOf([&] { control.recordset().field(u"名称").appendChunk("x"); }), RuntimeError::TypeMismatch);
}

TEST_F(Fields, ChunkOfANullIsEmpty) {
    add(control.open(u"主界面"_s), {{u"名称"_s, u"图"_s}});
    EXPECT_EQ(control.recordset().field(u"文件").getChunk(5), QByteArray());
}

TEST_F(Fields, WhatAnotherProgramLeftInAColumnIsHandedThrough) {
    OtherProgram(path()).run(u"INSERT INTO srb (编号,时间,金额,区别) VALUES (12, 'May 3', 'much', 2.5)"_s);
    Recordset& set = control.open(u"srb"_s);
    EXPECT_EQ(set.field(u"编号").text(), u"12"_s);
    EXPECT_EQ(set.field(u"时间").text(), u"May 3"_s);
    EXPECT_EQ(set.field(u"金额").text(), u"much"_s);
    EXPECT_EQ(set.field(u"区别").text(), u"2.5"_s);
}

} // namespace
} // namespace qinghe
