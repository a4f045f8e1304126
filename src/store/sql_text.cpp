#include "store/sql_text.h"

namespace qinghe {

namespace {

constexpr int ShortestDateAndBlank = 8; // "100-1-1 "

/// The text form of a date column: the ISO text without the zeros that pad year, month, day and hour. As long as the
/// hour can not be among the first `length` characters it is left alone.
QByteArray dateTextSql(const QByteArray& column, int length) {
    const QByteArray date = "replace(" + column + ",'-0','-')";
    return "ltrim(" + (length > ShortestDateAndBlank ? "replace(" + date + ",' 0',' ')" : date) + ",'0')";
}

} // namespace

QByteArray quotedName(const QString& name) {
    return '"' + name.toUtf8().replace("\"", "\"\"") + '"';
}

QByteArray leftSql(const Column& column, int length) {
    const QByteArray name = quotedName(column.name);
    const QByteArray text = column.kind == ColumnKind::Date ? dateTextSql(name, length) : name;
    return "substr(" + text + ",1," + QByteArray::number(length) + ')';
}

} // namespace qinghe
