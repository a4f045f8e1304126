#pragma once

#include "runtime/value.h"
#include "store/column.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

namespace qinghe {

class ResultSet;

/// The one open data file of the process, shared by all data controls. Opened by the first use, without ever creating
/// the file. Rollback journal, durable commits.
///
/// Unit of work: the first write opens a transaction; commit() ends it. The handler guard calls commit() when the
/// outermost handler returns, before any message box, and when a run-time error stops a handler.
///
/// Errors: every failure is a RuntimeError with a Chinese text (file missing or no store: StoreFailure or FileNotFound,
/// disk full: DiskFull, folder or file not writable: PathFileAccess, a query that the dialect refuses: QueryFailure,
/// a value that a column refuses: TypeMismatch).
class Store {
public:
    Store();
    ~Store();
    Store(const Store&) = delete;
    Store& operator=(const Store&) = delete;

    /// Makes `path` the file in use; the connection opens with the first use. Closes another file that was open.
    void use(const QString& path);
    const QString& path() const;

    /// Runs a source (a table name or one SELECT of the dialect) and gives all its rows. A repeated source is answered
    /// from the last result as long as nothing has been written since, by us or by another process.
    std::shared_ptr<ResultSet> fetch(const QString& source);

    bool inTransaction() const;
    /// Ends the unit of work durably; nothing happens when none is open. Throws RuntimeError (the work is then lost).
    void commit();
    /// Commits and closes, so that the file's bytes may be touched; the next use opens anew and recordsets made before
    /// are void.
    void close();
    /// Counts the closings: what was read under another number is void.
    int generation() const;

    // For recordsets only.
    /// Inserts a row and gives its identity. `values` stand beside the named columns.
    qint64 insertRow(const QString& table, const std::vector<int>& ordinals, const std::vector<Value>& values);
    void updateRow(const QString& table, qint64 rowid, const std::vector<int>& ordinals,
                   const std::vector<Value>& values);
    /// Deletes a row; deletions are collected and reach the file together, before anything else is read or written.
    void deleteRow(const QString& table, qint64 rowid);
    /// Deletes every row whose `column` holds exactly `value` (NULL included).
    void deleteRowsWith(const QString& table, const QString& column, const Value& value);
    const TableColumns& columns(const QString& table);

private:
    struct Impl;
    std::unique_ptr<Impl> m;
};

} // namespace qinghe
