#pragma once

#include "measure.h"

namespace qinghe::benchmarks {

/// Opens and saves each page of the ledger with full tables, and shows the month's reports, against the same statements
/// in bare SQLite.
void measureLedgerPages(Report& report);

} // namespace qinghe::benchmarks
