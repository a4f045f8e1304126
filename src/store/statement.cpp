#include "store/statement.h"

#include "store/sqlite_failure.h"

#include <sqlite3.h>

#include <algorithm>

namespace qinghe {

void Statement::Finalizer::operator()(sqlite3_stmt* statement) const {
    sqlite3_finalize(statement);
}

Statement::Statement(sqlite3* database, const QByteArray& sql, const QString& path)
    : m_database(database), m_path(path) {
    sqlite3_stmt* statement = nullptr;
    const int code = sqlite3_prepare_v2(database, sql.constData(), static_cast<int>(sql.size()), &statement, nullptr);
    m_statement.reset(statement);
    check(code);
    m_bound.resize(static_cast<size_t>(sqlite3_bind_parameter_count(statement)));
}

void Statement::bind(int place, const StoredValue& value) {
    const auto kept = [&]() -> const QByteArray& { return m_bound.at(static_cast<size_t>(place - 1)) = value.bytes; };
    const auto length = static_cast<sqlite3_uint64>(value.bytes.size());
    switch (value.storage) {
    case Storage::Null:
        return check(sqlite3_bind_null(m_statement.get(), place));
    case Storage::Integer:
        return check(sqlite3_bind_int64(m_statement.get(), place, value.integer));
    case Storage::Real:
        return check(sqlite3_bind_double(m_statement.get(), place, value.real));
    case Storage::Text:
        return check(sqlite3_bind_text64(m_statement.get(), place, kept().constData(), length, nullptr, SQLITE_UTF8));
    case Storage::Blob:
        return check(sqlite3_bind_blob64(m_statement.get(), place, kept().constData(), length, nullptr));
    }
}

void Statement::bind(int place, qint64 integer) {
    check(sqlite3_bind_int64(m_statement.get(), place, integer));
}

void Statement::clearBindings() {
    sqlite3_clear_bindings(m_statement.get());
    std::ranges::fill(m_bound, QByteArray());
}

bool Statement::step() {
    const int code = sqlite3_step(m_statement.get());
    if (code == SQLITE_ROW)
        return true;
    sqlite3_reset(m_statement.get());
    check(code == SQLITE_DONE ? SQLITE_OK : code);
    return false;
}

StoredValue Statement::column(int ordinal) const {
    sqlite3_value* value = sqlite3_column_value(m_statement.get(), ordinal);
    const auto bytes = [value](const void* data) {
        return QByteArray::fromRawData(static_cast<const char*>(data), sqlite3_value_bytes(value));
    };
    switch (sqlite3_value_type(value)) {
    case SQLITE_INTEGER:
        return {.storage = Storage::Integer, .integer = sqlite3_value_int64(value)};
    case SQLITE_FLOAT:
        return {.storage = Storage::Real, .real = sqlite3_value_double(value)};
    case SQLITE_TEXT:
        return {.storage = Storage::Text, .bytes = bytes(sqlite3_value_text(value))};
    case SQLITE_BLOB:
        return {.storage = Storage::Blob, .bytes = bytes(sqlite3_value_blob(value))};
    default:
        return {};
    }
}

qint64 Statement::integer(int ordinal) const {
    return sqlite3_column_int64(m_statement.get(), ordinal);
}

void Statement::check(int code) {
    if (code == SQLITE_OK)
        return;
    throwSqliteFailure(sqlite3_extended_errcode(m_database), m_path, QString::fromUtf8(sqlite3_errmsg(m_database)));
}

} // namespace qinghe
