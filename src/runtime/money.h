#pragma once

#include "runtime/value.h"

/// Sums of money as the program tells them. All are yuan.
namespace qinghe::money {

/// Stands behind a sum. Whoever wants another currency changes it here.
inline constexpr QStringView Sign = u"元";

/// Two places behind the point and no zero before it: "12.50", ".50". NULL has no text, and a sum beyond
/// all range is OverflowText. Throws RuntimeError (type mismatch) for what is no number.
QString amount(const Value& value);
/// The same with the sign behind it: "12.50元".
QString yuan(const Value& value);
/// The same with a zero before the point: "0.50元".
QString fullYuan(double sum);
/// What stands where nothing was summed: "0.00元".
QString none();

/// A total as the ledger keeps it for later, rounded to a single; infinite beyond its range.
float singleTotal(double total);

} // namespace qinghe::money
