#include "store/header_toggle.h"
#include "store/migrations.h"
#include "store/store_fixture.h"

#include <QDir>

#include <algorithm>

// Every version of the data file that was ever delivered is read, written and healed by this program.

using namespace Qt::StringLiterals;

namespace qinghe {
namespace {

class OldVersion : public StoreTest, public testing::WithParamInterface<int> {
protected:
    OldVersion() { useVersion(GetParam()); }

    QString row(const QString& table, int position = 1) {
        Recordset& set = control.open(table);
        set.setAbsolutePosition(position);
        QStringList texts;
        for (int i = 0; i < set.fieldCount(); ++i) {
            const Field field = set.field(i);
            const bool picture = store.columns(table)[static_cast<size_t>(i)].kind == ColumnKind::Binary;
            texts += field.isNull() ? u"NULL"_s : picture ? pictureText(field.value().bytes()) : field.text();
        }
        return texts.join(u'|');
    }
    static QString pictureText(const QByteArray& jpeg) {
        return u"%1 bytes of %2"_s.arg(jpeg.size()).arg(QString::fromLatin1(jpeg.mid(6, 4)));
    }
};

TEST_P(OldVersion, HasAllItsRows) {
    const std::vector<std::pair<QString, QString>> first{
        {u"srb"_s, u"B1|2024-5-3|工资|小禾|8500.5|工资卡|五月|1"_s},
        {u"zcb"_s, u"Z1|2024-5-4|买菜|小禾|35.8|现金||1"_s},
        {u"jrb"_s, u"现金|2023-1-9|2000|500|1500|王五|小禾|年内还|1"_s},
        {u"jcb"_s, u"工资卡|2024-2-29|300|0|300|小禾|李四|NULL|1"_s},
        {u"ysb"_s, u"2024-6-1|旅游|5000|端午|1"_s},
        {u"zhb"_s, u"工资卡|100|8500.5|0.1|0|300|0|0|8300.4|常用|1"_s},
        {u"rcb"_s, u"2024-5-1|1|2024-5-6|8:30|交水电费|音乐1|1"_s},
        {u"rjb"_s, u"2024-5-3|发工资了"_s},
        {u"yhb"_s, u"小禾|123456|1"_s},
        {u"登陆用户记录表"_s, u"小禾|123456"_s},
        {u"srflb"_s, u"固定收入|工资|gz"_s},
        {u"zcflb"_s, u"饮食|买菜|mc"_s},
        {u"txb"_s, u"True"_s},
        {u"systuopanb"_s, u"False"_s},
        {u"软件皮肤"_s, u"青禾|636|636 bytes of JFIF"_s},
        {u"皮肤选择"_s, u"青禾|636|636 bytes of JFIF"_s},
        {u"主界面"_s, u"桌面|635|635 bytes of JFIF"_s},
        {u"登陆皮肤"_s, u"登陆|636|636 bytes of JFIF"_s},
        {u"nsrb"_s, u"2024-5-|8500.5|1"_s},
        {u"nzcb"_s, u"2024-5-|35.9|1"_s},
        {u"sztjlsb"_s, u"2024-5-|35.8|买菜|1|小禾"_s}};
    for (const auto& [table, texts] : first)
        EXPECT_TRUE(row(table).startsWith(texts)) << row(table); // columns of later versions stand behind
    EXPECT_EQ(control.open(u"srb"_s).recordCount(), 3);
    EXPECT_EQ(row(u"srb"_s, 2), u"B2|2024-12-31|奖金|老周|1000|现金|NULL|2"_s);
    EXPECT_EQ(row(u"srb"_s, 3), u"NULL|NULL|NULL|NULL|NULL|NULL|NULL|3"_s);
    EXPECT_EQ(row(u"zcb"_s, 2), u"Z2|2024-5-5|水电|老周|0.1|工资卡|半个月|2"_s);
    EXPECT_EQ(row(u"yhb"_s, 2), u"老周|abc|2"_s);
    EXPECT_EQ(row(u"软件皮肤"_s, 2), u"米纸|635|635 bytes of JFIF"_s);
}

TEST_P(OldVersion, HasTheTablesOfANewFile) {
    const QString fresh = folder.filePath(u"new.data"_s);
    createStore(fresh);
    control.open(u"srb"_s); // brings it up to date
    const QString tables = u"select s.name, c.name, c.type from sqlite_schema s, pragma_table_info(s.name) c "
                           "where s.type = 'table' order by s.name, c.cid"_s;
    EXPECT_EQ(OtherProgram(path()).rows(tables), OtherProgram(fresh).rows(tables));
}

TEST_P(OldVersion, IsSavedIntoLikeAnyOther) {
    Recordset& set = control.open(u"srb"_s);
    for (; !set.eof(); set.moveNext())
        set.deleteCurrent();
    addIncome(u"2025-1-1"_s, u"压岁钱"_s, 200);
    store.close();
    EXPECT_EQ(column(control.open(u"select 时间,项目,金额 from srb"_s), u"项目"_s), QStringList(u"压岁钱"_s));
    EXPECT_EQ(control.open(u"select sum(金额) as 金额 from srb"_s).field(0).text(), u"200"_s);
    EXPECT_EQ(OtherProgram(path()).row(u"PRAGMA integrity_check"_s), u"ok"_s);
}

TEST_P(OldVersion, IsHealedWhereItsProgramHasEnded) {
    spoilHeader(path());
    EXPECT_EQ(errorOf([&] { control.open(u"srb"_s); }, u"请重新启动程序"_s), RuntimeError::StoreFailure);
    healHeader(path());
    EXPECT_EQ(row(u"srb"_s), u"B1|2024-5-3|工资|小禾|8500.5|工资卡|五月|1"_s);
}

INSTANTIATE_TEST_SUITE_P(Delivered, OldVersion,
                         testing::Range(FirstVersion, std::max(FirstVersion + 1, CurrentVersion)),
                         [](const auto& version) { return "Number" + std::to_string(version.param); });

TEST_F(StoreTest, AFileOfThisVersionIsNotWrittenToBeRead) {
    if (CurrentVersion == FirstVersion) // whose files bear no number
        OtherProgram(path()).run(u"PRAGMA user_version = 0"_s);
    const QByteArray before = fileBytes();
    EXPECT_EQ(control.open(u"srb"_s).recordCount(), 0);
    store.close();
    EXPECT_EQ(fileBytes(), before);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList(u"data.dll"_s));
}

} // namespace
} // namespace qinghe
