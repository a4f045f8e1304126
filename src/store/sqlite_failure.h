#pragma once

#include <QString>

namespace qinghe {

/// Turns one of SQLite's (extended) result codes into the run-time error that a user can act on. `path` is the data
/// file; `detail` is SQLite's own text.
[[noreturn]] void throwSqliteFailure(int code, const QString& path, const QString& detail);

} // namespace qinghe
