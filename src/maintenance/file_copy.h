#pragma once

#include "disk/plain_file.h"

#include <QByteArray>
#include <QString>

#include <functional>

namespace qinghe {

/// A file written over another one from its beginning, whatever both hold. The target gets one byte more than the
/// source has, its last one twice, and is never cut: an older, longer target keeps its tail. Both are meant to.
class FileCopy {
public:
    /// Opens both, makes the target where there is none, keeps it to its owner alone, and takes all the room that it
    /// will need. The source may be a link, since it is only read. Throws RuntimeError, with nothing written and no
    /// target made: FileNotFound (no source), PathNotFound (no folder for the target), DiskFull, PathFileAccess (no
    /// permission, no plain file, an empty source, one and the same file; a target that is a link, has a second name or
    /// belongs to another account).
    FileCopy(const QString& source, const QString& target);

    /// Of the source when it was opened, in bytes.
    qint64 length() const { return m_length; }

    /// Writes, and is durable when it returns. `progress` hears how many bytes stand in the target. Throws
    /// RuntimeError, where the disk fails after all (DeviceFailure, DiskFull, PathFileAccess); the target is then left
    /// half-written.
    void run(const std::function<void(qint64 written)>& progress);

private:
    QByteArray nextPiece();
    void append(const QByteArray& piece);
    [[noreturn]] void breakOff(int number, const QString& reason) const;

    PlainFile m_source;
    PlainFile m_target;
    qint64 m_length = 0;
};

} // namespace qinghe
