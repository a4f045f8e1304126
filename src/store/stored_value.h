#pragma once

#include "runtime/value.h"
#include "store/column.h"

#include <QByteArray>

namespace qinghe {

/// How SQLite stores a value.
enum class Storage : quint8 { Null, Integer, Real, Text, Blob };

/// A value as it lies in the file: booleans as 0 and 1, dates as ISO text, text as UTF-8.
struct StoredValue {
    Storage storage = Storage::Null;
    qint64 integer = 0;
    double real = 0;
    QByteArray bytes = {}; ///< of a text or a blob; may be a view of memory that someone else holds
};

StoredValue encoded(const Value& value);

/// What a stored value means in a column of that kind. What another program left there and the kind can not hold is
/// handed through as it is: a date column may so give a text.
Value decoded(const StoredValue& stored, ColumnKind kind);

/// decoded(...).text(), without the way round where there is a shorter one.
QString decodedText(const StoredValue& stored, ColumnKind kind);

} // namespace qinghe
