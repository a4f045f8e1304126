#include "runtime/months.h"

namespace qinghe::months {

using namespace Qt::StringLiterals;

QString thisMonth(const QDate& today) {
    return u"%1-%2"_s.arg(today.year()).arg(today.month());
}

QString lastMonth(const QDate& today) {
    return u"%1-0%2"_s.arg(today.year()).arg(today.month() - 1);
}

} // namespace qinghe::months
