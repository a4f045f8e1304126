#pragma once

#include <QByteArrayView>
#include <QDate>
#include <QDateTime>
#include <QString>

#include <functional>
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

/// Tells the year that a day without one belongs to. An empty one tells none: such a day is no date then.
using ThisYear = std::function<int()>;

/// Reads the picker's text and what a Chinese household writes for a day: 2024-5-3, 2024/5/3, 2024.5.3, 2024年5月3日,
/// 20240503; 24-5-3 (two digits: 00 to 29 are 2000 to 2029, 30 to 99 are 1930 to 1999); 5-3 and 5月3日 (this year);
/// a month alone (2024-5, 2024年5月: the first of it); a time behind one blank of a day (8:05, 8:05:09). 号 stands for
/// 日, full-width digits and marks for the plain ones, 。 for "."; blanks around and zeros in front do no harm. Years
/// 100 to 9999. std::nullopt for anything else, "2024-13-1", "24-5", "2024-5-", "24:00" behind a date and "" included.
std::optional<DateValue> parseDate(const QString& text, const ThisYear& thisYear = {});

/// The text form of a day in the store's own ISO text of ten characters, in one step; std::nullopt when it is none, or
/// when a time stands behind it.
std::optional<QString> textOfIsoDay(QByteArrayView iso);

/// Reads the store's own ISO text, and no other spelling of the same moment. std::nullopt when it is none.
std::optional<DateValue> parseIsoDate(const QString& iso);

} // namespace qinghe
