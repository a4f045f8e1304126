#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

/// Files and folders beside the program. Every failure is a RuntimeError with the file's name in its text.
namespace qinghe::files {

/// Whether `path` is a folder.
bool isFolder(const QString& path);
/// Throws PathFileAccess, which says so when a file of that name is in the way.
void makeFolder(const QString& path);
/// Refuses what has no bytes to give: a folder, and what is no file at all and may keep its reader waiting for ever.
/// PathFileAccess.
void requirePlainFile(const QString& path);
/// Refuses a name in a folder that is not there. PathNotFound.
void requireFolderOf(const QString& path);
/// Writes the whole file, replacing one of that name. DiskFull, PathFileAccess.
void writeAll(const QString& path, const QByteArray& bytes);
/// Writes a new file that its owner alone can read, under this name or, where there is such a file already, one like
/// it; gives the name that it has. DiskFull, PathFileAccess.
QString writeNewForOwner(const QString& path, const QByteArray& bytes);
/// Writes from the file's beginning on; the tail of a longer file stays behind it. DiskFull, PathFileAccess.
void writeOver(const QString& path, const QByteArray& bytes);
/// Reads the whole file. FileNotFound, PathFileAccess.
QByteArray readAll(const QString& path);
/// Opens the file as binary files are opened, for writing as well, so that one that is missing is made, empty, and
/// stays; reads the whole of it. PathNotFound, PathFileAccess.
QByteArray readAllOrMake(const QString& path);
/// Deletes the files that a pattern with "*" and "?" names, hidden ones included; finding none is harmless.
void deleteMatching(const QString& folder, const QString& pattern);
/// Reads a picture by its content, whatever the name says, with its orientation. A larger picture than `fill` (pixels
/// of the desktop's own unit) is read no larger than the densest screen shows it there. FileNotFound, InvalidPicture.
QImage loadPicture(const QString& path, const QSize& fill);

} // namespace qinghe::files
