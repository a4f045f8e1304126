#include "runtime/date_text.h"

#include <QStringView>

#include <array>

namespace qinghe {

namespace {

constexpr int FirstYear = 100;

/// A number as it was written, with the count of its digits; 0 digits when there is none.
struct Written {
    int value = 0;
    int digits = 0;
};

/// What a Chinese keyboard writes for the digits and marks of a date, as the plain one.
QChar plain(QChar c) {
    constexpr char16_t FullWidthFirst = 0xFF01, FullWidthLast = 0xFF5E, FullWidthOffset = 0xFEE0;
    constexpr char16_t FullWidthBlank = 0x3000;
    const char16_t code = c.unicode();
    if (code >= FullWidthFirst && code <= FullWidthLast)
        return QChar(static_cast<char16_t>(code - FullWidthOffset));
    switch (code) {
    case FullWidthBlank:
        return u' ';
    case u'。':
        return u'.';
    case u'号':
        return u'日';
    default:
        return c;
    }
}

/// Reads a text from left to right as plain characters, one piece at a time; a piece that does not stand there leaves
/// the place unmoved.
class Scanner {
public:
    explicit Scanner(QStringView text) : m_text(text) {}

    bool atEnd() const { return m_at == m_text.size(); }

    bool take(QChar c) {
        const bool found = !atEnd() && plain(m_text[m_at]) == c;
        m_at += found ? 1 : 0;
        return found;
    }

    /// The separator that stands there, if it is one of those given.
    std::optional<QChar> takeAny(QStringView choices) {
        if (atEnd() || !choices.contains(plain(m_text[m_at])))
            return std::nullopt;
        return plain(m_text[m_at++]);
    }

    /// A number of `least` to `most` digits.
    Written written(int least, int most) {
        Written number;
        for (; number.digits < most && m_at + number.digits < m_text.size(); ++number.digits) {
            const char16_t c = plain(m_text[m_at + number.digits]).unicode();
            if (c < u'0' || c > u'9')
                break;
            number.value = number.value * 10 + (c - u'0');
        }
        if (number.digits < least)
            return {};
        m_at += number.digits;
        return number;
    }

    /// The same where none counts as -1.
    int number(int least, int most) {
        const Written found = written(least, most);
        return found.digits > 0 ? found.value : -1;
    }

private:
    QStringView m_text;
    qsizetype m_at = 0;
};

/// What was read of a day; a month alone stands for its first day.
struct ReadDay {
    QDate day;
    bool monthAlone = false;
};

/// The year that is meant by one of three or four digits, or of two: 00 to 29 are 2000 to 2029, the others before
/// 2000. 0 when it is none.
int yearOf(const Written& year) {
    constexpr int Century = 100, LastOfTwoDigits = 29;
    if (year.digits == 2)
        return year.value + (year.value <= LastOfTwoDigits ? 20 : 19) * Century;
    return year.digits > 2 && year.value >= FirstYear ? year.value : 0;
}

std::optional<ReadDay> validDay(int year, int month, int day, bool monthAlone = false) {
    const QDate date(year, month, day);
    return year > 0 && date.isValid() ? std::optional(ReadDay{date, monthAlone}) : std::nullopt;
}

/// Year, month and day, or month and day, or year and month with "-", "/" or "." between them; the first has been read.
std::optional<ReadDay> readMarked(Scanner& scanner, const Written& first, QChar mark, const ThisYear& thisYear) {
    const Written second = scanner.written(1, 2);
    if (scanner.take(mark))
        return validDay(yearOf(first), second.value, scanner.written(1, 2).value);
    if (first.digits > 2)
        return validDay(yearOf(first), second.value, 1, true);
    return thisYear ? validDay(thisYear(), first.value, second.value) : std::nullopt;
}

/// 2024年5月3日, 2024年5月, 5月3日; the first number and its word have been read.
std::optional<ReadDay> readWords(Scanner& scanner, const Written& first, bool isYear, const ThisYear& thisYear) {
    const Written month = isYear ? scanner.written(1, 2) : first;
    if (isYear && !scanner.take(u'月'))
        return std::nullopt;
    const Written day = scanner.written(1, 2);
    if (day.digits == 0)
        return isYear && first.digits > 2 ? validDay(yearOf(first), month.value, 1, true) : std::nullopt;
    if (!scanner.take(u'日') || (!isYear && (first.digits > 2 || !thisYear)))
        return std::nullopt;
    return validDay(isYear ? yearOf(first) : thisYear(), month.value, day.value);
}

std::optional<ReadDay> readDay(Scanner& scanner, const ThisYear& thisYear) {
    constexpr int AllDigits = 8; // 20240503
    const Written first = scanner.written(1, AllDigits);
    if (first.digits == AllDigits && first.value / 10000 >= FirstYear)
        return validDay(first.value / 10000, first.value / 100 % 100, first.value % 100);
    const auto separator = scanner.takeAny(u"-/.年月");
    if (!separator || first.digits > 4)
        return std::nullopt;
    if (*separator == u'年' || *separator == u'月')
        return readWords(scanner, first, *separator == u'年', thisYear);
    return readMarked(scanner, first, *separator, thisYear);
}

/// The number of a few characters that are to be digits; -1 when one of them is none. Takes bytes and 16-bit texts.
template<typename View>
int digitsOf(View text) {
    int value = 0;
    for (const auto character : text) {
        const QChar c(character);
        if (c < u'0' || c > u'9')
            return -1;
        value = value * 10 + (c.unicode() - u'0');
    }
    return value;
}

template<typename View>
bool hasMark(View text, qsizetype at, char16_t mark) {
    return QChar(text[at]) == mark;
}

struct DayNumbers {
    int year, month, day;
};

/// The day of a text of ten characters, "2024-05-03".
template<typename View>
std::optional<DayNumbers> isoDay(View text) {
    if (text.size() != 10 || !hasMark(text, 4, u'-') || !hasMark(text, 7, u'-'))
        return std::nullopt;
    const DayNumbers read{digitsOf(text.first(4)), digitsOf(text.sliced(5, 2)), digitsOf(text.sliced(8))};
    const bool valid = read.year >= FirstYear && QDate::isValid(read.year, read.month, read.day);
    return valid ? std::optional(read) : std::nullopt;
}

/// The time of a text of nine characters, " 08:05:09"; an invalid one when it is none.
QTime isoTime(QStringView text) {
    if (text.size() != 9 || !hasMark(text, 0, u' ') || !hasMark(text, 3, u':') || !hasMark(text, 6, u':'))
        return {};
    return QTime(digitsOf(text.sliced(1, 2)), digitsOf(text.sliced(4, 2)), digitsOf(text.sliced(7)));
}

/// Hours and minutes, and seconds if they stand there; an invalid time when it is none.
QTime readTime(Scanner& scanner) {
    const int hour = scanner.number(1, 2);
    if (!scanner.take(u':'))
        return {};
    const int minute = scanner.number(1, 2);
    const int second = scanner.take(u':') ? scanner.number(1, 2) : 0;
    return QTime(hour, minute, second);
}

/// Joins numbers and marks; a table of dates is read and written in one go, so no string is made on the way.
class Joiner {
public:
    Joiner& number(int value, int width = 1) {
        std::array<char16_t, 12> digits;
        size_t count = 0;
        for (; value > 0 || static_cast<int>(count) < width; value /= 10)
            digits[count++] = static_cast<char16_t>(u'0' + value % 10);
        while (count > 0)
            m_text[m_length++] = digits[--count];
        return *this;
    }

    Joiner& mark(char16_t mark) {
        m_text[m_length++] = mark;
        return *this;
    }

    Joiner& date(const QDate& day, int yearWidth, int width) {
        int year = 0;
        int month = 0;
        int dayOfMonth = 0;
        day.getDate(&year, &month, &dayOfMonth);
        return date(year, yearWidth, month, dayOfMonth, width);
    }

    Joiner& date(int year, int yearWidth, int month, int dayOfMonth, int width) {
        return number(year, yearWidth).mark(u'-').number(month, width).mark(u'-').number(dayOfMonth, width);
    }

    Joiner& time(const QTime& time, int hourWidth) {
        return number(time.hour(), hourWidth).mark(u':').number(time.minute(), 2).mark(u':').number(time.second(), 2);
    }

    QString text() const { return QStringView(m_text.data(), static_cast<qsizetype>(m_length)).toString(); }

private:
    std::array<char16_t, 32> m_text;
    size_t m_length = 0;
};

} // namespace

QString dateText(const QDate& day) {
    return Joiner().date(day, 1, 1).text();
}

QString timeText(const QTime& time) {
    return Joiner().time(time, 1).text();
}

QString DateValue::text() const {
    Joiner joiner;
    joiner.date(day, 1, 1);
    if (time.isValid())
        joiner.mark(u' ').time(time, 1);
    return joiner.text();
}

QString DateValue::iso() const {
    Joiner joiner;
    joiner.date(day, 4, 2);
    if (time.isValid())
        joiner.mark(u' ').time(time, 2);
    return joiner.text();
}

std::optional<DateValue> parseDate(const QString& text, const ThisYear& thisYear) {
    const QString trimmed = text.trimmed();
    Scanner scanner(trimmed);
    const auto read = readDay(scanner, thisYear);
    if (!read)
        return std::nullopt;
    DateValue value{read->day, {}};
    if (!read->monthAlone && scanner.take(u' ')) {
        value.time = readTime(scanner);
        if (!value.time.isValid())
            return std::nullopt;
    }
    return scanner.atEnd() ? std::optional(value) : std::nullopt;
}

std::optional<DateValue> parseIsoDate(const QString& iso) {
    constexpr qsizetype DayLength = 10;
    const QStringView text = iso;
    const auto read = isoDay(text.left(DayLength));
    if (!read)
        return std::nullopt;
    const QTime time = isoTime(text.mid(DayLength));
    if (text.size() > DayLength && !time.isValid())
        return std::nullopt;
    return DateValue{QDate(read->year, read->month, read->day), time};
}

std::optional<QString> textOfIsoDay(QByteArrayView iso) {
    if (!isoDay(iso))
        return std::nullopt;
    // The same without the zeros at the head of its parts. Written where it stays: long lists ask for many.
    QString text(iso.size(), Qt::Uninitialized);
    QChar* end = text.data();
    bool head = true;
    for (const char character : iso) {
        if (head && character == '0')
            continue;
        head = character == '-';
        *end++ = QLatin1Char(character);
    }
    text.truncate(end - text.constData());
    return text;
}

} // namespace qinghe
