#pragma once

#include "measure.h"

namespace qinghe::benchmarks {

/// What is done to the whole book now and then, with full tables, against the same statements in bare SQLite.
void measureUpkeep(Report& report);

} // namespace qinghe::benchmarks
