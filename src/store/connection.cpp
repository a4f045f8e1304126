#include "store/connection.h"

#include "runtime/runtime_error.h"
#include "store/header_vfs.h"
#include "store/sqlite_failure.h"

#include <QDir>
#include <QFile>
#include <sqlite3.h>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

/// Page memory in KiB: for the pages of a long save until its commit, and what is kept between handlers, so that the
/// same list is soon read again.
constexpr int WorkingPages = 16000, RestingPages = 1500;

/// Commits that outlast a power cut; pages of a long save stay in memory until the commit; what is deleted is not left
/// readable in the file; damage in a page is noticed as the page is read.
constexpr const char* Settings = "PRAGMA journal_mode = DELETE;"
                                 "PRAGMA synchronous = EXTRA;"
                                 "PRAGMA temp_store = MEMORY;"
                                 "PRAGMA secure_delete = ON;"
                                 "PRAGMA cell_size_check = ON;"
                                 "PRAGMA trusted_schema = OFF;";

struct Switch {
    int what;
    int on;
};
/// Nothing in a file from elsewhere is run, and a name that is mistyped is no text.
constexpr Switch Switches[] = {
    {SQLITE_DBCONFIG_DEFENSIVE, 1}, {SQLITE_DBCONFIG_ENABLE_TRIGGER, 0}, {SQLITE_DBCONFIG_ENABLE_VIEW, 0},
    {SQLITE_DBCONFIG_DQS_DML, 0},   {SQLITE_DBCONFIG_DQS_DDL, 0},
};

void limitPages(sqlite3* database, int kib) {
    sqlite3_exec(database, QByteArray("PRAGMA cache_size = -" + QByteArray::number(kib)).constData(), nullptr, nullptr,
                 nullptr);
}

/// `which` asks for a file of SQLite's own.
HeldFile held(sqlite3* database, int which, const QString& path) {
    sqlite3_file* file = nullptr;
    sqlite3_file_control(database, "main", which, &file);
    return HeldFile(file, path);
}

} // namespace

void Connection::Closer::operator()(sqlite3* database) const {
    sqlite3_close_v2(database);
}

sqlite3* Connection::opened(const QString& path, Patience patience) {
    constexpr int Flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE;
    sqlite3* handle = nullptr;
    int code = sqlite3_open_v2(path.toUtf8().constData(), &handle, Flags, headerVfsName());
    std::unique_ptr<sqlite3, Closer> database(handle);
    if (code == SQLITE_OK) {
        sqlite3_busy_timeout(handle, static_cast<int>(patience.count()));
        for (const Switch& each : Switches)
            sqlite3_db_config(handle, each.what, each.on, nullptr);
        code = sqlite3_exec(handle, Settings, nullptr, nullptr, nullptr);
        limitPages(handle, WorkingPages);
    }
    if (code != SQLITE_OK)
        throwSqliteFailure(code, path, QString::fromUtf8(sqlite3_errmsg(handle)));
    return database.release();
}

Connection::Connection(const QString& path, Patience patience)
    : m_path(path),
      m_database(opened(path, patience)),
      m_begin(prepare("BEGIN IMMEDIATE")),
      m_commit(prepare("COMMIT")),
      m_dataVersion(prepare("PRAGMA data_version")) {}

Connection Connection::made(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly, QFileDevice::ReadOwner | QFileDevice::WriteOwner))
        throw RuntimeError(RuntimeError::PathFileAccess,
                           u"无法新建账本文件“%1”：%2。"_s.arg(QDir::toNativeSeparators(path), file.errorString()));
    return Connection(path);
}

void Connection::setPatience(Patience patience) {
    sqlite3_busy_timeout(m_database.get(), static_cast<int>(patience.count()));
}

Statement Connection::prepare(const QByteArray& sql) {
    return Statement(m_database.get(), sql, m_path);
}

bool Connection::inTransaction() const {
    return !sqlite3_get_autocommit(m_database.get());
}

void Connection::hold() {
    run("BEGIN");
    try {
        version(); // the first look at the file takes the lock
    } catch (...) {
        rollBack();
        throw;
    }
}

void Connection::rollBack() noexcept {
    if (inTransaction())
        sqlite3_exec(m_database.get(), "ROLLBACK", nullptr, nullptr, nullptr);
}

void Connection::copyTo(const QString& path) {
    const Connection copy = made(path);
    sqlite3* target = copy.m_database.get();
    sqlite3_backup* copying = sqlite3_backup_init(target, "main", m_database.get(), "main");
    if (copying)
        sqlite3_backup_step(copying, -1); // all pages; the end tells whether it failed
    const int code = copying ? sqlite3_backup_finish(copying) : sqlite3_extended_errcode(target);
    if (code != SQLITE_OK)
        throwSqliteFailure(code, path, QString::fromUtf8(sqlite3_errmsg(target)));
}

HeldFile Connection::heldFile() const {
    return held(m_database.get(), SQLITE_FCNTL_FILE_POINTER, m_path);
}

HeldFile Connection::heldJournal() const {
    return held(m_database.get(), SQLITE_FCNTL_JOURNAL_POINTER, m_path);
}

int Connection::version() {
    Statement statement = prepare("PRAGMA user_version");
    statement.step();
    return static_cast<int>(statement.integer(0));
}

void Connection::setVersion(int version) {
    run("PRAGMA user_version = " + QByteArray::number(version));
}

size_t Connection::giveBackPages() {
    int used = 0, most = 0;
    sqlite3_db_status(m_database.get(), SQLITE_DBSTATUS_CACHE_USED, &used, &most, 0);
    const int before = used;
    if (before <= RestingPages * 1024)
        return 0;
    limitPages(m_database.get(), RestingPages);
    limitPages(m_database.get(), WorkingPages);
    sqlite3_db_status(m_database.get(), SQLITE_DBSTATUS_CACHE_USED, &used, &most, 0);
    return static_cast<size_t>(before - used);
}

qint64 Connection::dataVersion() {
    m_dataVersion.step();
    const qint64 version = m_dataVersion.integer(0);
    m_dataVersion.execute();
    return version;
}

bool Connection::fileMoved() const {
    int moved = 0;
    sqlite3_file_control(m_database.get(), "main", SQLITE_FCNTL_HAS_MOVED, &moved);
    return moved != 0;
}

} // namespace qinghe
