#pragma once

#include "store/column.h"

#include <QStringView>

#include <span>

namespace qinghe {

struct SchemaColumn {
    QStringView name;
    ColumnKind kind;
};

struct SchemaTable {
    QStringView name;
    std::span<const SchemaColumn> columns; ///< in ordinal order
};

/// All tables of a data file. None has a key: rows are found by their place.
std::span<const SchemaTable> schemaTables();

/// Makes a new data file with all tables, empty, of the version CurrentVersion, readable and writable by its owner
/// alone. For whoever delivers the program and for tests; the program itself never makes one. Throws RuntimeError:
/// PathFileAccess when the file exists or can not be made, and what a store throws.
void createStore(const QString& path);

} // namespace qinghe
