#include "store/session.h"

#include "runtime/runtime_error.h"
#include "store/migrations.h"
#include "store/selection.h"
#include "store/sql_text.h"

#include <algorithm>
#include <utility>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr size_t DeletedAtOnce = 1000; ///< rows a statement: each statement costs as much as a row

constexpr qsizetype KeptBytes = 64 * 1024; ///< of a value that may stay bound until the next row

QByteArray placeholders(qsizetype count) {
    return QByteArray("?,").repeated(count).chopped(1);
}

} // namespace

Session::Session(const QString& path, const ThisYear& thisYear, Patience patience)
    : m_thisYear(thisYear), m_connection(path, patience) {
    bringUpToDate(m_connection);
    m_dataVersion = m_connection.dataVersion();
}

std::shared_ptr<ResultSet> Session::fetch(const QString& source) {
    flushDeletions();
    if (!inTransaction())
        forgetIfChangedElsewhere();
    const Query query = parsedQuery(source);
    const Selection selection = selectionOf(query, columns(query.table), m_thisYear);
    Statement statement = m_connection.prepare(selection.sql);
    for (int place = 1; const QString& text : selection.bound)
        statement.bind(place++, encoded(text));
    return rowsOf(statement, selection.shape);
}

std::shared_ptr<ResultSet> Session::rowsOf(Statement& statement, const ResultShape& shape) {
    const auto rows = std::make_shared<ResultSet>(shape);
    const int first = shape.writable() ? 1 : 0; // behind the identity
    const int count = rows->columnCount();
    while (statement.step()) {
        for (int column = 0; column < count; ++column)
            rows->appendCell(statement.column(first + column));
        shape.distinct ? rows->finishDistinctRow(statement.integer(0)) : rows->finishRow(statement.integer(0));
    }
    std::erase_if(m_lent, [](const auto& lent) { return lent.expired(); });
    m_lent.push_back(rows);
    return rows;
}

std::shared_ptr<ResultSet> Session::fetchAgain(const ResultShape& shape, qint64 first, qint64 last) {
    flushDeletions();
    QByteArrayList names{"rowid"};
    for (const int ordinal : shape.ordinals)
        names += quotedName(columns(shape.table).at(static_cast<size_t>(ordinal)).name);
    Statement statement = m_connection.prepare("SELECT " + names.join(',') + " FROM " + quotedName(shape.table) +
                                               " WHERE rowid BETWEEN ? AND ? ORDER BY rowid");
    statement.bind(1, first);
    statement.bind(2, last);
    return rowsOf(statement, shape);
}

size_t Session::rest() {
    size_t bytes = m_connection.giveBackPages();
    for (const auto& lent : m_lent) {
        if (const auto rows = lent.lock())
            bytes += rows->letValuesGo();
    }
    m_lent.clear();
    return bytes;
}

const TableColumns& Session::columns(const QString& table) {
    const auto known = m_columns.constFind(table);
    if (known != m_columns.constEnd())
        return *known;
    Statement statement = m_connection.prepare(
        "SELECT c.name, c.type FROM pragma_table_list l, pragma_table_info(l.name) c "
        "WHERE l.schema = 'main' AND l.type = 'table' AND l.name NOT GLOB 'sqlite_*' AND l.name = ? ORDER BY c.cid");
    statement.bind(1, encoded(table));
    TableColumns columns;
    while (statement.step())
        columns.push_back({QString::fromUtf8(statement.column(0).bytes),
                           kindOfDeclaredType(QString::fromUtf8(statement.column(1).bytes))});
    if (columns.empty())
        throw RuntimeError(RuntimeError::QueryFailure, u"账本文件里没有“%1”这张表。"_s.arg(table));
    return *m_columns.insert(table, columns);
}

void Session::commit() {
    flushDeletions();
    m_connection.commit();
}

void Session::rollBack() noexcept {
    m_deletions = {};
    m_connection.rollBack();
}

/// The identity of a new row is above all that this connection has seen, so that an old recordset can never delete a
/// row that took the place of one of its own.
qint64 Session::insertRow(const QString& table, std::span<const int> ordinals, std::span<const StoredValue> values) {
    beginWriting();
    flushDeletions();
    Inserter& target = inserter(table);
    const qint64 rowid = target.lastRowid + 1;
    if (!std::ranges::equal(ordinals, target.ordinals)) {
        target.statement.clearBindings();
        target.ordinals.assign(ordinals.begin(), ordinals.end());
    }
    target.statement.bind(1, rowid);
    for (size_t i = 0; i < values.size(); ++i)
        target.statement.bind(ordinals[i] + 2, values[i]);
    target.statement.execute();
    if (std::ranges::any_of(values, [](const StoredValue& value) { return value.bytes.size() > KeptBytes; }))
        target.statement.clearBindings();
    target.lastRowid = rowid;
    return rowid;
}

Session::Inserter& Session::inserter(const QString& table) {
    const auto known = m_inserters.find(table);
    if (known != m_inserters.end())
        return known->second;
    QByteArrayList names{"rowid"};
    for (const Column& column : columns(table))
        names += quotedName(column.name);
    Statement statement = m_connection.prepare("INSERT INTO " + quotedName(table) + " (" + names.join(',') +
                                               ") VALUES (" + placeholders(names.size()) + ')');
    return m_inserters.emplace(table, Inserter{std::move(statement), highestRowid(table)}).first->second;
}

void Session::updateRow(const QString& table, qint64 rowid, std::span<const int> ordinals,
                        std::span<const StoredValue> values) {
    beginWriting();
    flushDeletions();
    QByteArrayList assignments;
    for (const int ordinal : ordinals)
        assignments += quotedName(columns(table).at(static_cast<size_t>(ordinal)).name) + "=?";
    Statement statement =
        m_connection.prepare("UPDATE " + quotedName(table) + " SET " + assignments.join(',') + " WHERE rowid=?");
    int place = 1;
    for (const StoredValue& value : values)
        statement.bind(place++, value);
    statement.bind(place, rowid);
    statement.execute();
}

void Session::deleteRow(const QString& table, qint64 rowid) {
    beginWriting();
    if (m_deletions.table != table)
        flushDeletions();
    if (m_deletions.rowids.empty())
        inserter(table); // notes the highest identity while its row is there
    m_deletions.table = table;
    m_deletions.rowids.push_back(rowid);
}

void Session::beginWriting() {
    if (inTransaction())
        return;
    m_connection.begin();
    forgetIfChangedElsewhere();
}

void Session::forgetIfChangedElsewhere() {
    const qint64 version = m_connection.dataVersion();
    if (version == std::exchange(m_dataVersion, version))
        return;
    m_columns.clear();
    for (auto& [table, target] : m_inserters)
        target.lastRowid = std::max(target.lastRowid, highestRowid(table));
}

qint64 Session::highestRowid(const QString& table) {
    Statement statement = m_connection.prepare("SELECT max(rowid) FROM " + quotedName(table));
    statement.step();
    return statement.integer(0);
}

void Session::flushDeletions() {
    if (m_deletions.rowids.empty())
        return;
    Deletions deletions = std::exchange(m_deletions, {});
    std::ranges::sort(deletions.rowids);
    const QByteArray everything = "DELETE FROM " + quotedName(deletions.table);
    if (isWholeTable(deletions))
        return m_connection.run(everything);
    const size_t count = deletions.rowids.size(), batch = std::min(count, DeletedAtOnce);
    Statement statement =
        m_connection.prepare(everything + " WHERE rowid IN (" + placeholders(static_cast<qsizetype>(batch)) + ')');
    for (size_t done = 0; done < count; done += batch) {
        for (size_t i = 0; i < batch; ++i) // the last batch is filled up with the last row, which goes but once
            statement.bind(static_cast<int>(i) + 1, deletions.rowids[std::min(done + i, count - 1)]);
        statement.execute();
    }
}

/// Whether no row of the table would be left. Identities without a gap, as a save leaves them, need only the ends.
bool Session::isWholeTable(const Deletions& deletions) {
    const qint64 first = deletions.rowids.front(), last = deletions.rowids.back();
    const auto count = static_cast<qint64>(deletions.rowids.size());
    if (last - first + 1 == count && std::ranges::adjacent_find(deletions.rowids) == deletions.rowids.end()) {
        const QByteArray name = quotedName(deletions.table);
        Statement ends =
            m_connection.prepare("SELECT (SELECT min(rowid) FROM " + name + "), (SELECT max(rowid) FROM " + name + ')');
        ends.step();
        return ends.integer(0) >= first && ends.integer(1) <= last;
    }
    Statement statement = m_connection.prepare("SELECT rowid FROM " + quotedName(deletions.table) + " ORDER BY rowid");
    auto doomed = deletions.rowids.begin();
    while (statement.step()) {
        const qint64 rowid = statement.integer(0);
        doomed = std::find_if(doomed, deletions.rowids.end(), [rowid](qint64 id) { return id >= rowid; });
        if (doomed == deletions.rowids.end() || *doomed != rowid)
            return false;
    }
    return true;
}

} // namespace qinghe
