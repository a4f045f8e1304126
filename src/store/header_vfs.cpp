#include "store/header_vfs.h"

#include "disk/durable.h"
#include "disk/plain_file.h"

#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <mutex>
#include <set>
#include <string>
#include <vector>

namespace qinghe {

namespace {

using Mark = std::array<char, 2>;
constexpr Mark OnDisk{1, 0};
constexpr Mark Shown{'Q', 'L'};
constexpr sqlite3_int64 MarkOffset = 1;
constexpr const char* Name = "qinghe-header";

/// A main database file or its journal; the file of the VFS beneath lies right behind it in SQLite's allocation.
struct ShimFile {
    sqlite3_file base;
    sqlite3_file* real;
    const char* mainName; ///< null for a journal
};

sqlite3_file* real(sqlite3_file* file) {
    return reinterpret_cast<ShimFile*>(file)->real;
}

const char* mainName(sqlite3_file* file) {
    return reinterpret_cast<ShimFile*>(file)->mainName;
}

sqlite3_vfs* beneath = nullptr;

static_assert(ForeignJournal == SQLITE_CANTOPEN_SYMLINK);

/// The names of the journals of the main files that are open, once for each opening; asked by every thread that has a
/// connection.
class OwnJournals {
public:
    void add(const char* main) {
        change([&] { m_names.insert(journalOf(main)); });
    }
    void remove(const char* main) {
        change([&] { m_names.erase(m_names.find(journalOf(main))); });
    }
    bool hold(const char* name) {
        const std::scoped_lock lock(m_mutex);
        return name && m_names.contains(std::string(name));
    }
    /// Whether it is a log of the kind that the shim does not offer, of a main file that is open.
    bool holdLog(const char* name) {
        const std::string given(name ? name : ""), ending = "-wal";
        return given.ends_with(ending) && hold(journalOf(given.substr(0, given.size() - ending.size())).c_str());
    }

private:
    static std::string journalOf(const std::string& main) { return main + "-journal"; }
    template<typename Change>
    void change(Change change) {
        const std::scoped_lock lock(m_mutex);
        change();
    }

    std::mutex m_mutex;
    std::multiset<std::string> m_names;
} ownJournals;

/// The mark inside a piece of the file, if the piece holds both of its bytes.
template<typename Byte>
Byte* markIn(Byte* data, int amount, sqlite3_int64 offset) {
    const bool whole = offset <= MarkOffset && offset + amount >= MarkOffset + 2;
    return whole ? data + (MarkOffset - offset) : nullptr;
}

bool holds(const char* mark, const Mark& expected) {
    return mark && std::equal(expected.begin(), expected.end(), mark);
}

/// A read that the disk refuses reaches SQLite's callers as damage unless it bears another name.
int toldAsReading(int result) {
    return result == SQLITE_IOERR_CORRUPTFS ? SQLITE_IOERR_READ : result;
}

/// An account or a file may come to the end of its room before the disk does. To be asked right after the call.
int toldAsFull(int result) {
    return result != SQLITE_OK && isOutOfRoom() ? SQLITE_FULL : result;
}

int readShim(sqlite3_file* file, void* data, int amount, sqlite3_int64 offset) {
    const int result = real(file)->pMethods->xRead(real(file), data, amount, offset);
    char* mark = mainName(file) ? markIn(static_cast<char*>(data), amount, offset) : nullptr;
    if (holds(mark, OnDisk))
        std::ranges::copy(Shown, mark);
    return toldAsReading(result);
}

int writeReal(sqlite3_file* file, const void* data, int amount, sqlite3_int64 offset) {
    errno = 0;
    return toldAsFull(real(file)->pMethods->xWrite(real(file), data, amount, offset));
}

int writeShim(sqlite3_file* file, const void* data, int amount, sqlite3_int64 offset) {
    const auto* bytes = static_cast<const char*>(data);
    if (!mainName(file) || !holds(markIn(bytes, amount, offset), Shown))
        return writeReal(file, data, amount, offset);
    std::vector<char> page(bytes, bytes + amount);
    std::ranges::copy(OnDisk, markIn(page.data(), amount, offset));
    return writeReal(file, page.data(), amount, offset);
}

int syncShim(sqlite3_file* file, int flags) {
    errno = 0;
    return toldAsFull(real(file)->pMethods->xSync(real(file), flags));
}

/// A place that knows no locks is told apart from one where somebody holds the file.
int lockShim(sqlite3_file* file, int level) {
    errno = 0;
    const int result = real(file)->pMethods->xLock(real(file), level);
    return result == SQLITE_BUSY && errno == ENOLCK ? SQLITE_IOERR_LOCK : result;
}

int closeShim(sqlite3_file* file) {
    if (mainName(file))
        ownJournals.remove(mainName(file));
    return real(file)->pMethods->xClose(real(file));
}

template<auto Method, typename... Arguments>
int forward(sqlite3_file* file, Arguments... arguments) {
    return (real(file)->pMethods->*Method)(real(file), arguments...);
}

using Methods = sqlite3_io_methods;
constexpr Methods ShimMethods{
    .iVersion = 1, // offers neither shared memory nor mapped pages: no WAL, no mmap behind the shim's back
    .xClose = closeShim,
    .xRead = readShim,
    .xWrite = writeShim,
    .xTruncate = forward<&Methods::xTruncate>,
    .xSync = syncShim,
    .xFileSize = forward<&Methods::xFileSize>,
    .xLock = lockShim,
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

/// A journal is read and written as a plain file alone, and is never begun in a file that bears a second name.
bool mayBeJournal(const char* name, int flags) {
    const FileKind kind = kindOf(QString::fromUtf8(name));
    return kind == FileKind::Missing || kind == FileKind::Plain ||
           (kind == FileKind::Shared && !(flags & SQLITE_OPEN_CREATE));
}

int openReal(ShimFile* shim, const char* name, int flags, int* flagsOut) {
    shim->real = reinterpret_cast<sqlite3_file*>(shim + 1);
    const int result = beneath->xOpen(beneath, name, shim->real, flags, flagsOut);
    shim->base.pMethods = shim->real->pMethods ? &ShimMethods : nullptr;
    return result;
}

/// Besides main files and their own journals there are only temporary files, which have no name.
int openShim(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* flagsOut) {
    auto* shim = reinterpret_cast<ShimFile*>(file);
    shim->base.pMethods = nullptr;
    shim->mainName = nullptr;
    if (flags & SQLITE_OPEN_MAIN_DB) {
        const int result = openReal(shim, name, flags, flagsOut);
        if (shim->base.pMethods) { // it will be closed
            shim->mainName = name;
            ownJournals.add(name);
        }
        return result;
    }
    if (!name)
        return beneath->xOpen(beneath, name, file, flags, flagsOut);
    if (!ownJournals.hold(name) || !mayBeJournal(name, flags))
        return ForeignJournal;
    return openReal(shim, name, flags, flagsOut);
}

/// A journal may name other files, which whoever plays it back looks for and deletes: here it may not.
int accessShim(sqlite3_vfs*, const char* name, int flags, int* result) {
    *result = 0;
    if (ownJournals.holdLog(name))
        return SQLITE_OK;
    if (!ownJournals.hold(name) || !mayBeJournal(name, 0))
        return ForeignJournal;
    return beneath->xAccess(beneath, name, flags, result);
}

int deleteShim(sqlite3_vfs*, const char* name, int durably) {
    return ownJournals.hold(name) ? beneath->xDelete(beneath, name, durably) : ForeignJournal;
}

const char* registered() {
    beneath = sqlite3_vfs_find(nullptr);
    static sqlite3_vfs vfs = *beneath;
    vfs.pNext = nullptr;
    vfs.zName = Name;
    vfs.szOsFile = static_cast<int>(sizeof(ShimFile)) + beneath->szOsFile;
    vfs.xOpen = openShim;
    vfs.xAccess = accessShim;
    vfs.xDelete = deleteShim;
    sqlite3_vfs_register(&vfs, 0);
    return Name;
}

} // namespace

const char* headerVfsName() {
    static const char* const Registered = registered();
    return Registered;
}

} // namespace qinghe
