#pragma once

#include <QString>

namespace qinghe {

/// Makes a new data file with all tables, empty: those of version 1, none of which has a key (rows are found by their
/// place), brought to CurrentVersion by the steps of migrations.h. It is readable and writable by its owner
/// alone. For whoever delivers the program and for tests; the program itself never makes one. Throws RuntimeError:
/// PathFileAccess when the file exists or can not be made, and what a store throws.
void createStore(const QString& path);

} // namespace qinghe
