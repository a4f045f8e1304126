#pragma once

#include "measure.h"

namespace qinghe::benchmarks {

/// Backs up and restores a data file of 100 MB, window, bar and durability included, against the machine's own copying
/// and syncing of such a file.
void measureBackupCopies(Report& report);

} // namespace qinghe::benchmarks
