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

/// Whether a value is the same again, storage and bytes, once its text (`text`, as decodedText gives it) is written
/// into a column of that kind. Not so a text in a date or a number column, bytes that are no UTF-8, a mark of byte
/// order, a number of more digits than are shown: what another program or a failing disk left there.
bool comesBack(const StoredValue& stored, const QString& text, ColumnKind kind);

} // namespace qinghe
