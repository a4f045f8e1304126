#include "store/ledger_folder.h"

#include "disk/plain_file.h"
#include "disk/replace_file.h"
#include "runtime/runtime_error.h"
#include "store/data_file.h"
#include "store/safety_folder.h"

#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QTemporaryDir>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

bool isThere(const QString& path) {
    return kindOf(path) != FileKind::Missing;
}

QString bookIn(const QString& folder) {
    return QDir(folder).filePath(DataFileName.toString());
}

void makeLedgerFolder(const QString& folder, const std::function<void(const QString&)>& bring) {
    const QFileInfo place(folder);
    QTemporaryDir unfinished(place.dir().filePath(u"."_s + place.fileName() + u".XXXXXX"_s)); // of mode 0700
    if (!unfinished.isValid())
        throw RuntimeError(RuntimeError::PathFileAccess,
                           u"无法在“%1”里建立账本文件夹“%2”：%3。请检查磁盘空间和这个文件夹的权限。"_s.arg(
                               QDir::toNativeSeparators(place.path()), place.fileName(), unfinished.errorString()));
    bring(unfinished.path());
    if (QDir().rename(unfinished.path(), folder))
        unfinished.setAutoRemove(false);
    else if (!isThere(bookIn(folder))) // else another start was quicker
        throw RuntimeError(RuntimeError::PathFileAccess,
                           u"无法建立账本文件夹“%1”。"_s.arg(QDir::toNativeSeparators(folder)));
}

/// What is copied keeps its time, so that whatever the next version brings is newer.
void bringFile(const QFileInfo& source, const QString& target) {
    const QFileInfo there(target);
    if (isThere(target) && (source.fileName() == DataFileName || there.lastModified() >= source.lastModified()))
        return;
    replaceFile(target, [&source](QFile& file) {
        writeWholeFile(file, source.filePath());
        file.flush();
        file.setFileTime(source.lastModified(), QFileDevice::FileModificationTime);
    });
}

} // namespace

QString ownLedgerFolder() {
    return QDir::home().filePath(u"青禾家庭记账本"_s);
}

void readyLedgerFolder(const QString& folder, const std::function<void(const QString&)>& bring) {
    if (!isThere(folder))
        return makeLedgerFolder(folder, bring);
    if (!isThere(bookIn(folder)))
        return;
    closeToOthers(folder);
    try {
        bring(folder);
    } catch (const RuntimeError&) {
        // A full disk, or one that cannot be written, keeps nobody from the book.
    }
}

void layFirstBook(const QString& from, const QString& to) {
    const QString book = bookIn(to);
    if (!isThere(book) && !isThere(journalOf(book)) && !isThere(safetyFolderOf(book)) && isThere(bookIn(from)))
        bringAlong(from, to);
}

void bringAlong(const QString& from, const QString& to) {
    const QDir source(from), target(to);
    QDirIterator entries(from, QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QFileInfo entry(entries.next());
        const QString path = target.filePath(source.relativeFilePath(entry.filePath()));
        if (entry.isDir())
            QDir().mkpath(path);
        else
            bringFile(entry, path);
    }
}

} // namespace qinghe
