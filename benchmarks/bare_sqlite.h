#pragma once

#include <QString>

#include <string>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace qinghe::benchmarks {

/// SQLite's own interface with nothing around it: the reference of the store's measures. A failure ends the process.
class Bare {
public:
    explicit Bare(const QString& path, const char* vfs = nullptr);
    ~Bare();
    Bare(const Bare&) = delete;
    Bare& operator=(const Bare&) = delete;

    void run(const QString& sql);
    /// Steps through all rows and looks at every column's value.
    void read(const QString& sql);
    sqlite3_stmt* prepare(const QString& sql);

private:
    sqlite3* m_db = nullptr;
};

/// What opening the income page reads and rewrites: the statistics' source, the old statistics emptied, the new ones
/// written, the table, its total, and the table again for delete and save; one durable transaction.
void openIncomeBare(Bare& db);

/// The rows of a table as the grids and the saves know them: texts, but for the last column, which is the row's number.
struct Cells {
    QString table;
    int columns = 0;           ///< without the last one
    std::vector<bool> numbers; ///< which of them hold numbers
    int rows = 0;
    std::vector<std::string> texts; ///< row by row
};
/// What saving a list of categories writes: the table emptied, then the first columns of the rows under these names.
void saveNamesBare(Bare& db, const Cells& cells, const QString& columns);

/// What the chart of income by month does: the ledger read, the work table emptied and filled by month, its sums.
void gatherMonthsBare(Bare& db);

Cells readCells(Bare& db, const QString& table);
/// What saving a page writes: one statement that empties the table and prepared inserts of the same rows, one durable
/// transaction.
void saveBare(Bare& db, const Cells& cells);

} // namespace qinghe::benchmarks
