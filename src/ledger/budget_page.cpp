#include "ledger/budget_page.h"

#include "store/tables.h"

namespace qinghe {

namespace {

using Kind = GridPage::Kind;

constexpr double Share = 2754; ///< a quarter of the grid less 400 twips, rounded

constexpr PageTab Tabs[] = {{u"Label5", u"  预算", 5400, PageCode::Budget}};

constexpr GridPage::Column Columns[] = {
    {{u"预算日期", columns::BudgetTime}, Share, Kind::Date},
    {{u"预算项目", columns::BudgetItem}, Share},
    {{u"预算金额", columns::BudgetAmount}, Share, Kind::Amount},
    {{u"备注", columns::Note}, Share},
};

const GridPage::Traits Budget{
    .page = {u"Frame8", u"支出预算", 120, 1680, 11655, 6255, Tabs},
    .grid = u"ms6",
    .editor = u"tx6",
    .buttons = {u"Command16", u"Command17", u"Command18"},
    .list = {tables::Budget, Columns, u"预算"},
    .dateField = DateField::Budget,
    .amountField = AmountField::Budget,
    .quirks = {.enterOpensNoPicker = true, .addCommitsBox = true, .loadsBeforeShown = true},
};

} // namespace

BudgetPage::BudgetPage(MainWindow& window) : GridPage(window, Budget) {}

} // namespace qinghe
