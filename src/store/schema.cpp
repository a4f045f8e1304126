#include "store/schema.h"

#include "runtime/months.h"
#include "store/column.h"
#include "store/connection.h"
#include "store/migrations.h"
#include "store/sql_text.h"
#include "store/tables.h"

#include <algorithm>
#include <array>
#include <span>

namespace qinghe {

namespace {

struct SchemaColumn {
    QStringView name;
    ColumnKind kind;
};

struct SchemaTable {
    QStringView name;
    std::span<const SchemaColumn> columns; ///< in ordinal order
};

using enum ColumnKind;

constexpr SchemaColumn Income[]{{columns::Code, Text},  {columns::Time, Date},        {columns::Item, Text},
                                {columns::Payee, Text}, {columns::Amount, Number},    {columns::Account, Text},
                                {columns::Note, Text},  {columns::RowNumber, Integer}};
constexpr SchemaColumn Expense[]{{columns::Code, Text},  {columns::Time, Date},        {columns::Item, Text},
                                 {columns::Payer, Text}, {columns::Amount, Number},    {columns::Account, Text},
                                 {columns::Note, Text},  {columns::RowNumber, Integer}};
constexpr SchemaColumn Borrowed[]{
    {columns::Account, Text},    {columns::Day, Date},       {columns::BorrowedAmount, Number},
    {columns::PaidBack, Number}, {columns::Balance, Number}, {columns::Lender, Text},
    {columns::Borrower, Text},   {columns::Note, Text},      {columns::RowNumber, Integer}};
constexpr SchemaColumn Lent[]{{columns::Account, Text},    {columns::Day, Date},       {columns::LentAmount, Number},
                              {columns::PaidBack, Number}, {columns::Balance, Number}, {columns::Lender, Text},
                              {columns::Borrower, Text},   {columns::Note, Text},      {columns::RowNumber, Integer}};
constexpr SchemaColumn Budget[]{{columns::BudgetTime, Date},
                                {columns::BudgetItem, Text},
                                {columns::BudgetAmount, Number},
                                {columns::Note, Text},
                                {columns::RowNumber, Integer}};
constexpr SchemaColumn Accounts[]{
    {columns::AccountName, Text}, {columns::OpeningAmount, Number}, {columns::Received, Number},
    {columns::Spent, Number},     {columns::Borrowed, Number},      {columns::Lent, Number},
    {columns::MovedIn, Number},   {columns::MovedOut, Number},      {columns::Balance, Number},
    {columns::AccountNote, Text}, {columns::RowNumber, Integer}};
constexpr SchemaColumn Schedule[]{
    {columns::WrittenOn, Date}, {columns::PlanNumber, Number}, {columns::PlanDay, Date},     {columns::PlanTime, Text},
    {columns::PlanText, Text},  {columns::PlanMusic, Text},    {columns::RowNumber, Integer}};
constexpr SchemaColumn Diary[]{{columns::Day, Date}, {columns::DiaryTitle, Text}};
constexpr SchemaColumn Users[]{{columns::UserName, Text}, {columns::UserPassword, Text}, {columns::RowNumber, Integer}};
constexpr SchemaColumn Remembered[]{{columns::UserName, Text}, {columns::RememberedPassword, Text}};
constexpr SchemaColumn IncomeClasses[]{
    {columns::IncomeMajor, Text}, {columns::IncomeMinor, Text}, {columns::QuickCode, Text}};
constexpr SchemaColumn ExpenseClasses[]{
    {columns::ExpenseMajor, Text}, {columns::ExpenseMinor, Text}, {columns::QuickCode, Text}};
constexpr SchemaColumn Reminding[]{{columns::RemindAtSignIn, Boolean}};
constexpr SchemaColumn Tray[]{{columns::MinimiseToTray, Boolean}};
constexpr SchemaColumn Skins[]{
    {columns::PictureName, Text}, {columns::PictureSize, Number}, {columns::SkinBytes, Binary}};
constexpr SchemaColumn ChosenSkin[]{
    {columns::ChosenName, Text}, {columns::ChosenSize, Number}, {columns::ChosenBytes, Binary}};
constexpr SchemaColumn DesktopPicture[]{
    {columns::PictureName, Text}, {columns::PictureSize, Number}, {columns::DesktopBytes, Binary}};
constexpr SchemaColumn YearScratch[]{{columns::Time, Text}, {columns::Amount, Number}, {columns::RowNumber, Integer}};
constexpr SchemaColumn MonthScratch[]{{columns::Time, Text},
                                      {columns::Amount, Number},
                                      {columns::Item, Text},
                                      {columns::RowNumber, Integer},
                                      {columns::Person, Text}};

constexpr std::array Tables{
    SchemaTable{tables::Income, Income},
    SchemaTable{tables::Expense, Expense},
    SchemaTable{tables::Borrowed, Borrowed},
    SchemaTable{tables::Lent, Lent},
    SchemaTable{tables::Budget, Budget},
    SchemaTable{tables::Accounts, Accounts},
    SchemaTable{tables::Schedule, Schedule},
    SchemaTable{tables::Diary, Diary},
    SchemaTable{tables::Users, Users},
    SchemaTable{tables::Remembered, Remembered},
    SchemaTable{tables::IncomeClasses, IncomeClasses},
    SchemaTable{tables::ExpenseClasses, ExpenseClasses},
    SchemaTable{tables::Reminding, Reminding},
    SchemaTable{tables::Tray, Tray},
    SchemaTable{tables::OfferedSkins, Skins},
    SchemaTable{tables::ChosenSkin, ChosenSkin},
    SchemaTable{tables::DesktopPicture, DesktopPicture},
    SchemaTable{tables::SignInPicture, Skins},
    SchemaTable{tables::IncomeScratch, YearScratch},
    SchemaTable{tables::ExpenseScratch, YearScratch},
    SchemaTable{tables::MonthScratch, MonthScratch},
};

/// A date column that queries look up, by its month ("2024-5-", the first seven characters of its text) or by its day.
struct SchemaIndex {
    QStringView table;
    QStringView column;
    int leading; ///< the characters of the text form that are indexed; 0: the column itself
};

constexpr std::array Indexes{
    SchemaIndex{tables::Income, columns::Time, months::Length},
    SchemaIndex{tables::Expense, columns::Time, months::Length},
    SchemaIndex{tables::Budget, columns::BudgetTime, months::Length},
    SchemaIndex{tables::Borrowed, columns::Day, months::Length},
    SchemaIndex{tables::Lent, columns::Day, months::Length},
    SchemaIndex{tables::Schedule, columns::PlanDay, 0},
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

} // namespace

void createStore(const QString& path) {
    Connection connection = Connection::made(path);
    connection.begin();
    std::ranges::for_each(Tables, [&](const SchemaTable& table) { connection.run(tableSql(table)); });
    std::ranges::for_each(Indexes, [&](const SchemaIndex& index) { connection.run(indexSql(index)); });
    std::ranges::for_each(Migrations, [&](const Migration& step) { step.run(connection); });
    connection.setVersion(CurrentVersion);
    connection.commit();
}

} // namespace qinghe
