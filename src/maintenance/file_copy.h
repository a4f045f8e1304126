#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

#include <functional>

namespace qinghe {

/// A file written over another one from its beginning, whatever both hold. The target gets one byte more than the
/// source has, its last one twice, and is never cut: an older, longer target keeps its tail. Both are meant to.
class FileCopy {
public:
    /// Opens both, and makes the target where there is none, to be read and written by its owner alone. Throws
    /// RuntimeError, with nothing written: FileNotFound (no source), PathNotFound (no folder for the target),
    /// PathFileAccess (no permission, not a plain file, an empty source, one and the same file).
    FileCopy(const QString& source, const QString& target);

    /// Of the source when it was opened, in bytes.
    qint64 length() const { return m_length; }

    /// Writes, and is durable when it returns. `progress` hears how many bytes stand in the target. Throws
    /// RuntimeError: DiskFull, PathFileAccess; the target is then left half-written.
    void run(const std::function<void(qint64 written)>& progress);

private:
    QByteArray nextPiece();
    void append(const QByteArray& piece);
    [[noreturn]] void breakOff(const QString& reason) const;

    QFile m_source;
    QFile m_target;
    qint64 m_length = 0;
};

} // namespace qinghe
