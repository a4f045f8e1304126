#include "store/safety_upkeep.h"

#include "disk/plain_file.h"
#include "disk/replace_file.h"
#include "store/safety_folder.h"

#include <QDir>

namespace qinghe {

namespace {

QFileInfoList filesIn(const QString& book, const QStringList& patterns) {
    const QString folder = safetyFolderOf(book);
    if (kindOf(folder) != FileKind::Folder || !isOwn(folder))
        return {};
    return QDir(folder).entryInfoList(patterns, QDir::Files | QDir::Hidden | QDir::NoSymLinks);
}

} // namespace

std::vector<SafetyFile> safetyFiles(const QString& book) {
    std::vector<SafetyFile> files;
    for (const QFileInfo& file : filesIn(book, {}))
        files.push_back({file.fileName(), file.size()});
    return files;
}

void removeUnfinishedCopies(const QString& book) {
    for (const QFileInfo& file : filesIn(book, {UnfinishedFiles.toString()}))
        QFile::remove(file.filePath());
}

void removeOutdatedCopies(const QString& book, QDate today, const QString& spared) {
    const QDir folder(safetyFolderOf(book));
    const bool isHere = QFileInfo(spared).canonicalPath() == QFileInfo(folder.path()).canonicalFilePath();
    for (const QString& name :
         outdatedCopies(safetyFiles(book), today, isHere ? QFileInfo(spared).fileName() : QString()))
        QFile::remove(folder.filePath(name));
}

} // namespace qinghe
