#pragma once

#include <QString>

namespace qinghe {

/// The name of a file beside the program: the folder, a "\" unless the folder's text ends in one, the file's name.
QString programFile(const QString& appPath, const QString& name);

/// The text that names the data file beside the program to a data control, with a blank behind it.
QString connectionText(const QString& appPath);

/// The path behind "data source=". All of it is path (folders may hold ";"), blanks at its end apart.
/// Throws RuntimeError (3706) when the text names no provider of this store or no file.
QString dataSource(const QString& connectionText);

/// A path as the system takes it. Where "\" is no separator, the last "\" before the file's name stands for "/"; other
/// "\" are part of folder names. It may be the end of the folder's own name as well, to which none was added then: the
/// file is sought in that folder too. Where there is no such folder at all, a file of the literal name is meant.
QString systemPath(const QString& path);
/// The same for a program that has a file in use: the path names this one wherever it can.
QString systemPath(const QString& path, const QString& inUse);

} // namespace qinghe
