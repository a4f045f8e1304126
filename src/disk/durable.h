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

/// Takes room on the disk for the first `length` bytes of an open file, so that writing them does not break off for
/// want of it. Content and length stay as they are, so that a file that was not written to its end still shows it.
/// False when there is no room. On a disk that gives none beforehand, what it says to be free decides.
bool reserve(QFile& file, qint64 length);

/// Whether there is no room for more: the disk is full, or the account may have no more of it, or no file so long. To
/// be asked right after a write that failed.
bool isOutOfRoom();

} // namespace qinghe
