#include "runtime/date_text.h"

#include <QStringView>

#include <array>

namespace qinghe {

namespace {

constexpr int kFirstYear = 100;

/// Reads a text from left to right, one piece at a time; a piece that does not stand there leaves the place unmoved.
class Scanner {
public:
    explicit Scanner(QStringView text) : m_text(text) {}

    bool atEnd() const { return m_at == m_text.size(); }

    bool take(QChar c) {
        const bool found = !atEnd() && m_text[m_at] == c;
        m_at += found ? 1 : 0;
        return found;
    }

    /// The separator that stands there, if it is one of those given.
    std::optional<QChar> takeAny(QStringView choices) {
        if (atEnd() || !choices.contains(m_text[m_at]))
            return std::nullopt;
        return m_text[m_at++];
    }

    /// A number of `least` to `most` digits; -1 when there is none.
    int number(qsizetype least, qsizetype most) {
        qsizetype length = 0;
        int value = 0;
        for (; length < most && m_at + length < m_text.size(); ++length) {
            const char16_t c = m_text[m_at + length].unicode();
            if (c < u'0' || c > u'9')
                break;
            value = value * 10 + (c - u'0');
        }
        if (length < least)
            return -1;
        m_at += length;
        return value;
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

std::optional<ReadDay> readDay(Scanner& scanner) {
    const int year = scanner.number(3, 4);
    const auto separator = scanner.takeAny(u"-/.年");
    const int month = scanner.number(1, 2);
    if (!separator || year < kFirstYear)
        return std::nullopt;
    const bool words = *separator == u'年';
    const bool monthClosed = scanner.take(words ? u'月' : *separator);
    const int day = monthClosed ? scanner.number(1, 2) : -1;
    const bool monthAlone = day < 0;
    const bool complete = monthAlone ? words == monthClosed : !words || scanner.take(u'日');
    const QDate date(year, month, monthAlone ? 1 : day);
    return complete && date.isValid() ? std::optional(ReadDay{date, monthAlone}) : std::nullopt;
}

/// The number of a few characters that are to be digits; -1 when one of them is none.
int digitsOf(QByteArrayView text) {
    int value = 0;
    for (const char c : text) {
        if (c < '0' || c > '9')
            return -1;
        value = value * 10 + (c - '0');
    }
    return value;
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

std::optional<DateValue> parseDate(const QString& text) {
    const QString trimmed = text.trimmed();
    Scanner scanner(trimmed);
    const auto read = readDay(scanner);
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
    const auto value = parseDate(iso);
    return value && value->iso() == iso ? value : std::nullopt; // no other spelling of the same moment
}

std::optional<QString> textOfIsoDay(QByteArrayView iso) {
    if (iso.size() != 10 || iso[4] != '-' || iso[7] != '-')
        return std::nullopt;
    const int year = digitsOf(iso.first(4)), month = digitsOf(iso.sliced(5, 2)), day = digitsOf(iso.sliced(8));
    if (year < kFirstYear || !QDate::isValid(year, month, day))
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
