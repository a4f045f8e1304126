#pragma once

#include <QString>

/// The files of the diary: one text file an entry, named after its title, in the folder `mydiary` beside the program.
/// They are GB18030, which is byte for byte GBK for what GBK can say, and loses nothing.
namespace qinghe::diary {

/// Why a title cannot name a file (see filePath); nothing where it can.
QString objection(const QString& title);

/// The file of an entry. The title must be able to name a file on every system and lead nowhere else: no separators
/// and other marks that file systems keep for themselves, no "." or "..", no name of a device, not too long. Throws
/// RuntimeError (PathFileAccess) with the reason in its text.
QString filePath(const QString& folder, const QString& title);

/// Replaces the file by the text and one line end, durably: what was there before stays until the whole of it is kept.
/// A link of that name is replaced and not followed. Throws RuntimeError (PathFileAccess, DiskFull, DeviceFailure).
void write(const QString& path, const QString& text);

/// The lines of a file one behind the other, with nothing between them: CR LF, CR and LF each end a line. Bytes that
/// are no text read as replacement characters. A link is not followed. Throws RuntimeError (FileNotFound,
/// PathFileAccess).
QString readLines(const QString& path);

} // namespace qinghe::diary
