#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

class QFile;

namespace qinghe {

/// Puts a file under a name at once: it is written beside it, for its owner alone, and is durable before it takes the
/// name, durably. Whoever looks, after a power cut too, finds what was there before or the whole new file, and never a
/// part of it. A link under the name is replaced and not followed. What a killed program left half-written goes with
/// the next attempt at the same name. Throws RuntimeError, with the old file as it was: DiskFull, PathFileAccess (a
/// folder bears the name, no permission), DeviceFailure, and what `fill` throws.
void replaceFile(const QString& path, const std::function<void(QFile&)>& fill);
void replaceFile(const QString& path, const QByteArray& bytes);

/// The pattern of the names under which files lie that are not whole yet; see replaceFile.
inline constexpr QStringView UnfinishedFiles = u".unfinished-*";

/// Writes all bytes at the file's place. False when it has not taken them all; isOutOfRoom tells right after whether
/// for want of room.
bool writeBytes(QFile& file, const QByteArray& bytes);

/// Writes all bytes at the file's place. Throws RuntimeError with the file's name in its text, or the one that it shall
/// bear: DiskFull, PathFileAccess.
void writeWhole(QFile& file, const QByteArray& bytes, const QString& shown = {});

/// Writes the whole of a file at the place of another. The source is a plain file, or what a link leads to. Throws
/// RuntimeError: PathFileAccess, DeviceFailure (reading failed), DiskFull.
void writeWholeFile(QFile& file, const QString& source);

} // namespace qinghe
