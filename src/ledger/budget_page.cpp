#include "ledger/budget_page.h"

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr int PageCode = 5;
constexpr double Share = 2754; ///< a quarter of the grid less 400 twips, rounded

constexpr PageTab Tabs[] = {{u"Label5", u"  预算", 5400, PageCode}};

constexpr std::array<GridPage::Column, 4> Columns{{
    {u"预算日期", Share},
    {u"预算项目", Share},
    {u"预算金额", Share},
    {u"备注", Share},
}};

const GridPage::Traits Budget{
    .page = {u"Frame8", u"支出预算", 120, 1680, 11655, 6255, Tabs},
    .grid = u"ms6",
    .editor = u"tx6",
    .add = u"Command16",
    .remove = u"Command17",
    .save = u"Command18",
    .columns = Columns,
    .date = {.column = 1, .target = 7, .opensOnEnter = false},
    .amounts = {.onClick = {3, 3}, .onEnter = {3, 3}, .target = 4},
    .shownAsAmounts = {3, 3},
    .addCommitsBox = true,
};

} // namespace

BudgetPage::BudgetPage(MainWindow& form) : GridPage(form, Budget) {}

QString BudgetPage::table() const {
    return u"ysb"_s;
}

void BudgetPage::Form2_Label5_Click() {
    navigation().leaveOthers(*this, PageCode);
    hideEditor();
    loadTable();
    navigation().bringForward(*this);
}

void BudgetPage::formClicked() {
    if (frame.Visible())
        commitAndHideBox();
}

} // namespace qinghe
