#include "core/own_files.h"

#include "core/stored_picture.h"
#include "disk/plain_file.h"
#include "disk/replace_file.h"
#include "store/data_file.h"
#include "store/header_toggle.h"
#include "store/safety_folder.h"

#include <QDir>

#include <algorithm>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr auto AllFiles = QDir::Files | QDir::Hidden | QDir::System;

const QString Backups = u"*.dat"_s;

/// What the program itself has written beside it under names of its own.
QStringList writtenNames() {
    QStringList names{DataFileName.toString() + u'*', UnfinishedFiles.toString(), u"没有保存的内容*.txt"_s};
    for (const StoredPicture& picture : {ChosenSkin, DesktopPicture, SignInPicture})
        names << picture.file.toString();
    return names;
}

/// What it brings along.
QStringList deliveredNames() {
    return {u"qinghe"_s, u"*.so"_s, u"音乐*.wav"_s, u"web"_s, u"lib"_s, u"licenses"_s, u"请先读我.txt"_s};
}

void closeFiles(const QDir& folder, const QStringList& names) {
    for (const QString& name : folder.entryList(names, AllFiles))
        closeToOthers(folder.filePath(name));
}

bool isOpenToOthers(const QString& folder) {
    constexpr auto Others =
        QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
    return kindOf(folder) == FileKind::Folder && isOwn(folder) && (QFile::permissions(folder) & Others);
}

/// A folder that is closed keeps others from all that lies in it, so that ten years of a diary cost a start nothing.
void closeFolder(const QString& path, const QStringList& names) {
    if (!isOpenToOthers(path))
        return;
    closeFiles(path, names);
    closeToOthers(path);
}

bool isBook(const QString& path) {
    return kindOf(path) == FileKind::Plain && hasFormOfBook(path);
}

bool holdsNothingElse(const QDir& folder, const QStringList& own) {
    constexpr auto All = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    return std::ranges::all_of(folder.entryList(All), [&](const QString& name) {
        return QDir::match(own, name) || (QDir::match(Backups, name) && isBook(folder.filePath(name)));
    });
}

} // namespace

void closeOwnFiles(const Shared& shared) {
    const QDir folder(shared.services.appPath);
    const QString diary = shared.diaryFolder(), safety = safetyFolderOf(shared.dataFile());
    const QStringList written = writtenNames(), folders{QDir(diary).dirName(), QDir(safety).dirName()};
    closeFiles(folder, written);
    for (const QString& name : folder.entryList({Backups}, AllFiles))
        if (const QString path = folder.filePath(name); isBook(path))
            closeToOthers(path);
    closeFolder(diary, {u"*.dll"_s, UnfinishedFiles.toString()});
    closeFolder(safety, {u"*"_s});
    if (isOpenToOthers(folder.path()) && holdsNothingElse(folder, written + deliveredNames() + folders))
        closeToOthers(folder.path());
}

} // namespace qinghe
