#include "runtime/number_format.h"

#include "runtime/number_text.h"

#include <array>
#include <charconv>
#include <cmath>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr int SignificantDigits = 15;

/// The digits of a number that is not negative, before and behind the point.
struct Decimal {
    QByteArray whole;
    QByteArray fraction;

    bool isZero() const { return (whole + fraction).count('0') == whole.size() + fraction.size(); }
};

/// How many digits a pattern demands ("0") and allows ("#") on either side of the point, and the text behind.
struct Pattern {
    qsizetype leastWhole = 0;
    qsizetype leastFraction = 0;
    qsizetype mostFraction = 0;
    bool hasPoint = false;
    QStringView literal;
};

bool isPlaceholder(QChar c) {
    return c == u'#' || c == u'0';
}

Pattern parsed(QStringView pattern) {
    Pattern result;
    qsizetype at = 0;
    for (; at < pattern.size() && isPlaceholder(pattern[at]); ++at)
        result.leastWhole += pattern[at] == u'0' || result.leastWhole > 0 ? 1 : 0;
    result.hasPoint = at < pattern.size() && pattern[at] == u'.';
    const qsizetype fraction = result.hasPoint ? ++at : at;
    for (; result.hasPoint && at < pattern.size() && isPlaceholder(pattern[at]); ++at) {
        result.mostFraction = at + 1 - fraction;
        if (pattern[at] == u'0')
            result.leastFraction = result.mostFraction;
    }
    result.literal = pattern.mid(at);
    return result;
}

Decimal decimalOf(double magnitude) {
    std::array<char, 32> text; // "d.ddddddddddddddE±xxx"
    const auto end = std::to_chars(text.data(), text.data() + text.size(), magnitude, std::chars_format::scientific,
                                   SignificantDigits - 1);
    const QByteArray scientific(text.data(), end.ptr - text.data());
    const qsizetype mark = scientific.indexOf('e');
    const QByteArray digits = scientific.left(mark).replace(".", "");
    const qsizetype places = scientific.mid(mark + 1).toInt() + 1; // before the point
    if (places <= 0)
        return {{}, QByteArray(-places, '0') + digits};
    return {digits.left(places).leftJustified(places, '0'), digits.mid(places)};
}

/// Adds one in the last place of a row of digits; the row grows when it was all nines.
void addOne(QByteArray& digits) {
    for (qsizetype at = digits.size() - 1; at >= 0; --at) {
        if (digits[at] != '9') {
            ++digits[at];
            return;
        }
        digits[at] = '0';
    }
    digits.prepend('1');
}

/// Rounds half away from zero.
Decimal rounded(const Decimal& number, qsizetype places) {
    QByteArray digits = number.whole + number.fraction.left(places).leftJustified(places, '0');
    if (number.fraction.size() > places && number.fraction[places] >= '5')
        addOne(digits);
    return {digits.left(digits.size() - places), digits.right(places)};
}

QByteArray fitted(QByteArray whole, qsizetype least) {
    while (whole.startsWith('0'))
        whole.remove(0, 1);
    return whole.rightJustified(least, '0');
}

QByteArray trimmedTo(QByteArray fraction, qsizetype least) {
    while (fraction.size() > least && fraction.endsWith('0'))
        fraction.chop(1);
    return fraction;
}

} // namespace

QString formatNumber(double value, const QString& pattern) {
    if (!std::isfinite(value))
        return OverflowText.toString();
    const Pattern form = parsed(pattern);
    const Decimal number = rounded(decimalOf(std::abs(value)), form.mostFraction);
    QByteArray text = value < 0 && !number.isZero() ? "-" : "";
    text += fitted(number.whole, form.leastWhole);
    if (form.hasPoint)
        text += '.' + trimmedTo(number.fraction, form.leastFraction);
    return QString::fromLatin1(text) + form.literal.toString();
}

QString formatNumber(const Value& value, const QString& pattern) {
    return value.isNull() ? QString() : formatNumber(value.number(), pattern);
}

} // namespace qinghe
