#pragma once

#include <QByteArrayView>
#include <QDate>
#include <QDateTime>
#include <QString>

#include <optional>

namespace qinghe {

/// A day with or without a time of day, as a date column holds it. The store keeps it as ISO text, "2024-05-03" or
/// "2024-05-03 08:05:09"; everyone else sees its text form, the date picker's: "2024-5-3", "2024-5-3 8:05:09".
struct DateValue {
    QDate day;
    QTime time; ///< invalid: the value holds no time of day

    QString text() const; ///< "2024-5-3", "2024-5-3 8:05:09"
    QString iso() const;  ///< "2024-05-03", "2024-05-03 08:05:09"
    bool operator==(const DateValue&) const = default;
};

/// The text form of a day: year, month and day joined with "-", no zero padding.
QString dateText(const QDate& day);
/// The text form of a time of day, "8:05:09".
QString timeText(const QTime& time);

/// Reads the picker's text and the usual Chinese date forms: 2024-5-3, 2024/5/3, 2024.5.3, 2024年5月3日, a month alone
/// (2024-5, 2024年5月: the first of it), a time behind one blank of a full date (8:05, 8:05:09), blanks around. Zeros
/// in front do no harm, so ISO text is read too. Years 100 to 9999. std::nullopt for anything else, "2024-13-1",
/// "2024-5-", "24:00" behind a date and "" included.
std::optional<DateValue> parseDate(const QString& text);

/// The text form of a day in the store's own ISO text of ten characters, in one step; std::nullopt when it is none, or
/// when a time stands behind it.
std::optional<QString> textOfIsoDay(QByteArrayView iso);

/// Reads the store's own ISO text. std::nullopt when it is none.
std::optional<DateValue> parseIsoDate(const QString& iso);

} // namespace qinghe
