#pragma once

#include "store/stored_value.h"

#include <memory>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace qinghe {

/// A prepared statement of SQLite. Every failure is a RuntimeError; after one the statement is reset and can be used
/// again.
class Statement {
public:
    /// `path` is named in errors.
    Statement(sqlite3* database, const QByteArray& sql, const QString& path);

    /// Places count from 1. A value stays bound until another takes its place; what nothing is bound to is NULL.
    void bind(int place, const StoredValue& value);
    void bind(int place, qint64 integer);
    void clearBindings();

    /// The next row; false behind the last one, when the statement is ready for another run.
    bool step();
    /// Runs a statement that gives no rows.
    void execute() {
        while (step()) {
        }
    }
    /// The value of a column of the current row; texts and blobs are good until the next step.
    StoredValue column(int ordinal) const;
    qint64 integer(int ordinal) const;

private:
    struct Finalizer {
        void operator()(sqlite3_stmt* statement) const;
    };
    void check(int code);

    sqlite3* m_database;
    QString m_path;
    std::unique_ptr<sqlite3_stmt, Finalizer> m_statement;
    std::vector<QByteArray> m_bound; ///< keeps the bytes of what is bound
};

} // namespace qinghe
