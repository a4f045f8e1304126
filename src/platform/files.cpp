#include "platform/files.h"

#include "disk/plain_file.h"
#include "disk/replace_file.h"
#include "runtime/runtime_error.h"

#include <QDir>
#include <QFileInfo>

#include <filesystem>

namespace qinghe::files {

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void failAccess(const QString& what, const QString& path, const QString& why) {
    throw RuntimeError(RuntimeError::PathFileAccess,
                       u"%1：%2（%3）。请检查文件夹的权限和磁盘空间。"_s.arg(what, path, why));
}

/// A file of the program's own that was left under the name, opened to be written over; a folder there is told of.
bool openLeftover(PlainFile& file) {
    constexpr auto Mode = QIODevice::ReadWrite | QIODevice::ExistingOnly | QIODevice::Unbuffered;
    const QString path = file.fileName();
    if (const FileKind kind = kindOf(path); kind == FileKind::Folder)
        failAccess(u"不能写入文件"_s, path, u"它是一个文件夹"_s);
    else if (kind != FileKind::Plain || !isOwn(path))
        return false;
    if (!file.open(Mode)) {
        PlainFile readOnly(path);
        if (!readOnly.open(QIODevice::ReadOnly) || !isOwnAlone(readOnly))
            return false;
        readOnly.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
        if (!file.open(Mode))
            return false;
    }
    return isOwnAlone(file);
}

} // namespace

bool isFolder(const QString& path) {
    return QFileInfo(path).isDir();
}

void makeFolder(const QString& path) {
    if (QFileInfo(path).isFile())
        throw RuntimeError(
            RuntimeError::PathFileAccess,
            u"“%1”是一个文件，程序却要在这个名字的文件夹里存放内容。请把这个文件改名或移到别处，再启动程序。"_s.arg(
                path));
    if (!QDir().mkdir(path))
        throw RuntimeError(RuntimeError::PathFileAccess, u"不能建立文件夹：%1。请检查上级文件夹的权限。"_s.arg(path));
}

void requireFolderOfItsOwn(const QString& path, const QString& apart) {
    std::error_code none;
    const auto native = [](const QString& name) { return QFile(name).filesystemFileName(); };
    const bool link = kindOf(path) == FileKind::Link;
    if (link || (QFileInfo(path).isDir() && std::filesystem::equivalent(native(path), native(apart), none)))
        throw RuntimeError(
            RuntimeError::PathFileAccess,
            u"“%1”%2，程序不在那里存放或删除内容。请把它改名或移到别处，再启动程序，程序会另建一个文件夹，"
            u"要用的文件可以复制进去。"_s.arg(path, link ? u"是一个链接，不是文件夹"_s : u"就是程序所在的文件夹"_s));
}

bool isPlainFileIn(const QString& folder, const QString& path) {
    const QString file = QFileInfo(path).canonicalFilePath(), place = QFileInfo(folder).canonicalFilePath();
    return !place.isEmpty() && file.startsWith(place + u'/') && QFileInfo(file).isFile();
}

void requirePlainFile(const QString& path) {
    const QFileInfo info(path);
    const QString shown = QDir::toNativeSeparators(path);
    if (info.isDir())
        throw RuntimeError(RuntimeError::PathFileAccess, u"“%1”是一个文件夹。请指定一个文件。"_s.arg(shown));
    if (!info.isFile())
        throw RuntimeError(RuntimeError::PathFileAccess, u"“%1”不是普通文件。请指定另一个文件。"_s.arg(shown));
}

void requireFolderOf(const QString& path) {
    if (!QFileInfo(path).dir().exists())
        throw RuntimeError(RuntimeError::PathNotFound,
                           u"“%1”所在的文件夹不存在。请另选一个位置。"_s.arg(QDir::toNativeSeparators(path)));
}

QString writeNewForOwner(const QString& path, const QByteArray& bytes) {
    const QFileInfo wanted(path);
    QString name = path;
    for (int i = 2; kindOf(name) != FileKind::Missing; ++i)
        name = wanted.dir().filePath(u"%1（%2）.%3"_s.arg(wanted.completeBaseName()).arg(i).arg(wanted.suffix()));
    replaceFile(name, bytes);
    return name;
}

void writeOver(const QString& path, const QByteArray& bytes) {
    PlainFile file(path);
    if (!openLeftover(file)) {
        file.close();
        QFile::remove(path);
        if (!file.open(QIODevice::ReadWrite | QIODevice::NewOnly | QIODevice::Unbuffered))
            failAccess(u"不能写入文件"_s, path, file.objection());
    }
    writeWhole(file, bytes);
}

QByteArray readAll(const QString& path) {
    PlainFile file(path);
    if (kindOf(path) == FileKind::Missing)
        throw RuntimeError(RuntimeError::FileNotFound, u"找不到文件：%1。"_s.arg(path));
    if (!file.open(QIODevice::ReadOnly))
        failAccess(u"不能读取文件"_s, path, file.objection());
    return file.readAll();
}

QByteArray readAllOrMake(const QString& path) {
    if (path.isEmpty())
        throw RuntimeError(RuntimeError::PathFileAccess, u"没有指定文件。请先选择一个文件。"_s);
    requireFolderOf(path);
    if (QFileInfo::exists(path))
        requirePlainFile(path);
    PlainFile file(path, Links::Follow);
    if (!file.open(QIODevice::ReadOnly) &&
        (kindOf(path) != FileKind::Missing || !file.open(QIODevice::ReadWrite | QIODevice::NewOnly)))
        failAccess(u"不能读取文件"_s, path, file.objection());
    return file.readAll();
}

void deleteMatching(const QString& folder, const QString& pattern) {
    QDir dir(folder);
    const QString names = QString(pattern).replace(u'[', u"[[]"_s); // brackets are no wildcards here
    for (const QString& name : dir.entryList({names}, QDir::Files | QDir::Hidden | QDir::System | QDir::CaseSensitive))
        if (QFile file(dir.filePath(name)); !file.remove()) // a link goes, and not what it leads to
            failAccess(u"不能删除文件"_s, file.fileName(), file.errorString());
}

} // namespace qinghe::files
