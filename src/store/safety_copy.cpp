#include "store/safety_copy.h"

#include "disk/plain_file.h"
#include "disk/replace_file.h"
#include "runtime/runtime_error.h"
#include "store/connection.h"
#include "store/data_file.h"
#include "store/header_toggle.h"
#include "store/held_file.h"
#include "store/safety_folder.h"
#include "store/safety_retention.h"
#include "store/store.h"

#include <QDir>
#include <QScopeGuard>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 PieceSize = 1 << 18;

using Fill = std::function<void(QFile& copy)>;

[[noreturn]] void refuse(const QString& path, const QString& why) {
    throw RuntimeError(RuntimeError::PathFileAccess, u"“%1”%2。"_s.arg(QDir::toNativeSeparators(path), why));
}

/// Holds the file still while it lives, and knows whether somebody has written since the last time.
class ReadLock {
public:
    explicit ReadLock(Connection& reader) : m_reader(reader) {
        m_reader.run("BEGIN");
        m_version = m_reader.dataVersion(); // reads, and so takes the lock
    }
    ~ReadLock() { m_reader.rollBack(); }
    ReadLock(const ReadLock&) = delete;
    ReadLock& operator=(const ReadLock&) = delete;

    qint64 version() const { return m_version; }

private:
    Connection& m_reader;
    qint64 m_version;
};

void readInPieces(const QString& book, QFile& copy, const std::stop_token& stop) {
    Connection reader(book);
    qint64 done = 0, version = 0;
    const auto nextPiece = [&] {
        const ReadLock lock(reader);
        if (done > 0 && lock.version() != version) {
            copy.resize(0);
            copy.seek(0);
            done = 0;
        }
        version = lock.version();
        return reader.heldFile().read(done, PieceSize);
    };
    for (QByteArray piece = nextPiece(); !piece.isEmpty(); piece = nextPiece()) {
        if (stop.stop_requested())
            throw BrokenOff{};
        writeWhole(copy, piece);
        done += piece.size();
    }
    healHeader(copy.fileName()); // SQLite was shown its own
}

/// The file as it lies on the disk and, where some of the work has reached it, the journal that leads back.
void readBeforeWork(const Store& store, QFile& copy) {
    store.heldFile().copyTo(copy);
    healHeader(copy.fileName());
    const HeldFile journal = store.heldJournal();
    if (!journal.isOpen())
        return;
    PlainFile beside(journalOf(copy.fileName()));
    if (!beside.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
        refuse(beside.fileName(), u"不能使用：%1"_s.arg(beside.objection()));
    journal.copyTo(beside);
}

/// Opens the copy, which plays a journal beside it back, and looks through all of it.
bool isSound(const QString& copy) {
    Connection opened(copy);
    opened.run("PRAGMA cache_size = -1000"); // KiB: each page is looked at once
    Statement check = opened.prepare("PRAGMA quick_check(1)");
    return check.step() && check.column(0).bytes == "ok";
}

enum class Check { Sound, None };

QString keep(const QString& book, const SafetyStamp& stamp, const Fill& fill, Check check) {
    const QString mark = check == Check::None ? u' ' + DamagedMark.toString() : QString();
    const QString path = nameInSafety(book, stamp.when, stamp.occasion + mark, u".dat"_s);
    replaceFile(path, [&](QFile& copy) {
        const QString journal = journalOf(copy.fileName());
        const auto removeJournal = [&] { QFile::remove(journal); };
        removeJournal(); // of a program that was killed
        const auto atEnd = qScopeGuard(removeJournal);
        fill(copy);
        if (check == Check::None && !QFile::exists(journal))
            return;
        if (!isSound(copy.fileName()) && check == Check::Sound)
            throw RuntimeError(RuntimeError::StoreFailure,
                               u"账本文件“%1”已经损坏。"_s.arg(QDir::toNativeSeparators(book)));
    });
    return path;
}

void requireRoom(const QString& book) {
    if (QFileInfo(book).size() > SafetyRoom)
        refuse(book, u"超过 %1 MB，安全副本的文件夹里放不下"_s.arg(SafetyRoom >> 20));
}

bool isDamage(const RuntimeError& error) {
    return error.number() == RuntimeError::StoreFailure;
}

} // namespace

SafetyCopy keepCopy(const QString& book, const SafetyStamp& stamp, IfDamaged damaged, const std::stop_token& stop) {
    const bool mayPassSqlite = damaged == IfDamaged::Keep;
    const Fill inPieces = [&](QFile& copy) { readInPieces(book, copy, stop); };
    const Fill asItIs = [&](QFile& copy) { writeWholeFile(copy, book); };
    const Fill healed = [&](QFile& copy) {
        asItIs(copy);
        healHeader(copy.fileName());
    };
    requireRoom(book);
    readySafetyFolder(book);
    // A closed book that was put here while the program runs is sound, yet nothing that SQLite reads.
    const bool isClosed = mayPassSqlite && headerIsSpoilt(book);
    try {
        return {keep(book, stamp, isClosed ? healed : inPieces, Check::Sound)};
    } catch (const RuntimeError& error) {
        if (!mayPassSqlite || !isDamage(error))
            throw;
    }
    return {keep(book, stamp, asItIs, Check::None), false};
}

SafetyCopy keepStateBefore(Store& store, const SafetyStamp& stamp) {
    const QString book = store.path();
    const Fill fill = [&](QFile& copy) { readBeforeWork(store, copy); };
    requireRoom(book);
    readySafetyFolder(book);
    try {
        return {keep(book, stamp, fill, Check::Sound)};
    } catch (const RuntimeError& error) {
        if (!isDamage(error))
            throw;
    }
    return {keep(book, stamp, fill, Check::None), false};
}

} // namespace qinghe
