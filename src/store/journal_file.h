#pragma once

#include <QString>

namespace qinghe {

/// What the rollback journal beside a data file is good for.
enum class JournalKind {
    Missing,
    Cold,    ///< nothing in it changes the file
    Own,     ///< of this file: it brings the file back to the commit before
    Foreign, ///< of another file or another time, or no journal at all: playing it back would do damage
};

/// Judges a journal before anybody plays it back, by what holds of each that this program leaves: it is a plain file,
/// names no other file, has the data file's page size, does not cut it or blow it up, and the first page that it keeps
/// is that of the commit before, or the one that still lies in the file. `book` is a data file of which the head can be
/// read. Reads only.
JournalKind judgeJournal(const QString& journal, const QString& book);

} // namespace qinghe
