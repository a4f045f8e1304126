#pragma once

#include "store/connection.h"
#include "store/result_set.h"

#include <QHash>

#include <map>
#include <span>

namespace qinghe {

/// The store's work on one opened file: fetching, writing rows, collecting deletions. Dies with the connection;
/// whatever it remembers of the file is good only as long. Every failure is a RuntimeError; what to do after one is
/// decided by Store.
class Session {
public:
    /// Opens the file and brings it up to date. `thisYear` is the store's, which outlives its sessions.
    Session(const QString& path, const ThisYear& thisYear, Patience patience);
    void setPatience(Patience patience) { m_connection.setPatience(patience); }

    std::shared_ptr<ResultSet> fetch(const QString& source);
    std::shared_ptr<ResultSet> fetchAgain(const ResultShape& shape, qint64 first, qint64 last);
    size_t rest();
    const TableColumns& columns(const QString& table);

    bool inTransaction() const { return m_connection.inTransaction(); }
    bool fileMoved() const { return m_connection.fileMoved(); }
    void hold() { m_connection.hold(); }
    HeldFile heldFile() const { return m_connection.heldFile(); }
    HeldFile heldJournal() const { return m_connection.heldJournal(); }
    void commit();
    void rollBack() noexcept;

    qint64 insertRow(const QString& table, std::span<const int> ordinals, std::span<const StoredValue> values);
    void updateRow(const QString& table, qint64 rowid, std::span<const int> ordinals,
                   std::span<const StoredValue> values);
    void deleteRow(const QString& table, qint64 rowid);

private:
    /// The statement that inserts into a table, kept: to prepare it for each row takes three quarters of a save (ten
    /// years of expenses: 38 ms, not 9).
    struct Inserter {
        Statement statement;
        qint64 lastRowid;
        std::vector<int> ordinals = {}; ///< of the columns that are bound; the others are NULL
    };
    /// Deleted rows on their way to the file, many a statement: one by one they take a third of a save (ten years of
    /// expenses: 5 ms, not 0.2; 100,000 rows: 150 ms, not 3).
    struct Deletions {
        QString table;
        std::vector<qint64> rowids;
    };

    void beginWriting();
    void forgetIfChangedElsewhere();
    std::shared_ptr<ResultSet> rowsOf(Statement& statement, const ResultShape& shape);
    qint64 highestRowid(const QString& table);
    Inserter& inserter(const QString& table);
    void flushDeletions();
    bool isWholeTable(const Deletions& deletions);

    const ThisYear& m_thisYear;
    Connection m_connection;
    qint64 m_dataVersion = 0;
    std::vector<std::weak_ptr<ResultSet>> m_lent; ///< whose values go when the store rests
    QHash<QString, TableColumns> m_columns;
    std::map<QString, Inserter> m_inserters;
    Deletions m_deletions;
};

} // namespace qinghe
