#pragma once

namespace qinghe {

/// The name of the SQLite VFS that hides the header toggle: a main database file that holds 01 00 at offsets 1 and 2
/// shows SQLite's own two letters there, any other value is handed through, and what SQLite writes there keeps 01 00 on
/// disk. Registered on first call, over the default VFS at that time.
///
/// It opens, looks for and deletes a main file's own journal beside it and no other file, whatever a journal says, and
/// that only where it is a plain one. Failures of the disk keep their meaning: a read that fails is no damage, the end
/// of an account's room is a full disk, a place without locks is not a file that somebody holds.
const char* headerVfsName();

/// What SQLite reports when the shim has refused a journal: SQLITE_CANTOPEN_SYMLINK, which means nothing else here.
inline constexpr int ForeignJournal = 14 | (6 << 8);

} // namespace qinghe
