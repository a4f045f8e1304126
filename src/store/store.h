#pragma once

#include "store/column.h"

#include <QString>

#include <chrono>
#include <functional>
#include <memory>
#include <span>

namespace qinghe {

class HeldFile;
class ResultSet;
struct ResultShape;
struct StoredValue;

/// The one open data file of the process, shared by all data controls. Opened by the first use, without ever creating
/// the file. Rollback journal, durable commits. A file of an earlier version is brought up to date as it is opened, one
/// of a later version is refused (StoreFailure); see migrations.h.
///
/// Unit of work: the first write opens a transaction; commit() ends it. The handler guard calls commit() when the
/// outermost handler returns, before any message box, and when a run-time error stops a handler. A store that goes out
/// of scope commits nothing.
///
/// Errors: every failure is a RuntimeError with a Chinese text (file missing or no store: FileNotFound or StoreFailure,
/// disk full: DiskFull, folder or file not writable: PathFileAccess, file held by another program: FileLocked, disk
/// error: DeviceFailure, a query that the dialect refuses, a table or column that is not there: QueryFailure). When the
/// file itself fails, in the middle of the work as at its end, the open unit of work is undone as a whole; a refused
/// query or value leaves it as it is. After StoreFailure the file is opened anew by the next use.
class Store {
public:
    /// `thisYear` tells the year that a day without one belongs to, in what is written and in queries; a store that is
    /// not told takes no such day.
    explicit Store(ThisYear thisYear = {});
    ~Store();
    Store(const Store&) = delete;
    Store& operator=(const Store&) = delete;

    /// Makes `path` the file in use; the connection opens with the first use. Closes another file that was open.
    void use(const QString& path);
    const QString& path() const;

    /// Runs a source (a table name or one SELECT of the dialect) and gives all its rows. The store remembers no result:
    /// who needs the same rows again keeps them (LoadedSet).
    std::shared_ptr<ResultSet> fetch(const QString& source);

    /// Between handlers: lets go what was read. Results forget their values but for sums, groups and distinct ones;
    /// their rows keep their identities, and a value that is asked for later is read again. Gives about how many bytes
    /// were let go.
    size_t rest();

    bool inTransaction() const;
    /// Ends the unit of work durably; nothing happens when none is open. Throws RuntimeError (the work is then lost).
    void commit();
    /// Commits and closes, so that the file's bytes may be touched; the next use opens anew and recordsets made before
    /// are void. The file is closed even when the commit throws.
    void close();
    /// Whether the file itself has failed: the unit of work that was open then, if any, was undone.
    bool hasUndone() const;
    /// While it lives nobody changes the file, so that its bytes can be copied. Whoever copies them opens the file once
    /// and closes it when all is read: on some systems the process lets go of its locks on a file with the first
    /// closing of any descriptor of it.
    class Stillness {
    public:
        ~Stillness();
        Stillness(const Stillness&) = delete;
        Stillness& operator=(const Stillness&) = delete;

    private:
        friend Store;
        explicit Stillness(Store& store) : m_store(store) {}
        Store& m_store;
    };
    /// Ends the unit of work first. A file that is missing or cannot be read is not held; its bytes are what they are.
    /// Throws RuntimeError: FileLocked, and what commit() throws.
    [[nodiscard]] Stillness holdStill();

    /// How long the store waits for another program that holds the file, before it throws FileLocked; some seconds when
    /// it is not told.
    void setPatience(std::chrono::milliseconds patience);
    /// Runs what reads and comes again by itself, such as a tick, without any waiting: false when another program holds
    /// the file, with nothing lost.
    bool tryNow(const std::function<void()>& reading);

    /// Runs a unit of work of its own that can be done without: false when the disk is full, with nothing of it done.
    /// What was open before is ended first. Throws RuntimeError: what commit() throws then, and all but DiskFull.
    bool tryToWrite(const std::function<void()>& writing);

    /// Counts the closings: what was read under another number is void. A file that was replaced under its name counts
    /// as closed at the next use.
    int generation() const;

    /// While a unit of work is open: the file as it lies on the disk, and the journal that leads back to the last
    /// commit, where something has reached the file. They hold still until the next call on the store.
    HeldFile heldFile() const;
    HeldFile heldJournal() const;

    /// Throws RuntimeError (QueryFailure) when there is no such table.
    const TableColumns& columns(const QString& table);

    // For recordsets only.
    /// Whether the file is still the one that was open under that number.
    bool isCurrent(int generation);
    const ThisYear& thisYear() const;
    /// Throws RuntimeError (StoreFailure) unless the file is still the one that was open under that number.
    void requireGeneration(int generation);
    /// The stored rows between two identities, in the shape of a plain result.
    std::shared_ptr<const ResultSet> fetchAgain(const ResultShape& shape, qint64 first, qint64 last);
    /// Inserts a row and gives its identity. `values` stand beside the named columns; other columns stay NULL.
    qint64 insertRow(const QString& table, std::span<const int> ordinals, std::span<const StoredValue> values);
    void updateRow(const QString& table, qint64 rowid, std::span<const int> ordinals,
                   std::span<const StoredValue> values);
    /// Deletes a row; deletions are collected and reach the file together, before anything else is read or written. A
    /// row that is already gone is no failure.
    void deleteRow(const QString& table, qint64 rowid);

private:
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace qinghe
