#pragma once

#include "store/column.h"

#include <QByteArray>

namespace qinghe {

/// A name as it stands in SQL.
QByteArray quotedName(const QString& name);

/// The first `length` characters of a column's text. A date column is cut in its text form, "2024-5-3". The indexes
/// that answer month queries are made of this very expression, and only while both are equal are they used.
QByteArray leftSql(const Column& column, int length);

} // namespace qinghe
