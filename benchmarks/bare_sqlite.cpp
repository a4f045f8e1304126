#include "bare_sqlite.h"

#include <QFile>
#include <sqlite3.h>

#include <cstdlib>

namespace qinghe::benchmarks {

namespace {

constexpr std::string_view NumberType = "NUMBER";

const char* textOf(sqlite3_stmt* statement, int column) {
    return reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
}

} // namespace

Bare::Bare(const QString& path, const char* vfs) {
    if (sqlite3_open_v2(QFile::encodeName(path).constData(), &m_db, SQLITE_OPEN_READWRITE, vfs) != SQLITE_OK)
        qFatal("cannot open %s", qPrintable(path));
    run(QStringLiteral("pragma journal_mode=delete"));
    run(QStringLiteral("pragma synchronous=extra"));
}

Bare::~Bare() {
    sqlite3_close(m_db);
}

void Bare::run(const QString& sql) {
    char* error = nullptr;
    if (sqlite3_exec(m_db, sql.toUtf8().constData(), nullptr, nullptr, &error) != SQLITE_OK)
        qFatal("%s: %s", qPrintable(sql), error);
}

sqlite3_stmt* Bare::prepare(const QString& sql) {
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(m_db, sql.toUtf8().constData(), -1, &statement, nullptr) != SQLITE_OK)
        qFatal("%s: %s", qPrintable(sql), sqlite3_errmsg(m_db));
    return statement;
}

void Bare::read(const QString& sql) {
    sqlite3_stmt* statement = prepare(sql);
    const int columns = sqlite3_column_count(statement);
    while (sqlite3_step(statement) == SQLITE_ROW)
        for (int i = 0; i < columns; ++i)
            if (sqlite3_column_type(statement, i) == SQLITE_TEXT)
                sqlite3_column_text16(statement, i);
            else
                sqlite3_column_double(statement, i);
    sqlite3_finalize(statement);
}

void openIncomeBare(Bare& db) {
    db.run(QStringLiteral("begin immediate"));
    db.read(QStringLiteral("select * from sztjlsb"));
    db.run(QStringLiteral("delete from sztjlsb"));
    sqlite3_stmt* from = db.prepare(QStringLiteral("select 时间,项目,收款人,金额 from srb order by rowid"));
    sqlite3_stmt* to = db.prepare(QStringLiteral("insert into sztjlsb(时间,金额,项目,区别,人员) values(?,?,?,?,?)"));
    for (int n = 1; sqlite3_step(from) == SQLITE_ROW; ++n) {
        sqlite3_bind_text(to, 1, textOf(from, 0), 7, SQLITE_STATIC);
        sqlite3_bind_double(to, 2, sqlite3_column_double(from, 3));
        sqlite3_bind_text(to, 3, textOf(from, 1), -1, SQLITE_STATIC);
        sqlite3_bind_int(to, 4, n);
        sqlite3_bind_text(to, 5, textOf(from, 2), -1, SQLITE_STATIC);
        sqlite3_step(to);
        sqlite3_reset(to);
    }
    sqlite3_finalize(from);
    sqlite3_finalize(to);
    db.read(QStringLiteral("select * from srb order by rowid"));
    db.read(QStringLiteral("select sum(金额) from srb"));
    db.read(QStringLiteral("select * from srb order by rowid"));
    db.run(QStringLiteral("commit"));
}

Cells readCells(Bare& db, const QString& table) {
    Cells cells;
    cells.table = table;
    sqlite3_stmt* from = db.prepare(QStringLiteral("select * from %1 order by rowid").arg(table));
    cells.columns = sqlite3_column_count(from) - 1;
    for (int i = 0; i < cells.columns; ++i)
        cells.numbers.push_back(std::string_view(sqlite3_column_decltype(from, i)) == NumberType);
    for (; sqlite3_step(from) == SQLITE_ROW; ++cells.rows)
        for (int i = 0; i < cells.columns; ++i) {
            const char* text = textOf(from, i);
            cells.texts.emplace_back(text ? text : "");
        }
    sqlite3_finalize(from);
    return cells;
}

void saveBare(Bare& db, const Cells& cells) {
    db.run(QStringLiteral("begin immediate"));
    db.run(QStringLiteral("delete from ") + cells.table);
    sqlite3_stmt* to = db.prepare(
        QStringLiteral("insert into %1 values(%2?)").arg(cells.table, QStringLiteral("?,").repeated(cells.columns)));
    auto text = cells.texts.begin();
    for (int row = 1; row <= cells.rows; ++row) {
        for (int i = 0; i < cells.columns; ++i, ++text) {
            if (text->empty())
                sqlite3_bind_null(to, i + 1);
            else if (cells.numbers[static_cast<std::size_t>(i)])
                sqlite3_bind_double(to, i + 1, std::strtod(text->c_str(), nullptr));
            else
                sqlite3_bind_text(to, i + 1, text->data(), static_cast<int>(text->size()), SQLITE_STATIC);
        }
        sqlite3_bind_int(to, cells.columns + 1, row);
        sqlite3_step(to);
        sqlite3_reset(to);
    }
    sqlite3_finalize(to);
    db.run(QStringLiteral("commit"));
}

void saveNamesBare(Bare& db, const Cells& cells, const QString& columns) {
    const auto count = static_cast<int>(columns.count(u',')) + 1;
    db.run(QStringLiteral("begin immediate"));
    db.run(QStringLiteral("delete from ") + cells.table);
    sqlite3_stmt* to = db.prepare(QStringLiteral("insert into %1(%2) values(%3?)")
                                      .arg(cells.table, columns, QStringLiteral("?,").repeated(count - 1)));
    for (int row = 0; row < cells.rows; ++row) {
        for (int i = 0; i < count; ++i) {
            const std::string& text = cells.texts[static_cast<std::size_t>(row * cells.columns + i)];
            sqlite3_bind_text(to, i + 1, text.data(), static_cast<int>(text.size()), SQLITE_STATIC);
        }
        sqlite3_step(to);
        sqlite3_reset(to);
    }
    sqlite3_finalize(to);
    db.run(QStringLiteral("commit"));
}

void gatherMonthsBare(Bare& db) {
    db.run(QStringLiteral("begin immediate"));
    db.read(QStringLiteral("select * from nsrb"));
    db.run(QStringLiteral("delete from nsrb"));
    sqlite3_stmt* from = db.prepare(QStringLiteral("select 时间,金额 from srb order by rowid"));
    sqlite3_stmt* to = db.prepare(QStringLiteral("insert into nsrb(时间,金额,区别) values(?,?,?)"));
    for (int n = 1; sqlite3_step(from) == SQLITE_ROW; ++n) {
        sqlite3_bind_text(to, 1, textOf(from, 0), 7, SQLITE_STATIC);
        sqlite3_bind_double(to, 2, sqlite3_column_double(from, 1));
        sqlite3_bind_int(to, 3, n);
        sqlite3_step(to);
        sqlite3_reset(to);
    }
    sqlite3_finalize(from);
    sqlite3_finalize(to);
    db.read(QStringLiteral("select * from nsrb order by rowid"));
    db.read(QStringLiteral("select 时间,sum(金额) as 金额 from nsrb group by 时间"));
    db.read(QStringLiteral("select 时间,sum(金额) as 金额 from nsrb group by 时间"));
    db.run(QStringLiteral("commit"));
}

} // namespace qinghe::benchmarks
