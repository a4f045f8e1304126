#include "runtime/months.h"

namespace qinghe::months {

using namespace Qt::StringLiterals;

QString ofCalendar(const QDate& day) {
    return ofDay(u"%1-%2-%3"_s.arg(day.year()).arg(day.month()).arg(day.day()));
}

int inCalendar(QStringView key) {
    constexpr int MonthsOfAYear = 12;
    const QList<QStringView> parts = key.split(u'-');
    return parts.size() < 2 ? 0 : parts[0].toInt() * MonthsOfAYear + parts[1].toInt();
}

QString thisMonth(const QDate& today) {
    return u"%1-%2"_s.arg(today.year()).arg(today.month());
}

QString lastMonth(const QDate& today) {
    return u"%1-0%2"_s.arg(today.year()).arg(today.month() - 1);
}

} // namespace qinghe::months
