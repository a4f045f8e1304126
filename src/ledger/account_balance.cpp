#include "ledger/account_balance.h"

#include "runtime/number_text.h"
#include "runtime/runtime_error.h"
#include "store/tables.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array In{columns::Received, columns::Borrowed, columns::MovedIn};
constexpr std::array Out{columns::Spent, columns::Lent, columns::MovedOut};

/// What a movement does to the balance: 1 adds, -1 takes; 0 is no movement.
int direction(QStringView field) {
    return static_cast<int>(std::ranges::count(In, field) - std::ranges::count(Out, field));
}

} // namespace

std::optional<QString> balanceAfterLeaving(QStringView field, const QString& text, const QString& balance) {
    if (field == columns::OpeningAmount)
        return text;
    const int sign = direction(field);
    if (sign == 0)
        return std::nullopt;
    const double result = leadingNumber(balance) + sign * leadingNumber(text);
    if (!std::isfinite(result))
        throw RuntimeError(RuntimeError::Overflow, u"溢出：账户的余额太大。"_s);
    return spacedNumberText(result);
}

} // namespace qinghe
