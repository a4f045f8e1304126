#pragma once

#include <QString>

#include <optional>

namespace qinghe {

/// What stands where a sum has left a double's range. It is a text like any other and no number: what merely shows a
/// sum must never end the program over it, else the book that holds it could not be opened any more.
inline constexpr QStringView OverflowText = u"溢出";

/// The text of a number as the store and the grids show it: at most 15 significant digits, no trailing zeros,
/// "0.5", "-0.5", "1250.5", "1E+15" from 16 places on ("1.5E+20", "1E-07" for very small ones).
QString numberText(double value);
/// The same for a single: at most 7 significant digits of its own value, "1E+07" from 8 places on.
QString numberText(float value);

/// Whether a number is one of whole hundredths, as amounts are, and small enough that its text reads as the number.
bool isAmount(double value);

/// The calculator's text of a number: as numberText, but without the zero before the point: ".5", "-.5".
QString pointNumberText(double value);
QString pointNumberText(float value);

/// The form that sets one blank before a number that is not negative, and a minus sign before a negative one:
/// " 1250.5", "-30", " .5".
QString spacedNumberText(double value);

/// Reads a text only as far as it is a number: blanks (also tabs and line feeds) anywhere are skipped, an optional
/// sign, digits with at most one point, an exponent of the form E or D with an optional sign. "12元" is 12, "1.2.3" is
/// 1.2, a text with no number at its head is 0. Full-width digits are none. Throws RuntimeError (overflow) for a number
/// beyond a double's range; one too small is 0.
double leadingNumber(const QString& text);

/// The runtime's full conversion of a text to a number: blanks around, a sign in front, thousands marks (commas), a
/// point, an exponent, a currency sign (¥ or ￥) before or behind the sign. std::nullopt when the text as a whole is no
/// number or one beyond a double's range: "", "12元", "1.2.3". A sign behind is none: the calculator's unfinished "12+"
/// must not pass for an amount.
std::optional<double> fullNumber(const QString& text);

/// Whether a text counts as numeric: it has a full conversion.
inline bool isNumeric(const QString& text) {
    return fullNumber(text).has_value();
}

} // namespace qinghe
