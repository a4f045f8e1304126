#pragma once

#include "runtime/value.h"

#include <QString>

#include <vector>

namespace qinghe {

/// What a column can hold. The names in brackets are the declared types in the file.
enum class ColumnKind {
    Text,    ///< [TEXT]
    Number,  ///< [NUMBER] a double
    Integer, ///< [INTEGER]
    Boolean, ///< [BOOLEAN] 0 or 1
    Date,    ///< [DATE] ISO text
    Binary,  ///< [BLOB]
};

struct Column {
    QString name;
    ColumnKind kind;
};

using TableColumns = std::vector<Column>; ///< in ordinal order

/// The declared type of a kind, and back (throws RuntimeError, store failure, for an unknown one).
QString declaredType(ColumnKind kind);
ColumnKind kindOfDeclaredType(const QString& type);

/// Brings a value into the kind of its column: a date column takes dates and every text that parseDate reads, a day
/// without its year being of `thisYear`; a number column what the full number conversion takes. NULL passes. Throws
/// RuntimeError (type mismatch) that names the column and the value.
Value converted(const Column& column, const Value& value, const ThisYear& thisYear = {});

/// Why `converted` refuses a value for the column, in two words ("不是日期"); nothing where it takes it.
QString refusal(const Column& column, const Value& value, const ThisYear& thisYear = {});

} // namespace qinghe
