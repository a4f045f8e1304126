#include "ledger/accounts_page.h"

#include "core/grid_rows.h"
#include "ledger/account_balance.h"

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr int PageCode = 6;
constexpr int BalanceColumn = static_cast<int>(AccountColumn::Balance);

constexpr PageTab Tabs[] = {{u"Label6", u"  储蓄", 4320, PageCode}};

// Shares of the grid less 400 twips, rounded: an eighth, thirteenths, a quarter.
constexpr double NameWidth = 1377, AmountWidth = 847, NoteWidth = 2754;

constexpr std::array<GridPage::Column, 10> Columns{{
    {u"账户名称", NameWidth},
    {u"起始金额", AmountWidth},
    {u"收入", AmountWidth},
    {u"支出", AmountWidth},
    {u"借入", AmountWidth},
    {u"借出", AmountWidth},
    {u"转入", AmountWidth},
    {u"转出", AmountWidth},
    {u"余额", AmountWidth},
    {u"备注信息", NoteWidth},
}};

const GridPage::Traits Accounts{
    .page = {u"frame9", u"账户", 120, 1680, 11655, 6255, Tabs},
    .grid = u"ms7",
    .editor = u"tx7",
    .add = u"Command19",
    .remove = u"Command20",
    .save = u"Command21",
    .columns = Columns,
    .amounts = {.onClick = {2, 8}, .onEnter = {2, 2}, .target = 3},
    .shownAsAmounts = {2, 9},
    .closedColumn = BalanceColumn,
    .addCommitsBox = true,
    .addTests = GridPage::AddTests::CurrentRow,
    .addedBox = GridPage::AddedBox::KeepsText,
};

} // namespace

AccountsPage::AccountsPage(MainWindow& form) : GridPage(form, Accounts) {}

QString AccountsPage::table() const {
    return u"zhb"_s;
}

void AccountsPage::Form2_Label6_Click() {
    navigation().leaveOthers(*this, PageCode);
    hideEditor();
    navigation().bringForward(*this);
    loadTable(false);
}

void AccountsPage::formClicked() {
    if (frame.Visible())
        commitAndHideBox();
}

/// Enter has just left the column before the current one.
void AccountsPage::moved() {
    const int left = grid->Col() - 1;
    if (const auto balance = balanceAfterLeaving(static_cast<AccountColumn>(left), grid->TextMatrix(grid->Row(), left),
                                                 grid->TextMatrix(grid->Row(), BalanceColumn)))
        grid->setTextMatrix(grid->Row(), BalanceColumn, *balance);
}

void AccountsPage::beforeSave() {
    Adodc1.setRecordSource(table()); // named only
}

int AccountsPage::rowForEmptyText() const {
    // The row number of the loan grid decides, and is meant to.
    return loanRow(m_shared);
}

} // namespace qinghe
