#include "runtime/number_text.h"

#include "runtime/runtime_error.h"
#include "runtime/shown_value.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <locale>
#include <sstream>
#include <utility>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

using NumberBuffer = std::array<char, 32>;

/// The general form: plain while the decimal exponent is at least -4 and below `digits`, else scientific.
template<typename Number>
QString generalText(Number value, int digits) {
    if (value == 0)
        return u"0"_s; // a negative zero has no sign
    if (!std::isfinite(value))
        return OverflowText.toString();
    NumberBuffer text;
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::general, digits);
    return QString::fromLatin1(text.data(), end.ptr - text.data()).toUpper();
}

/// Rounded, of a number whose hundredths have room. Long lists ask this of every amount: no call to a library.
std::int64_t hundredthsOf(double value) {
    constexpr double Half = 0.5;
    return static_cast<std::int64_t>(value * 100 + (value < 0 ? -Half : Half));
}

/// The same text for a double that is a whole number of hundredths, as amounts are; they need no search for digits.
/// A decimal of at most 15 digits that reads as the double is its text. Nothing for others.
std::optional<QString> amountText(double value) {
    if (!isAmount(value))
        return std::nullopt;
    const std::int64_t hundredths = hundredthsOf(value);
    NumberBuffer text;
    char* const end = text.data() + text.size();
    char* at = end;
    auto rest = static_cast<std::uint64_t>(std::abs(hundredths));
    for (int place = 0; place < 3 || rest > 0; ++place, rest /= 10) {
        const auto digit = static_cast<char>('0' + rest % 10);
        if (place == 2 && at != end)
            *--at = '.';
        if (place >= 2 || digit != '0' || at != end)
            *--at = digit;
    }
    if (hundredths < 0)
        *--at = '-';
    return QString::fromLatin1(at, end - at);
}

/// The value of a text that is nothing but digits, perhaps with a sign before and a point among them; nothing for
/// others. Most amounts are, and need no reader.
std::optional<double> plainNumber(const QString& text) {
    NumberBuffer number;
    const auto length = static_cast<std::size_t>(text.size());
    if (length == 0 || length > number.size())
        return std::nullopt;
    bool point = false;
    for (std::size_t i = 0; i < length; ++i) {
        const char16_t c = text[static_cast<qsizetype>(i)].unicode();
        const bool inside = i > 0 && i + 1 < length;
        const bool fits =
            (c >= u'0' && c <= u'9') || (c == u'-' && i == 0 && length > 1) ||
            (c == u'.' && inside && text[static_cast<qsizetype>(i - 1)] != u'-' && !std::exchange(point, true));
        if (!fits)
            return std::nullopt;
        number[i] = static_cast<char>(c);
    }
    double value = 0;
    std::from_chars(number.data(), number.data() + length, value);
    return value;
}

QString withoutLeadingZero(QString text) {
    const qsizetype first = text.startsWith(u'-') ? 1 : 0;
    return QStringView(text).mid(first).startsWith(u"0.") ? text.remove(first, 1) : text;
}

bool isBlank(QChar c) {
    return c == u' ' || c == u'\t' || c == u'\n';
}

bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

bool isExponentMark(QChar c) {
    const QChar upper = c.toUpper();
    return upper == u'E' || upper == u'D';
}

/// Reads the parts of a number from the head of a text, and collects what it takes in the form that the machine's
/// own conversion understands.
class NumberReader {
public:
    explicit NumberReader(QStringView text) : m_text(text) {}

    bool atEnd() const { return m_at == m_text.size(); }

    bool skip(QStringView anyOf) {
        const bool found = !atEnd() && anyOf.contains(m_text[m_at]);
        m_at += found ? 1 : 0;
        return found;
    }

    bool sign() {
        const bool minus = next() == u'-';
        if (!skip(u"+-"))
            return false;
        if (minus)
            m_number += '-';
        return true;
    }

    /// Digits with at most one point; `marks` are passed over between the digits before it. False without a digit.
    bool mantissa(QStringView marks) {
        const qsizetype whole = digits(marks);
        m_number += whole == 0 ? "0" : "";
        if (!skip(u"."))
            return whole > 0;
        m_number += '.';
        const qsizetype fraction = digits({});
        m_number += '0';
        return whole + fraction > 0;
    }

    /// An exponent that has no digits is none, and stays unread.
    void exponent() {
        const qsizetype start = m_at;
        const qsizetype length = m_number.size();
        if (atEnd() || !isExponentMark(next()))
            return;
        ++m_at;
        m_number += 'E';
        sign();
        if (digits({}) > 0)
            return;
        m_at = start;
        m_number.truncate(length);
    }

    void blanks() {
        while (skip(u" "))
            continue;
    }

    /// What was read; infinite when it is too large, 0 when it is too small.
    double value() const {
        double value = 0;
        const auto read = std::from_chars(m_number.cbegin(), m_number.cend(), value);
        return read.ec == std::errc::result_out_of_range ? valueOutOfRange() : value;
    }

private:
    /// A stream tells too large from too small, which the quicker conversion does not.
    double valueOutOfRange() const {
        std::istringstream stream(m_number.toStdString());
        stream.imbue(std::locale::classic());
        double value = 0;
        return stream >> value ? value : std::numeric_limits<double>::infinity();
    }

    QChar next() const { return atEnd() ? QChar() : m_text[m_at]; }

    qsizetype digits(QStringView marks) {
        qsizetype count = 0;
        for (; !atEnd() && (isDigit(next()) || (count > 0 && marks.contains(next()))); ++m_at) {
            if (!isDigit(next()))
                continue;
            m_number += next().toLatin1();
            ++count;
        }
        return count;
    }

    QStringView m_text;
    qsizetype m_at = 0;
    QByteArray m_number;
};

QString withoutBlanks(const QString& text) {
    QString rest = text;
    rest.removeIf(isBlank);
    return rest;
}

} // namespace

bool isAmount(double value) {
    constexpr double Most = 1e13;
    return std::abs(value) < Most && static_cast<double>(hundredthsOf(value)) / 100 == value;
}

QString numberText(double value) {
    const auto amount = amountText(value);
    return amount ? *amount : generalText(value, std::numeric_limits<double>::digits10);
}

QString numberText(float value) {
    return generalText(value, std::numeric_limits<float>::digits10 + 1);
}

QString pointNumberText(double value) {
    return withoutLeadingZero(numberText(value));
}

QString pointNumberText(float value) {
    return withoutLeadingZero(numberText(value));
}

QString spacedNumberText(double value) {
    const QString text = pointNumberText(value);
    return text.startsWith(u'-') ? text : u' ' + text;
}

double leadingNumber(const QString& text) {
    const QString packed = withoutBlanks(text);
    NumberReader reader(packed);
    reader.sign();
    if (!reader.mantissa({}))
        return 0;
    reader.exponent();
    const double value = reader.value();
    if (std::isinf(value))
        throw RuntimeError(RuntimeError::Overflow, u"溢出：“%1”太大，无法作为数字。"_s.arg(shownValue(text)));
    return value;
}

std::optional<double> fullNumber(const QString& text) {
    if (const auto plain = plainNumber(text))
        return plain;
    const QString trimmed = text.trimmed();
    NumberReader reader(trimmed);
    const bool signedFirst = reader.sign();
    reader.blanks();
    if (reader.skip(u"¥￥") && !signedFirst)
        reader.sign();
    reader.blanks();
    if (!reader.mantissa(u","))
        return std::nullopt;
    reader.exponent();
    const double value = reader.value();
    return reader.atEnd() && std::isfinite(value) ? std::optional(value) : std::nullopt;
}

} // namespace qinghe
