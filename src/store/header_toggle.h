#pragma once

#include <QString>

namespace qinghe {

/// The two bytes at offsets 1 and 2 of the data file: 01 00 while the program runs, 00 00 after a clean end, when other
/// tools can not read the file. Both open the file for reading and writing and never create, cut or lengthen it; call
/// them only while no transaction is open (for spoiling, Store::close first).
/// Throw RuntimeError: FileNotFound, PathFileAccess, DiskFull, DeviceFailure; StoreFailure for what is no data file, of
/// which not a byte is changed, whatever its name. A file of a version that this program does not know is not healed
/// either (StoreFailure).
void healHeader(const QString& path);
void spoilHeader(const QString& path);
/// Whether a store lies there whose header is spoilt.
bool headerIsSpoilt(const QString& path);
/// Whether a file begins as a store does, with a header that is spoilt or not.
bool hasFormOfBook(const QString& path);

} // namespace qinghe
