#include "store/left_journal.h"

#include "disk/durable.h"
#include "disk/plain_file.h"
#include "disk/replace_file.h"
#include "runtime/runtime_error.h"
#include "store/data_file.h"
#include "store/file_head.h"
#include "store/header_vfs.h"
#include "store/journal_file.h"
#include "store/safety_folder.h"

#include <QDir>
#include <QFileInfo>
#include <sqlite3.h>

#include <filesystem>
#include <memory>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

/// Names of copies that nobody restores by chance: with this ending a journal is none of any file.
constexpr QStringView JournalEnding = u".journal";

/// Whether another program has begun to write. Looks at the lock alone and reads nothing.
bool isBeingWritten(const QString& book) {
    sqlite3* opened = nullptr;
    const int code = sqlite3_open_v2(book.toUtf8().constData(), &opened, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX,
                                     headerVfsName());
    const std::unique_ptr<sqlite3, decltype(&sqlite3_close_v2)> database(opened, sqlite3_close_v2);
    sqlite3_file* file = nullptr;
    int isWritten = 0;
    if (code == SQLITE_OK)
        sqlite3_file_control(opened, "main", SQLITE_FCNTL_FILE_POINTER, static_cast<void*>(&file));
    if (file && file->pMethods)
        file->pMethods->xCheckReservedLock(file, &isWritten);
    return isWritten != 0;
}

/// Both as they lie there. The book's copy is a backup file like any other, with its last byte twice; it is what one
/// wants back when the journal was not the book's after all, so that the journal's copy must not be found beside it.
/// Gives the name of the book's copy; empty when none could be made.
QString keepBoth(const QString& book, const QString& journal, const QDateTime& now) {
    const QString occasion = u"撤销没有做完的保存以前"_s;
    try {
        readySafetyFolder(book);
        const QString copy = nameInSafety(book, now, occasion, u".dat"_s);
        replaceFile(nameInSafety(book, now, occasion, JournalEnding.toString()),
                    [&journal](QFile& target) { writeWholeFile(target, journal); });
        replaceFile(copy, [&book](QFile& target) {
            writeWholeFile(target, book);
            PlainFile source(book, Links::Follow);
            if (source.open(QIODevice::ReadOnly) && source.seek(source.size() - 1))
                writeWhole(target, source.read(1));
        });
        return copy;
    } catch (const RuntimeError&) {
        return {};
    }
}

bool move(const QString& from, const QString& to) {
    std::error_code failed;
    std::filesystem::rename(QFile(from).filesystemFileName(), QFile(to).filesystemFileName(), failed);
    return !failed && makeNamesDurable(QFileInfo(to).absolutePath()) &&
           makeNamesDurable(QFileInfo(from).absolutePath());
}

/// Moves what bears the name, whatever it is; a link is not followed. Gives its new name.
QString setAside(const QString& path, const QString& book, const QDateTime& now) {
    const QString occasion = u"放在一边的日志"_s;
    try {
        readySafetyFolder(book);
        const QString name = nameInSafety(book, now, occasion, JournalEnding.toString());
        if (move(path, name))
            return name;
    } catch (const RuntimeError&) { // beside the book, then
    }
    const QString name = nameIn(QFileInfo(path).absolutePath(), now, occasion, JournalEnding.toString());
    if (move(path, name))
        return name;
    throw RuntimeError(RuntimeError::PathFileAccess,
                       u"账本旁边的“%1”不是这个账本自己的，程序没有能把它移开，账本没有改动。"
                       u"请把它移到别处，再启动程序。"_s.arg(QDir::toNativeSeparators(path)));
}

/// The first line is what the main window has room for.
QString movedAway(const QString& path, const QString& what, const QString& to) {
    return u"账本旁边有不属于它的文件，已经移开，鼠标停在这里看。\n%1 %2，没有使用，已经移到：\n%3"_s.arg(
        QFileInfo(path).fileName(), what, QDir::toNativeSeparators(to));
}

QString settleJournal(const QString& journal, const QString& book, const QDateTime& now) {
    switch (judgeJournal(journal, book)) {
    case JournalKind::Missing:
    case JournalKind::Cold:
        return {};
    case JournalKind::Own: {
        const QString copy = keepBoth(book, journal, now);
        const QString told = u"上次有一次保存没有做完，已经撤销，鼠标停在这里看。\n账本回到了那次保存以前的样子。"_s;
        return copy.isEmpty() ? told : told + u"撤销以前的文件留在：\n%1"_s.arg(QDir::toNativeSeparators(copy));
    }
    case JournalKind::Foreign:
        break;
    }
    return movedAway(journal, u"不属于这个账本（例如换上备份以前留下的）"_s, setAside(journal, book, now));
}

/// The records in such a log are of a file that was switched to it, as its head would say.
QString settleLog(const QString& log, const QString& book, const QDateTime& now) {
    if (kindOf(log) == FileKind::Missing || headOf(book).isSwitchedToLog)
        return {};
    return movedAway(log, u"是别的程序留下的"_s, setAside(log, book, now));
}

} // namespace

QStringList settleWhatWasLeft(const QString& book, const QDateTime& now) {
    const QString real = QFileInfo(book).canonicalFilePath(); // beside this one SQLite looks for the journal
    const QString journal = journalOf(real), log = real + u"-wal"_s;
    const bool anythingThere = kindOf(journal) != FileKind::Missing || kindOf(log) != FileKind::Missing;
    if (real.isEmpty() || !anythingThere || !headOf(real).isWhole || isBeingWritten(real))
        return {};
    QStringList told{settleJournal(journal, book, now), settleLog(log, book, now)};
    told.removeAll(QString());
    return told;
}

} // namespace qinghe
