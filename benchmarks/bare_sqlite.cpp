#include "bare_sqlite.h"

#include <QFile>
#include <sqlite3.h>

#include <cstdlib>

namespace qinghe::benchmarks {

using namespace Qt::StringLiterals;

namespace {

constexpr std::string_view NumberType = "NUMBER";

const char* textOf(sqlite3_stmt* statement, int column) {
    return reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
}

} // namespace

Bare::Bare(const QString& path, const char* vfs) {
    if (sqlite3_open_v2(QFile::encodeName(path).constData(), &m_db, SQLITE_OPEN_READWRITE, vfs) != SQLITE_OK)
        qFatal("cannot open %s", qPrintable(path));
    run(u"pragma journal_mode=delete"_s);
    run(u"pragma synchronous=extra"_s);
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
    db.run(u"begin immediate"_s);
    db.read(u"select * from sztjlsb"_s);
    db.run(u"delete from sztjlsb"_s);
    sqlite3_stmt* from = db.prepare(u"select 时间,项目,收款人,金额 from srb order by rowid"_s);
    sqlite3_stmt* to = db.prepare(u"insert into sztjlsb(时间,金额,项目,区别,人员) values(?,?,?,?,?)"_s);
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
    db.read(u"select * from srb order by rowid"_s);
    db.read(u"select sum(金额) from srb"_s);
    db.read(u"select * from srb order by rowid"_s);
    db.run(u"commit"_s);
}

Cells readCells(Bare& db, const QString& table) {
    Cells cells;
    cells.table = table;
    sqlite3_stmt* from = db.prepare(u"select * from %1 order by rowid"_s.arg(table));
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
    db.run(u"begin immediate"_s);
    db.run(u"delete from "_s + cells.table);
    sqlite3_stmt* to = db.prepare(u"insert into %1 values(%2?)"_s.arg(cells.table, u"?,"_s.repeated(cells.columns)));
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
    db.run(u"commit"_s);
}

void saveNamesBare(Bare& db, const Cells& cells, const QString& columns) {
    const auto count = static_cast<int>(columns.count(u',')) + 1;
    db.run(u"begin immediate"_s);
    db.run(u"delete from "_s + cells.table);
    sqlite3_stmt* to =
        db.prepare(u"insert into %1(%2) values(%3?)"_s.arg(cells.table, columns, u"?,"_s.repeated(count - 1)));
    for (int row = 0; row < cells.rows; ++row) {
        for (int i = 0; i < count; ++i) {
            const std::string& text = cells.texts[static_cast<std::size_t>(row * cells.columns + i)];
            sqlite3_bind_text(to, i + 1, text.data(), static_cast<int>(text.size()), SQLITE_STATIC);
        }
        sqlite3_step(to);
        sqlite3_reset(to);
    }
    sqlite3_finalize(to);
    db.run(u"commit"_s);
}

void gatherMonthsBare(Bare& db) {
    db.run(u"begin immediate"_s);
    db.read(u"select * from nsrb"_s);
    db.run(u"delete from nsrb"_s);
    sqlite3_stmt* from = db.prepare(u"select 时间,金额 from srb order by rowid"_s);
    sqlite3_stmt* to = db.prepare(u"insert into nsrb(时间,金额,区别) values(?,?,?)"_s);
    for (int n = 1; sqlite3_step(from) == SQLITE_ROW; ++n) {
        sqlite3_bind_text(to, 1, textOf(from, 0), 7, SQLITE_STATIC);
        sqlite3_bind_double(to, 2, sqlite3_column_double(from, 1));
        sqlite3_bind_int(to, 3, n);
        sqlite3_step(to);
        sqlite3_reset(to);
    }
    sqlite3_finalize(from);
    sqlite3_finalize(to);
    db.read(u"select * from nsrb order by rowid"_s);
    db.read(u"select 时间,sum(金额) as 金额 from nsrb group by 时间"_s);
    db.read(u"select 时间,sum(金额) as 金额 from nsrb group by 时间"_s);
    db.run(u"commit"_s);
}

} // namespace qinghe::benchmarks
