#pragma once

#include <QDateTime>
#include <QString>

namespace qinghe {

/// The folder beside the book in which copies of it lie against accidents.
QString safetyFolderOf(const QString& book);

/// Makes the folder where there is none, and keeps it to its owner. Throws RuntimeError (PathFileAccess): it is a link,
/// a file, somebody else's, or cannot be made.
QString readySafetyFolder(const QString& book);

/// A name in the folder that is free and says when and what for, such as "2024-11-18 203608 初始化以前.dat"; names sort
/// by their time.
QString nameInSafety(const QString& book, const QDateTime& when, const QString& occasion, const QString& suffix);
/// The same in any folder.
QString nameIn(const QString& folder, const QDateTime& when, const QString& occasion, const QString& suffix);

} // namespace qinghe
