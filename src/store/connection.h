#pragma once

#include "store/held_file.h"
#include "store/statement.h"

#include <chrono>
#include <memory>

namespace qinghe {

/// How long one waits for another program that holds the file, before that is a failure (FileLocked).
using Patience = std::chrono::milliseconds;
inline constexpr Patience UsualPatience{5000};

/// An open data file, through the header shim, set up for durable commits with a rollback journal. Every failure is a
/// RuntimeError.
class Connection {
public:
    /// Never makes a file.
    explicit Connection(const QString& path, Patience patience = UsualPatience);
    /// Makes a new file, without tables, for its owner alone. Throws PathFileAccess when there is one, or none can be.
    static Connection made(const QString& path);

    const QString& path() const { return m_path; }

    void setPatience(Patience patience);

    Statement prepare(const QByteArray& sql);
    void run(const QByteArray& sql) { prepare(sql).execute(); }

    bool inTransaction() const;
    /// Takes the right to write, or throws.
    void begin() { m_begin.execute(); }
    /// Begins a transaction that only keeps others from changing the file.
    void hold();
    void commit() { m_commit.execute(); }
    /// Gives up the open transaction, if there is one. Never throws: what can not be undone now is undone by whoever
    /// opens the file next.
    void rollBack() noexcept;

    /// Makes a new file at `path` with the same pages, durably. Call it outside a transaction.
    void copyTo(const QString& path);

    /// The open file and its journal, as they lie on the disk.
    HeldFile heldFile() const;
    HeldFile heldJournal() const;

    /// The number of its form that the file bears, whatever it is; see migrations.h.
    int version();
    void setVersion(int version);

    /// Gives the pages of the file that are kept in memory back, where they are many; gives their size in bytes.
    size_t giveBackPages();

    /// Changes whenever another connection has written.
    qint64 dataVersion();
    /// Whether the file is no longer the one that its path names.
    bool fileMoved() const;

private:
    struct Closer {
        void operator()(sqlite3* database) const;
    };
    static sqlite3* opened(const QString& path, Patience patience);

    QString m_path;
    std::unique_ptr<sqlite3, Closer> m_database;
    Statement m_begin;
    Statement m_commit;
    Statement m_dataVersion;
};

} // namespace qinghe
