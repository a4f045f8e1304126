#pragma once

#include <cstdint>

namespace qinghe {

/// A 16-bit integer that overflows with a run-time error (number 6) instead of wrapping round; row counters and the
/// variables that forms share are of this kind. Range -32,768 to 32,767.
class Int16 {
public:
    constexpr Int16() = default;
    /// Throws RuntimeError (overflow) when `value` does not fit.
    Int16(long long value) : m_value(checked(value)) {}

    operator int() const { return m_value; }
    Int16& operator+=(long long step) { return *this = Int16(m_value + step); }
    Int16& operator++() { return *this += 1; }

private:
    static std::int16_t checked(long long value);
    std::int16_t m_value = 0;
};

/// Rounds half to even, as the runtime does when a number becomes an integer, and checks the range.
/// Throws RuntimeError (overflow).
Int16 roundedInt16(double value);

} // namespace qinghe
