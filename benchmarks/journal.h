#pragma once

#include "measure.h"

namespace qinghe::benchmarks {

/// Lists ten thousand diary entries against the same query in bare SQLite, and shows a long one.
void measureJournal(Report& report);

} // namespace qinghe::benchmarks
