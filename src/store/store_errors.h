#pragma once

namespace qinghe::store_errors {

// The runtime's error numbers that only the store and its data controls raise.
constexpr int OutOfMemory = 7;
constexpr int DeviceFailure = 57;     ///< reading or writing the disk failed
constexpr int FileLocked = 70;        ///< another program holds the file
constexpr int ObjectNotSet = 91;      ///< a recordset asked for before the first refresh
constexpr int NoSuchField = 3265;     ///< a field that the recordset does not have
constexpr int ProviderUnknown = 3706; ///< a connection text that names no store

} // namespace qinghe::store_errors
