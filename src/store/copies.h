#pragma once

#include <QString>
#include <QStringList>

namespace qinghe {

/// The copies of a book that lie where people keep them, the newest first: in the book's own folder and its
/// safety copies, among the documents, on the desktop and in the home folder. Files in the form of a book that are not
/// cut short, whatever is in them; none of which is known that its book was damaged.
QStringList copiesOf(const QString& book);

/// Says in Chinese, on lines of their own, how a book that is missing or damaged comes back, and where copies of it
/// lie.
QString wayBack(const QString& book);

} // namespace qinghe
