#include "store/failing_disk.h"

#include <sqlite3.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <map>
#include <random>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace qinghe::failing_disk {

namespace {

constexpr int Never = -1;
using Bytes = std::string;

Bytes contentOf(const std::string& path) {
    std::ostringstream content;
    content << std::ifstream(path, std::ios::binary).rdbuf();
    return content.str();
}

void write(Bytes& content, const Bytes& bytes, size_t offset) {
    if (content.size() < offset + bytes.size())
        content.resize(offset + bytes.size());
    content.replace(offset, bytes.size(), bytes);
}

/// A file as the disk has it, and the changes that have not reached it for certain.
struct File {
    struct Change {
        bool removal = false;
        bool cut = false;
        size_t offset = 0; ///< or the new length
        Bytes bytes = {};
    };
    bool exists = false;
    Bytes content;
    std::vector<Change> unsynced;

    void apply(const Change& change) {
        exists = !change.removal;
        if (change.removal)
            content.clear();
        else if (change.cut)
            content.resize(change.offset);
        else
            write(content, change.bytes, change.offset);
    }
    template<typename Choice>
    void settle(Choice reachesDisk) {
        for (const Change& change : unsynced) {
            if (reachesDisk())
                apply(change);
        }
        unsynced.clear();
    }
};

struct Disk {
    int healthyWrites = Never;
    bool once = false;
    bool writeFailed = false;
    bool readsFail = false;
    bool locksFail = false;
    int healthyChanges = Never;
    bool dead = false;
    std::map<std::string, File> files;
    std::mt19937 chance{1};

    bool remembering() const { return healthyChanges != Never; }

    bool isFull() {
        if (healthyWrites == Never || healthyWrites-- > 0)
            return false;
        healthyWrites = once ? Never : 0;
        return writeFailed = true;
    }
    bool isDead() {
        if (remembering() && healthyChanges-- == 0)
            dead = true;
        if (dead)
            healthyChanges = 0;
        return dead;
    }
    File& file(const std::string& path) {
        const auto [found, isNew] = files.try_emplace(path);
        if (isNew && std::filesystem::exists(path))
            found->second = {true, contentOf(path), {}};
        return found->second;
    }
};

Disk disk;
sqlite3_vfs* beneath = nullptr;

struct OpenFile {
    sqlite3_file base;
    sqlite3_file* real;
    const std::string* path; ///< null for temporary files
};

OpenFile* mine(sqlite3_file* file) {
    return reinterpret_cast<OpenFile*>(file);
}

sqlite3_file* real(sqlite3_file* file) {
    return mine(file)->real;
}

/// Notes a change before it is made. False when it can not be made any more.
bool note(sqlite3_file* file, File::Change change) {
    if (!disk.remembering())
        return true;
    File& state = disk.file(*mine(file)->path);
    if (disk.isDead())
        return false;
    state.unsynced.push_back(std::move(change));
    return true;
}

int closeFile(sqlite3_file* file) {
    delete mine(file)->path;
    return real(file)->pMethods->xClose(real(file));
}

int writeFile(sqlite3_file* file, const void* data, int amount, sqlite3_int64 offset) {
    if (disk.isFull())
        return SQLITE_FULL;
    const Bytes bytes(static_cast<const char*>(data), static_cast<size_t>(amount));
    if (!note(file, {.offset = static_cast<size_t>(offset), .bytes = bytes}))
        return SQLITE_IOERR_WRITE;
    return real(file)->pMethods->xWrite(real(file), data, amount, offset);
}

int readFile(sqlite3_file* file, void* data, int amount, sqlite3_int64 offset) {
    return disk.readsFail ? SQLITE_IOERR_CORRUPTFS : real(file)->pMethods->xRead(real(file), data, amount, offset);
}

int lockFile(sqlite3_file* file, int level) {
    if (!disk.locksFail)
        return real(file)->pMethods->xLock(real(file), level);
    errno = ENOLCK;
    return SQLITE_BUSY;
}

int truncateFile(sqlite3_file* file, sqlite3_int64 size) {
    if (!note(file, {.cut = true, .offset = static_cast<size_t>(size)}))
        return SQLITE_IOERR_TRUNCATE;
    return real(file)->pMethods->xTruncate(real(file), size);
}

int syncFile(sqlite3_file* file, int) {
    if (!disk.remembering())
        return SQLITE_OK;
    File& state = disk.file(*mine(file)->path);
    if (disk.isDead())
        return SQLITE_IOERR_FSYNC;
    state.settle([] { return true; });
    return SQLITE_OK;
}

template<auto Method, typename... Arguments>
int forward(sqlite3_file* file, Arguments... arguments) {
    return (real(file)->pMethods->*Method)(real(file), arguments...);
}

using Methods = sqlite3_io_methods;
constexpr Methods ShimMethods{
    1,
    closeFile,
    readFile,
    writeFile,
    truncateFile,
    syncFile,
    forward<&Methods::xFileSize>,
    lockFile,
    forward<&Methods::xUnlock>,
    forward<&Methods::xCheckReservedLock>,
    forward<&Methods::xFileControl>,
    forward<&Methods::xSectorSize>,
    forward<&Methods::xDeviceCharacteristics>,
    nullptr,
    nullptr,
    nullptr,
    nullptr,
    nullptr,
    nullptr,
};

int openFile(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* flagsOut) {
    OpenFile* open = mine(file);
    open->real = reinterpret_cast<sqlite3_file*>(open + 1);
    open->path = nullptr;
    const int result = beneath->xOpen(beneath, name, open->real, flags, flagsOut);
    open->base.pMethods = open->real->pMethods ? &ShimMethods : nullptr;
    if (result == SQLITE_OK)
        open->path = new std::string(name ? name : "");
    return result;
}

int removeFile(sqlite3_vfs*, const char* name, int durably) {
    if (disk.remembering()) {
        File& state = disk.file(name);
        if (disk.isDead())
            return SQLITE_IOERR_DELETE;
        state.unsynced.push_back({.removal = true});
        if (durably)
            state.settle([] { return true; });
    }
    return beneath->xDelete(beneath, name, 0);
}

/// Before main(), so that the header shim finds it in place.
const bool registered = [] {
    beneath = sqlite3_vfs_find(nullptr);
    static sqlite3_vfs vfs = *beneath;
    vfs.pNext = nullptr;
    vfs.zName = "failing-disk";
    vfs.szOsFile = static_cast<int>(sizeof(OpenFile)) + beneath->szOsFile;
    vfs.xOpen = openFile;
    vfs.xDelete = removeFile;
    return sqlite3_vfs_register(&vfs, 1) == SQLITE_OK;
}();

} // namespace

void fillUpAfter(int healthyWrites, bool once) {
    disk.healthyWrites = healthyWrites;
    disk.once = once;
    disk.writeFailed = false;
}

bool makeSpace() {
    disk.healthyWrites = Never;
    return disk.writeFailed;
}

void failReads(bool fail) {
    disk.readsFail = fail;
}

void refuseLocks(bool refuse) {
    disk.locksFail = refuse;
}

void cutPowerAfter(int healthyChanges) {
    disk.files.clear();
    disk.dead = false;
    disk.healthyChanges = healthyChanges;
}

bool restorePower() {
    for (auto& [path, file] : disk.files) {
        file.settle([] { return disk.chance() % 2 == 0; });
        std::filesystem::remove(path);
        if (file.exists)
            std::ofstream(path, std::ios::binary) << file.content;
    }
    disk.healthyChanges = Never;
    return std::exchange(disk.dead, false);
}

} // namespace qinghe::failing_disk
