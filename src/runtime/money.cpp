#include "runtime/money.h"

#include "runtime/number_format.h"

#include <cmath>
#include <limits>

namespace qinghe::money {

using namespace Qt::StringLiterals;

QString amount(const Value& value) {
    return formatNumber(value, u"##.00"_s);
}

QString yuan(const Value& value) {
    return formatNumber(value, u"##.00"_s + Sign.toString());
}

QString fullYuan(double sum) {
    return formatNumber(sum, u"0.00"_s + Sign.toString());
}

QString none() {
    return fullYuan(0);
}

float singleTotal(double total) {
    using Limits = std::numeric_limits<float>;
    return std::abs(total) > Limits::max() ? Limits::infinity() : static_cast<float>(total);
}

} // namespace qinghe::money
