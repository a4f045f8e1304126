#include "runtime/date_text.h"

#include <QStringView>

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
    if (words && !monthClosed)
        return std::nullopt;
    const int day = monthClosed ? scanner.number(1, 2) : -1;
    const bool monthAlone = day < 0;
    const bool complete = monthAlone ? words == monthClosed : !words || scanner.take(u'日');
    const QDate date(year, month, monthAlone ? 1 : day);
    return complete && date.isValid() ? std::optional(ReadDay{date, monthAlone}) : std::nullopt;
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

QString padded(int number, int width) {
    return QString::number(number).rightJustified(width, u'0');
}

} // namespace

QString dateText(const QDate& day) {
    return QString::number(day.year()) + u'-' + QString::number(day.month()) + u'-' + QString::number(day.day());
}

QString timeText(const QTime& time) {
    return QString::number(time.hour()) + u':' + padded(time.minute(), 2) + u':' + padded(time.second(), 2);
}

QString DateValue::text() const {
    return time.isValid() ? dateText(day) + u' ' + timeText(time) : dateText(day);
}

QString DateValue::iso() const {
    const QString date = padded(day.year(), 4) + u'-' + padded(day.month(), 2) + u'-' + padded(day.day(), 2);
    return time.isValid() ? date + u' ' + padded(time.hour(), 2) + timeText(time).right(6) : date;
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

} // namespace qinghe
