#pragma once

#include "measure.h"

namespace qinghe::benchmarks {

/// What the reminders cost: the plans of a day, one comparison among a full table of plans, a minute at rest, and many
/// days of seconds in which every plan must ring once.
void measureReminders(Report& report);

/// How many seconds the figure "rest" of child_runs.h looks at.
inline constexpr int RestSeconds = 60;

} // namespace qinghe::benchmarks
