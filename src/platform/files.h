#pragma once

#include <QByteArray>
#include <QString>

/// Files and folders beside the program. Every failure is a RuntimeError with the file's name in its text.
namespace qinghe::files {

/// Whether `path` is a folder.
bool isFolder(const QString& path);
/// Throws PathFileAccess, which says so when a file of that name is in the way.
void makeFolder(const QString& path);
/// Refuses a folder that is a link, or the folder `apart` under another name: what is written or deleted there would
/// not stay there. One that is missing passes. PathFileAccess.
void requireFolderOfItsOwn(const QString& path, const QString& apart);
/// Whether a path names a plain file in a folder or below it, and not by a link somewhere else.
bool isPlainFileIn(const QString& folder, const QString& path);
/// Refuses what has no bytes to give: a folder, and what is no file at all and may keep its reader waiting for ever.
/// PathFileAccess.
void requirePlainFile(const QString& path);
/// Refuses a name in a folder that is not there. PathNotFound.
void requireFolderOf(const QString& path);
/// Writes a new file that its owner alone can read, under this name or, where there is such a file already, one like
/// it; gives the name that it has. It is durable when that is told, and not there when it cannot be written. DiskFull,
/// PathFileAccess.
QString writeNewForOwner(const QString& path, const QByteArray& bytes);
/// Writes a file of the program's own from its beginning on; the tail of a longer one stays behind it. What leads
/// elsewhere or is no such file (a link, a second name, a pipe, somebody else's) is taken away, and the file made anew,
/// for its owner alone. DiskFull, PathFileAccess.
void writeOver(const QString& path, const QByteArray& bytes);
/// Reads the whole of a plain file that is no link. FileNotFound, PathFileAccess.
QByteArray readAll(const QString& path);
/// Of a file that the user has named, wherever that leads: opens it as binary files are opened, for writing as well, so
/// that one that is missing is made, empty, and stays; reads the whole of it. PathNotFound, PathFileAccess.
QByteArray readAllOrMake(const QString& path);
/// Deletes the files that a pattern with "*" and "?" names, hidden ones included; finding none is harmless.
void deleteMatching(const QString& folder, const QString& pattern);

} // namespace qinghe::files
