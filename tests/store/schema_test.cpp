#include "store/schema.h"
#include "store/store_fixture.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace qinghe {
namespace {

struct Expected {
    QString table;
    QString columns;
    QString kinds; ///< one letter a column: text, number, integer, boolean, date, binary
};

QChar letterOf(ColumnKind kind) {
    return declaredType(kind) == u"BLOB"_s ? u'B' : declaredType(kind) == u"BOOLEAN"_s ? u'?' : declaredType(kind)[0];
}

const std::vector<Expected> ExpectedTables{
    {u"srb"_s, u"编号,时间,项目,收款人,金额,账户,备注,区别"_s, u"TDTTNTTI"_s},
    {u"zcb"_s, u"编号,时间,项目,付款人,金额,账户,备注,区别"_s, u"TDTTNTTI"_s},
    {u"jrb"_s, u"账户,日期,借入金额,已还金额,余额,借出人,借给人,备注,区别"_s, u"TDNNNTTTI"_s},
    {u"jcb"_s, u"账户,日期,借出金额,已还金额,余额,借出人,借给人,备注,区别"_s, u"TDNNNTTTI"_s},
    {u"ysb"_s, u"预算时间,预算项目,预算金额,备注,区别"_s, u"DTNTI"_s},
    {u"zhb"_s, u"账户名称,起始金额,收入,支出,借入,借出,转入,转出,余额,备注信息,区别"_s, u"TNNNNNNNNTI"_s},
    {u"rcb"_s, u"设置日期,日程号,日程日期,提醒时间,日程内容,提醒音乐,区别"_s, u"DNDTTTI"_s},
    {u"rjb"_s, u"日期,日记标题"_s, u"DT"_s},
    {u"yhb"_s, u"用户名,用户密码,区别"_s, u"TTI"_s},
    {u"登陆用户记录表"_s, u"用户名,密码"_s, u"TT"_s},
    {u"srflb"_s, u"收入大类,收入细类,快速代码"_s, u"TTT"_s},
    {u"zcflb"_s, u"支出大类,支出细类,快速代码"_s, u"TTT"_s},
    {u"txb"_s, u"日程提醒"_s, u"?"_s},
    {u"systuopanb"_s, u"最小化到托盘"_s, u"?"_s},
    {u"软件皮肤"_s, u"名称,大小,皮肤"_s, u"TNB"_s},
    {u"皮肤选择"_s, u"皮肤名,文件大小,皮肤文件"_s, u"TNB"_s},
    {u"主界面"_s, u"名称,大小,文件"_s, u"TNB"_s},
    {u"登陆皮肤"_s, u"名称,大小,皮肤"_s, u"TNB"_s},
    {u"nsrb"_s, u"时间,金额,区别"_s, u"TNI"_s},
    {u"nzcb"_s, u"时间,金额,区别"_s, u"TNI"_s},
    {u"sztjlsb"_s, u"时间,金额,项目,区别,人员"_s, u"TNTIT"_s},
};

class Schema : public StoreTest {};

/// Columns of later versions stand behind those of the first.
TEST_F(Schema, HasEveryTableOfTheFirstVersionWithItsColumnsInOrder) {
    for (const Expected& expected : ExpectedTables) {
        QStringList names;
        QString kinds;
        for (const Column& column : (control.open(expected.table), store.columns(expected.table))) {
            names += column.name;
            kinds += letterOf(column.kind);
        }
        EXPECT_TRUE(names.join(u',').startsWith(expected.columns)) << expected.table;
        EXPECT_TRUE(kinds.startsWith(expected.kinds)) << expected.table;
    }
}

TEST_F(Schema, RecordsetOfATableHasItsColumnsInOrder) {
    for (const Expected& expected : ExpectedTables) {
        Recordset& set = control.open(expected.table);
        QStringList names;
        for (int i = 0; i < set.fieldCount(); ++i)
            names += set.field(i).name();
        EXPECT_TRUE(names.join(u',').startsWith(expected.columns)) << expected.table;
    }
}

TEST_F(Schema, NewFileIsForItsOwnerAloneAndHasNoOtherBesideIt) {
    const QString made = folder.filePath(u"new/data.dll"_s);
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"new"_s));
    createStore(made);
    EXPECT_EQ(QFile::permissions(made) & ~(QFile::ReadUser | QFile::WriteUser), QFile::ReadOwner | QFile::WriteOwner);
    EXPECT_EQ(QDir(folder.filePath(u"new"_s)).entryList(QDir::Files | QDir::Hidden), QStringList(u"data.dll"_s));
}

TEST_F(Schema, FileInAFolderThatIsNotThereIsRefused) {
    EXPECT_EQ(errorOf([&] { createStore(folder.filePath(u"no/data.dll"_s)); }, u"data.dll"_s),
              RuntimeError::PathFileAccess);
}

TEST_F(Schema, AnExistingFileIsNotReplaced) {
    addIncome(u"2024-5-3"_s, u"工资"_s, 100);
    store.close();
    const QByteArray before = fileBytes();
    EXPECT_EQ(errorOf([&] { createStore(path()); }, u"data.dll"_s), RuntimeError::PathFileAccess);
    EXPECT_EQ(fileBytes(), before);
}

TEST_F(Schema, NoKeyKeepsEqualRowsOut) {
    for (int i = 0; i < 3; ++i)
        addIncome(u"2024-5-3"_s, u"工资"_s, 100);
    EXPECT_EQ(control.open(u"srb"_s).recordCount(), 3);
}

} // namespace
} // namespace qinghe
