#pragma once

namespace qinghe {

/// The name of the SQLite VFS that hides the header toggle: a main database file that holds 01 00 at offsets 1 and 2
/// shows SQLite's own two letters there, any other value is handed through, and what SQLite writes there keeps 01 00 on
/// disk. Registered on first call, over the default VFS at that time.
const char* headerVfsName();

} // namespace qinghe
