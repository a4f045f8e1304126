#pragma once

#include <QString>

class QFile;

namespace qinghe {

/// Waits until what was written to an open file, and its name in its folder, would outlast a power cut. False when the
/// disk reports that it failed.
bool makeDurable(const QFile& file);

/// The same for the names in a folder. A folder that cannot be read, or lies where folders are never synced, counts as
/// durable: its names reach the disk in their own time.
bool makeNamesDurable(const QString& folder);

/// Takes room on the disk for the first `length` bytes of an open file, which grows to them, so that writing them does
/// not break off for want of it. False when there is none; the file is then as it was. On a disk that knows no such
/// thing there is said to be room.
bool reserve(QFile& file, qint64 length);

/// Whether there is no room for more: the disk is full, or the account may have no more of it, or no file so long. To
/// be asked right after a write that failed.
bool isOutOfRoom();

} // namespace qinghe
