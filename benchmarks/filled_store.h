#pragma once

#include <QString>

struct sqlite3;

namespace qinghe::benchmarks {

inline constexpr int FullTable = 32767; ///< the most rows that a page can save

/// Fills every ledger table and the plans of a delivered data file with `rows` rows each.
void fillTables(const QString& dataFile, int rows);

/// Copies a data file to `copy` as the plain SQLite file that it is but for two bytes.
void plainCopy(const QString& dataFile, const QString& copy);

} // namespace qinghe::benchmarks
