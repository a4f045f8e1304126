#include "runtime/integers.h"

#include "runtime/number_text.h"
#include "runtime/runtime_error.h"

#include <cmath>
#include <limits>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

using Limits = std::numeric_limits<std::int16_t>;

[[noreturn]] void throwOverflow(const QString& number) {
    throw RuntimeError(RuntimeError::Overflow, u"溢出：%1 超出了 -32768 到 32767 的范围。"_s.arg(number));
}

double roundedHalfToEven(double value) {
    const double below = std::floor(value);
    const double rest = value - below;
    const bool up = rest > 0.5 || (rest == 0.5 && std::fmod(below, 2) != 0);
    return up ? below + 1 : below;
}

} // namespace

std::int16_t Int16::checked(long long value) {
    if (value < Limits::min() || value > Limits::max())
        throwOverflow(QString::number(value));
    return static_cast<std::int16_t>(value);
}

Int16 roundedInt16(double value) {
    const double rounded = roundedHalfToEven(value);
    if (!(rounded >= Limits::min() && rounded <= Limits::max())) // also catches what is not a number
        throwOverflow(numberText(value));
    return Int16(static_cast<long long>(rounded));
}

} // namespace qinghe
