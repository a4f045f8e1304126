#pragma once

#include <QDate>
#include <QString>

/// The months by which ledgers are summed. A month is told by the first seven characters of a day's text form, which is
/// "2024-5-" in May and "2024-10" in October, and compared with keys that were made otherwise. Both are meant as they
/// are: together they decide which rows are counted.
namespace qinghe::months {

inline constexpr int Length = 7; ///< characters

/// What of a day's text form tells its month.
inline QString ofDay(const QString& dateText) {
    return dateText.left(Length);
}

/// What the days of a calendar month have in common, all of them and no others: "2024-5-", "2024-10".
QString ofCalendar(const QDate& day);

/// A key's place in the calendar: a later month has a greater one, whatever the order of the texts ("2024-10" stands
/// before "2024-9-" there). What names no month comes before all.
int inCalendar(QStringView key);

/// The key of this month: year, "-", month without a leading zero.
QString thisMonth(const QDate& today);
/// The key of last month: the year, "-", "0" and the month before without further care (00 in January, 010 in
/// November).
QString lastMonth(const QDate& today);

} // namespace qinghe::months
