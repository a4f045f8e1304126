#pragma once

#include <QString>

namespace qinghe {

/// The two bytes at offsets 1 and 2 of the data file: 01 00 while the program runs, 00 00 after a clean end, when other
/// tools can not read the file. Both open the file for reading and writing and never create, cut or lengthen it; call
/// them only while no transaction is open (for spoiling, Store::close first).
/// Throw RuntimeError: FileNotFound, PathFileAccess; StoreFailure for a file too short to have these bytes. A file of a
/// version that this program does not know is not healed (StoreFailure), so that not a byte of it is changed.
void healHeader(const QString& path);
void spoilHeader(const QString& path);
/// Whether a store lies there whose header is spoilt.
bool headerIsSpoilt(const QString& path);
/// Whether a file begins as a store does, with a header that is spoilt or not.
bool hasFormOfBook(const QString& path);

} // namespace qinghe
