#pragma once

#include <QDateTime>
#include <QStringList>

namespace qinghe {

/// Settles what lies beside a book from a run that did not end, or from elsewhere, before the book is opened: SQLite
/// would play any journal back into it. One of this book is kept with the book in the folder of safety copies, so that
/// the playing back takes nothing away for ever; a foreign one, and a log of a kind that is not used here, are set
/// aside there, or beside the book under another name. What another program is just writing is left alone.
///
/// To be called while no transaction is open, by the one copy of the program that works in this folder. Gives what the
/// user has to know, a line each. A copy that cannot be kept is none. Throws RuntimeError (PathFileAccess) when a
/// foreign journal can not be set aside: the book must not be opened then.
QStringList settleWhatWasLeft(const QString& book, const QDateTime& now);

} // namespace qinghe
