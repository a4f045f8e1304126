#include "ledger_folder.h"

#include "walked.h"

#include <QDir>
#include <QFile>
#include <QStringList>
#include <sqlite3.h>

#include <memory>
#include <stdexcept>

namespace whole {

namespace {

using Database = std::unique_ptr<sqlite3, decltype(&sqlite3_close)>;

QByteArray twoBytes(const QString& path) {
    QFile file(path);
    if (!file.open(QFile::ReadOnly) || !file.seek(1))
        throw std::runtime_error("cannot read " + path.toStdString());
    return file.read(2);
}

void setTwoBytes(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (!file.open(QFile::ReadWrite | QFile::ExistingOnly) || !file.seek(1) || file.write(bytes) != 2)
        throw std::runtime_error("cannot change " + path.toStdString());
}

/// A data file with SQLite's own letters in it, as any SQLite tool opens it.
Database openPlain(const QString& path) {
    setTwoBytes(path, "QL");
    sqlite3* database = nullptr;
    if (sqlite3_open_v2(path.toUtf8(), &database, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK)
        throw std::runtime_error("cannot open " + path.toStdString());
    return {database, &sqlite3_close};
}

int keepRow(void* rows, int count, char** values, char**) {
    QStringList row;
    for (int i = 0; i < count; ++i)
        row.append(QString::fromUtf8(values[i]));
    static_cast<std::vector<std::string>*>(rows)->push_back(row.join(u'|').toStdString());
    return 0;
}

std::vector<std::string> run(sqlite3* database, const std::string& statements) {
    std::vector<std::string> rows;
    if (sqlite3_exec(database, statements.c_str(), keepRow, &rows, nullptr) != SQLITE_OK)
        throw std::runtime_error(statements + ": " + sqlite3_errmsg(database));
    return rows;
}

} // namespace

LedgerFolder::LedgerFolder() {
    copyLedger(newLedger(), path());
}

LedgerFolder::LedgerFolder(const QString& place) : m_place(place) {
    QDir(place).removeRecursively(); // left by a run that broke off
    QDir().mkpath(place);
    copyLedger(newLedger(), path());
}

LedgerFolder::~LedgerFolder() {
    if (!m_place.isEmpty())
        QDir(m_place).removeRecursively();
}

QString LedgerFolder::path() const {
    if (!m_place.isEmpty())
        return m_place + QStringLiteral("/青禾家庭记账本");
    return m_folder.filePath(walked().kind == Walked::Installed ? QStringLiteral("home/青禾家庭记账本")
                                                                : QStringLiteral("app"));
}

QString LedgerFolder::programFile(const std::string& name) const {
    return (walked().kind == Walked::Installed ? walked().folder : path()) + u'/' + QString::fromStdString(name);
}

QString LedgerFolder::file(const std::string& name) const {
    return path() + u'/' + QString::fromStdString(name);
}

bool LedgerFolder::has(const std::string& name) const {
    return QFile::exists(file(name));
}

QByteArray LedgerFolder::bytes(const std::string& name) const {
    QFile in(file(name));
    if (!in.open(QFile::ReadOnly))
        throw std::runtime_error("there is no " + name);
    return in.readAll();
}

void LedgerFolder::write(const std::string& name, const QByteArray& bytes) const {
    QFile out(file(name));
    if (!out.open(QFile::WriteOnly | QFile::Truncate) || out.write(bytes) != bytes.size())
        throw std::runtime_error("cannot write " + name);
}

void LedgerFolder::remove(const std::string& name) const {
    QFile::remove(file(name));
}

QString LedgerFolder::beside(const std::string& name) const {
    return (m_place.isEmpty() ? m_folder.path() : m_place) + u'/' + QString::fromStdString(name);
}

std::string LedgerFolder::header() const {
    return twoBytes(file("data.dll")).toHex(' ').toStdString();
}

std::vector<std::string> LedgerFolder::rows(const std::string& query) const {
    const QString data = file("data.dll"), look = beside("look"), journal = QStringLiteral("-journal");
    QFile::remove(look);
    QFile::remove(look + journal);
    QFile::copy(data, look);
    QFile::copy(data + journal, look + journal); // left by a program that was killed; SQLite rolls it back
    return run(openPlain(look).get(), query);
}

void LedgerFolder::execute(const std::string& statements) const {
    const QByteArray before = twoBytes(file("data.dll"));
    run(openPlain(file("data.dll")).get(), statements);
    setTwoBytes(file("data.dll"), before);
}

} // namespace whole
