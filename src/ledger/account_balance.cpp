#include "ledger/account_balance.h"

#include "runtime/number_text.h"
#include "runtime/runtime_error.h"

#include <cmath>

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
    const int sign = direction(column);
    if (sign == 0)
        return std::nullopt;
    const double result = leadingNumber(balance) + sign * leadingNumber(text);
    if (!std::isfinite(result))
        throw RuntimeError(RuntimeError::Overflow, QStringLiteral("溢出：账户的余额太大。"));
    return spacedNumberText(result);
}

} // namespace qinghe
