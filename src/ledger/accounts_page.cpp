#include "ledger/accounts_page.h"

#include "ledger/account_balance.h"
#include "store/tables.h"

namespace qinghe {

namespace {

using Kind = GridPage::Kind;

constexpr PageTab Tabs[] = {{u"Label6", u"  储蓄", 4320, PageCode::Accounts}};

// Shares of the grid less 400 twips, rounded: an eighth, thirteenths, a quarter.
constexpr double NameWidth = 1377, AmountWidth = 847, NoteWidth = 2754;

constexpr GridPage::Column Columns[] = {
    {{u"账户名称", columns::AccountName}, NameWidth},
    {{u"起始金额", columns::OpeningAmount}, AmountWidth, Kind::Amount},
    {{u"收入", columns::Received}, AmountWidth, Kind::Amount},
    {{u"支出", columns::Spent}, AmountWidth, Kind::Amount},
    {{u"借入", columns::Borrowed}, AmountWidth, Kind::Amount},
    {{u"借出", columns::Lent}, AmountWidth, Kind::Amount},
    {{u"转入", columns::MovedIn}, AmountWidth, Kind::Amount},
    {{u"转出", columns::MovedOut}, AmountWidth, Kind::Amount},
    {{u"余额", columns::Balance}, AmountWidth, Kind::WorkedOut},
    {{u"备注信息", columns::AccountNote}, NoteWidth},
};

const GridPage::Traits Accounts{
    .page = {u"frame9", u"账户", 120, 1680, 11655, 6255, Tabs},
    .grid = u"ms7",
    .editor = u"tx7",
    .buttons = {u"Command19", u"Command20", u"Command21"},
    .list = {tables::Accounts, Columns, u"账户"},
    .amountField = AmountField::Accounts,
    .quirks = {.calculatorOnEnter = GridPage::CalculatorOnEnter::FirstAmount,
               .addCommitsBox = true,
               .addTestsCurrentRow = true,
               .addKeepsBoxText = true,
               .saveNamesTable = true,
               .emptyTextsGoToLoanRow = true},
};

} // namespace

AccountsPage::AccountsPage(MainWindow& window) : GridPage(window, Accounts) {}

/// Enter has just left the column before the current one.
void AccountsPage::moved() {
    const int left = m_grid->Col() - 1, balance = columnOf(columns::Balance);
    if (const auto worked = balanceAfterLeaving(Columns[left - 1].field, m_grid->TextMatrix(m_grid->Row(), left),
                                                m_grid->TextMatrix(m_grid->Row(), balance)))
        m_grid->setTextMatrix(m_grid->Row(), balance, *worked);
}

} // namespace qinghe
