#include "store/schema.h"

#include "runtime/runtime_error.h"
#include "store/connection.h"
#include "store/sql_text.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <array>

namespace qinghe {

namespace {

using enum ColumnKind;

constexpr SchemaColumn kIncome[]{{u"编号", Text},   {u"时间", Date}, {u"项目", Text}, {u"收款人", Text},
                                 {u"金额", Number}, {u"账户", Text}, {u"备注", Text}, {u"区别", Integer}};
constexpr SchemaColumn kExpense[]{{u"编号", Text},   {u"时间", Date}, {u"项目", Text}, {u"付款人", Text},
                                  {u"金额", Number}, {u"账户", Text}, {u"备注", Text}, {u"区别", Integer}};
constexpr SchemaColumn kBorrowed[]{{u"账户", Text},       {u"日期", Date},   {u"借入金额", Number},
                                   {u"已还金额", Number}, {u"余额", Number}, {u"借出人", Text},
                                   {u"借给人", Text},     {u"备注", Text},   {u"区别", Integer}};
constexpr SchemaColumn kLent[]{{u"账户", Text},       {u"日期", Date},   {u"借出金额", Number},
                               {u"已还金额", Number}, {u"余额", Number}, {u"借出人", Text},
                               {u"借给人", Text},     {u"备注", Text},   {u"区别", Integer}};
constexpr SchemaColumn kBudget[]{
    {u"预算时间", Date}, {u"预算项目", Text}, {u"预算金额", Number}, {u"备注", Text}, {u"区别", Integer}};
constexpr SchemaColumn kAccounts[]{{u"账户名称", Text}, {u"起始金额", Number}, {u"收入", Number}, {u"支出", Number},
                                   {u"借入", Number},   {u"借出", Number},     {u"转入", Number}, {u"转出", Number},
                                   {u"余额", Number},   {u"备注信息", Text},   {u"区别", Integer}};
constexpr SchemaColumn kSchedule[]{{u"设置日期", Date}, {u"日程号", Number}, {u"日程日期", Date}, {u"提醒时间", Text},
                                   {u"日程内容", Text}, {u"提醒音乐", Text}, {u"区别", Integer}};
constexpr SchemaColumn kDiary[]{{u"日期", Date}, {u"日记标题", Text}};
constexpr SchemaColumn kUsers[]{{u"用户名", Text}, {u"用户密码", Text}, {u"区别", Integer}};
constexpr SchemaColumn kRemembered[]{{u"用户名", Text}, {u"密码", Text}};
constexpr SchemaColumn kIncomeClasses[]{{u"收入大类", Text}, {u"收入细类", Text}, {u"快速代码", Text}};
constexpr SchemaColumn kExpenseClasses[]{{u"支出大类", Text}, {u"支出细类", Text}, {u"快速代码", Text}};
constexpr SchemaColumn kReminding[]{{u"日程提醒", Boolean}};
constexpr SchemaColumn kTray[]{{u"最小化到托盘", Boolean}};
constexpr SchemaColumn kSkins[]{{u"名称", Text}, {u"大小", Number}, {u"皮肤", Binary}};
constexpr SchemaColumn kChosenSkin[]{{u"皮肤名", Text}, {u"文件大小", Number}, {u"皮肤文件", Binary}};
constexpr SchemaColumn kDesktopPicture[]{{u"名称", Text}, {u"大小", Number}, {u"文件", Binary}};
constexpr SchemaColumn kYearScratch[]{{u"时间", Text}, {u"金额", Number}, {u"区别", Integer}};
constexpr SchemaColumn kMonthScratch[]{
    {u"时间", Text}, {u"金额", Number}, {u"项目", Text}, {u"区别", Integer}, {u"人员", Text}};

constexpr std::array kTables{
    SchemaTable{u"srb", kIncome},
    SchemaTable{u"zcb", kExpense},
    SchemaTable{u"jrb", kBorrowed},
    SchemaTable{u"jcb", kLent},
    SchemaTable{u"ysb", kBudget},
    SchemaTable{u"zhb", kAccounts},
    SchemaTable{u"rcb", kSchedule},
    SchemaTable{u"rjb", kDiary},
    SchemaTable{u"yhb", kUsers},
    SchemaTable{u"登陆用户记录表", kRemembered},
    SchemaTable{u"srflb", kIncomeClasses},
    SchemaTable{u"zcflb", kExpenseClasses},
    SchemaTable{u"txb", kReminding},
    SchemaTable{u"systuopanb", kTray},
    SchemaTable{u"软件皮肤", kSkins},
    SchemaTable{u"皮肤选择", kChosenSkin},
    SchemaTable{u"主界面", kDesktopPicture},
    SchemaTable{u"登陆皮肤", kSkins},
    SchemaTable{u"nsrb", kYearScratch},
    SchemaTable{u"nzcb", kYearScratch},
    SchemaTable{u"sztjlsb", kMonthScratch},
};

/// A date column that queries look up, by its month ("2024-5-", the first seven characters of its text) or by its day.
struct SchemaIndex {
    QStringView table;
    QStringView column;
    int leading; ///< the characters of the text form that are indexed; 0: the column itself
};

constexpr int kMonthLength = 7;
constexpr std::array kIndexes{
    SchemaIndex{u"srb", u"时间", kMonthLength},     SchemaIndex{u"zcb", u"时间", kMonthLength},
    SchemaIndex{u"ysb", u"预算时间", kMonthLength}, SchemaIndex{u"jrb", u"日期", kMonthLength},
    SchemaIndex{u"jcb", u"日期", kMonthLength},     SchemaIndex{u"rcb", u"日程日期", 0},
};

QByteArray tableSql(const SchemaTable& table) {
    QByteArray columns;
    for (const SchemaColumn& column : table.columns) {
        columns += columns.isEmpty() ? "" : ", ";
        columns += quotedName(column.name.toString()) + ' ' + declaredType(column.kind).toLatin1();
    }
    return "CREATE TABLE " + quotedName(table.name.toString()) + " (" + columns + ')';
}

QByteArray indexSql(const SchemaIndex& index) {
    const Column column{index.column.toString(), Date};
    const QByteArray key = index.leading ? leftSql(column, index.leading) : quotedName(column.name);
    return "CREATE INDEX " + quotedName(index.table.toString() + u'_' + column.name) + " ON " +
           quotedName(index.table.toString()) + " (" + key + ')';
}

void makeEmptyFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly, QFileDevice::ReadOwner | QFileDevice::WriteOwner))
        throw RuntimeError(
            RuntimeError::PathFileAccess,
            QStringLiteral("无法新建账本文件“%1”：%2。").arg(QDir::toNativeSeparators(path), file.errorString()));
}

} // namespace

std::span<const SchemaTable> schemaTables() {
    return kTables;
}

void createStore(const QString& path) {
    makeEmptyFile(path);
    Connection connection(path);
    connection.begin();
    std::ranges::for_each(kTables, [&](const SchemaTable& table) { connection.run(tableSql(table)); });
    std::ranges::for_each(kIndexes, [&](const SchemaIndex& index) { connection.run(indexSql(index)); });
    connection.commit();
}

} // namespace qinghe
