#include "store/copies.h"

#include "store/data_file.h"
#include "store/file_head.h"
#include "store/header_toggle.h"
#include "store/safety_folder.h"
#include "store/safety_retention.h"

#include <QDateTime>
#include <QDir>
#include <QStandardPaths>

#include <algorithm>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype MostTold = 3;

/// Whether the file has the form of a book and all the pages of which its header tells.
bool isWhole(const QFileInfo& file) {
    if (!hasFormOfBook(file.filePath()))
        return false;
    const FileHead head = headOf(file.filePath());
    return head.isWhole && file.size() >= head.pageSize * head.pageCount;
}

QStringList foldersOf(const QString& book) {
    QStringList folders{QFileInfo(book).absolutePath(), safetyFolderOf(book)};
    for (const auto place : {QStandardPaths::DocumentsLocation, QStandardPaths::DesktopLocation,
                             QStandardPaths::DownloadLocation, QStandardPaths::HomeLocation})
        folders << QStandardPaths::writableLocation(place);
    folders.removeDuplicates();
    return folders;
}

} // namespace

QStringList copiesOf(const QString& book) {
    QFileInfoList found;
    for (const QString& folder : foldersOf(book))
        found << QDir(folder).entryInfoList({u"*.dat"_s}, QDir::Files | QDir::Readable);
    found.removeIf([](const QFileInfo& file) { return file.fileName().contains(DamagedMark) || !isWhole(file); });
    std::ranges::stable_sort(found, std::ranges::greater(), &QFileInfo::lastModified);
    QStringList copies;
    for (const QFileInfo& file : found)
        copies << file.filePath();
    return copies;
}

QString wayBack(const QString& book) {
    const QFileInfo file(book);
    QString way = file.exists() ? u"\r\n请先把现在的 %1 改名留着，再"_s.arg(file.fileName()) : u"\r\n请"_s;
    way += u"把一份备份文件（名字以 .dat 结尾）复制到文件夹“%1”里，改名为 %2，然后启动程序。"_s.arg(
        QDir::toNativeSeparators(file.path()), file.fileName());
    way +=
        u"那里如果还有一个 %1，要先把它移到别处：它属于旧的账本，会弄坏换上的那份。"_s.arg(journalOf(file.fileName()));
    const QStringList copies = copiesOf(book);
    if (copies.isEmpty())
        return way + u"备份在您从前备份时指定的地方，例如“文档”、桌面或 U 盘。"_s;
    way += u"\r\n这台电脑上找到的备份，新的在前："_s;
    for (const QString& copy : copies.first(std::min(MostTold, copies.size())))
        way += u"\r\n%1（%2）"_s.arg(QDir::toNativeSeparators(copy),
                                     QFileInfo(copy).lastModified().toString(u"yyyy年M月d日"_s));
    return way;
}

} // namespace qinghe
