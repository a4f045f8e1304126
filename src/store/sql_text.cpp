#include "store/sql_text.h"

namespace qinghe {

namespace {

/// The text form of a date column: the ISO text without the zeros that pad year, month, day and hour.
QByteArray dateTextSql(const QByteArray& column) {
    return "ltrim(replace(replace(" + column + ",'-0','-'),' 0',' '),'0')";
}

} // namespace

QByteArray quotedName(const QString& name) {
    return '"' + name.toUtf8().replace("\"", "\"\"") + '"';
}

QByteArray leftSql(const Column& column, int length) {
    const QByteArray name = quotedName(column.name);
    const QByteArray text = column.kind == ColumnKind::Date ? dateTextSql(name) : name;
    return "substr(" + text + ",1," + QByteArray::number(length) + ')';
}

} // namespace qinghe
