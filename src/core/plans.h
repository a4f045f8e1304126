#pragma once

#include "core/shared.h"

/// The plans of the schedule, in `rcb`.
namespace qinghe::plans {

/// Opens the plans of a day on the control, all columns.
Recordset& ofDay(Adodc& control, const QDate& day);
/// The same for the watch, which asks every second: these columns alone. Its query has blanks inside the marks of the
/// date, so that whoever looks at the control sees who asked.
Recordset& watched(Adodc& control, const QDate& day, QStringView columns);

/// What the lists of today's plans say where there is none.
inline constexpr QStringView NoneToday = u"您还未添加今日日程！";

} // namespace qinghe::plans
