#include "store/header_vfs.h"

#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <vector>

namespace qinghe {

namespace {

using Mark = std::array<char, 2>;
constexpr Mark OnDisk{1, 0};
constexpr Mark Shown{'Q', 'L'};
constexpr sqlite3_int64 MarkOffset = 1;
constexpr const char* Name = "qinghe-header";

/// A main database file; the file of the VFS beneath lies right behind it in SQLite's allocation.
struct ShimFile {
    sqlite3_file base;
    sqlite3_file* real;
};

sqlite3_file* real(sqlite3_file* file) {
    return reinterpret_cast<ShimFile*>(file)->real;
}

sqlite3_vfs* beneath = nullptr;

/// The mark inside a piece of the file, if the piece holds both of its bytes.
template<typename Byte>
Byte* markIn(Byte* data, int amount, sqlite3_int64 offset) {
    const bool whole = offset <= MarkOffset && offset + amount >= MarkOffset + 2;
    return whole ? data + (MarkOffset - offset) : nullptr;
}

bool holds(const char* mark, const Mark& expected) {
    return mark && std::equal(expected.begin(), expected.end(), mark);
}

int readShim(sqlite3_file* file, void* data, int amount, sqlite3_int64 offset) {
    const int result = real(file)->pMethods->xRead(real(file), data, amount, offset);
    char* mark = markIn(static_cast<char*>(data), amount, offset);
    if (holds(mark, OnDisk))
        std::ranges::copy(Shown, mark);
    return result;
}

int writeShim(sqlite3_file* file, const void* data, int amount, sqlite3_int64 offset) {
    const auto* bytes = static_cast<const char*>(data);
    if (!holds(markIn(bytes, amount, offset), Shown))
        return real(file)->pMethods->xWrite(real(file), data, amount, offset);
    std::vector<char> page(bytes, bytes + amount);
    std::ranges::copy(OnDisk, markIn(page.data(), amount, offset));
    return real(file)->pMethods->xWrite(real(file), page.data(), amount, offset);
}

template<auto Method, typename... Arguments>
int forward(sqlite3_file* file, Arguments... arguments) {
    return (real(file)->pMethods->*Method)(real(file), arguments...);
}

using Methods = sqlite3_io_methods;
constexpr Methods ShimMethods{
    .iVersion = 1, // offers neither shared memory nor mapped pages: no WAL, no mmap behind the shim's back
    .xClose = forward<&Methods::xClose>,
    .xRead = readShim,
    .xWrite = writeShim,
    .xTruncate = forward<&Methods::xTruncate>,
    .xSync = forward<&Methods::xSync>,
    .xFileSize = forward<&Methods::xFileSize>,
    .xLock = forward<&Methods::xLock>,
    .xUnlock = forward<&Methods::xUnlock>,
    .xCheckReservedLock = forward<&Methods::xCheckReservedLock>,
    .xFileControl = forward<&Methods::xFileControl>,
    .xSectorSize = forward<&Methods::xSectorSize>,
    .xDeviceCharacteristics = forward<&Methods::xDeviceCharacteristics>,
    .xShmMap = nullptr,
    .xShmLock = nullptr,
    .xShmBarrier = nullptr,
    .xShmUnmap = nullptr,
    .xFetch = nullptr,
    .xUnfetch = nullptr,
};

/// Only main database files have the mark; journals and temporary files are the plain files of the VFS beneath.
int openShim(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* flagsOut) {
    if (!(flags & SQLITE_OPEN_MAIN_DB))
        return beneath->xOpen(beneath, name, file, flags, flagsOut);
    auto* shim = reinterpret_cast<ShimFile*>(file);
    shim->real = reinterpret_cast<sqlite3_file*>(shim + 1);
    const int result = beneath->xOpen(beneath, name, shim->real, flags, flagsOut);
    shim->base.pMethods = shim->real->pMethods ? &ShimMethods : nullptr;
    return result;
}

const char* registered() {
    beneath = sqlite3_vfs_find(nullptr);
    static sqlite3_vfs vfs = *beneath;
    vfs.pNext = nullptr;
    vfs.zName = Name;
    vfs.szOsFile = static_cast<int>(sizeof(ShimFile)) + beneath->szOsFile;
    vfs.xOpen = openShim;
    sqlite3_vfs_register(&vfs, 0);
    return Name;
}

} // namespace

const char* headerVfsName() {
    static const char* const Registered = registered();
    return Registered;
}

} // namespace qinghe
