#include "runtime/money.h"

#include "runtime/number_format.h"
#include "runtime/runtime_error.h"

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
    if (!(std::abs(total) <= std::numeric_limits<float>::max()))
        throw RuntimeError(RuntimeError::Overflow, u"溢出：收支总额太大，超过了 3.4E+38。"_s);
    return static_cast<float>(total);
}

} // namespace qinghe::money
