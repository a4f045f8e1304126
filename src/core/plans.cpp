#include "core/plans.h"

namespace qinghe::plans {

using namespace Qt::StringLiterals;

Recordset& ofDay(Adodc& control, const QDate& day) {
    return control.open(u"select * from rcb where 日程日期= #"_s + dateText(day) + u"# "_s);
}

Recordset& watched(Adodc& control, const QDate& day, QStringView columns) {
    return control.open(u"select "_s + columns.toString() + u" from rcb where 日程日期= # "_s + dateText(day) +
                        u" # "_s);
}

} // namespace qinghe::plans
