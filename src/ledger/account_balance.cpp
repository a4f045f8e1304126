#include "ledger/account_balance.h"

#include "runtime/number_text.h"

namespace qinghe {

namespace {

/// What a movement does to the balance: 1 adds, -1 takes; 0 is no movement.
int direction(AccountColumn column) {
    switch (column) {
    case AccountColumn::Income:
    case AccountColumn::Borrowed:
    case AccountColumn::TransferIn:
        return 1;
    case AccountColumn::Expense:
    case AccountColumn::Lent:
    case AccountColumn::TransferOut:
        return -1;
    default:
        return 0;
    }
}

} // namespace

std::optional<QString> balanceAfterLeaving(AccountColumn column, const QString& text, const QString& balance) {
    if (column == AccountColumn::Start)
        return text;
    if (const int sign = direction(column))
        return spacedNumberText(leadingNumber(balance) + sign * leadingNumber(text));
    return std::nullopt;
}

} // namespace qinghe
