#pragma once

#include "runtime/value.h"

namespace qinghe {

/// Formats a number with a pattern of "#", "0" and one ".", with literal text behind it: "##.00", "##.00元", "0.00元".
/// Rounds half away from zero on the 15 significant digits of the decimal text: 2.345 under "##.00" is "2.35". With "#"
/// alone before the point there is no zero before it: 0.5 is ".50", -0.5 is "-.50", 0 is ".00". What rounds to nothing
/// has no sign: -0.001 is ".00". A sum beyond a double's range is OverflowText alone.
QString formatNumber(double value, const QString& pattern);
/// The same for a value of a column; NULL has no text. Throws RuntimeError (type mismatch) for what is no number.
QString formatNumber(const Value& value, const QString& pattern);

} // namespace qinghe
