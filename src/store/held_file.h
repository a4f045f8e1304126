#pragma once

#include <QByteArray>
#include <QString>

class QFile;
struct sqlite3_file;

namespace qinghe {

/// A file that SQLite holds open, read through it: a descriptor of our own on the same file would give up this
/// process's locks on it as it is closed. Every failure is a RuntimeError (DeviceFailure).
class HeldFile {
public:
    /// Good as long as SQLite holds the file. `path` is named in errors.
    HeldFile(sqlite3_file* file, QString path) : m_file(file), m_path(std::move(path)) {}

    /// False for a journal that has not been made.
    bool isOpen() const;
    qint64 size() const;
    /// Less at the end of the file.
    QByteArray read(qint64 from, qint64 most) const;
    /// Writes all of it at the place of `copy`.
    void copyTo(QFile& copy) const;

private:
    [[noreturn]] void fail(int code) const;

    sqlite3_file* m_file;
    QString m_path;
};

} // namespace qinghe
