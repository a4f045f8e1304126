#include "store/safety_folder.h"

#include "disk/plain_file.h"
#include "runtime/runtime_error.h"

#include <QDir>
#include <QFileInfo>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr auto ForOwner = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;

[[noreturn]] void refuse(const QString& folder, const QString& why) {
    throw RuntimeError(RuntimeError::PathFileAccess,
                       u"安全副本的文件夹“%1”不能用：%2。"_s.arg(QDir::toNativeSeparators(folder), why));
}

} // namespace

QString safetyFolderOf(const QString& book) {
    return QFileInfo(book).dir().filePath(u"安全副本"_s);
}

QString readySafetyFolder(const QString& book) {
    const QString folder = safetyFolderOf(book);
    const FileKind kind = kindOf(folder);
    if (kind == FileKind::Missing ? !QDir().mkdir(folder, ForOwner) : !isOwn(folder))
        refuse(folder, u"没有权限"_s);
    if (kind != FileKind::Missing && kind != FileKind::Folder)
        refuse(folder, kind == FileKind::Link ? u"它是一个链接"_s : u"它不是文件夹"_s);
    QFile::setPermissions(folder, ForOwner);
    return folder;
}

QString nameInSafety(const QString& book, const QDateTime& when, const QString& occasion, const QString& suffix) {
    return nameIn(safetyFolderOf(book), when, occasion, suffix);
}

QString nameIn(const QString& path, const QDateTime& when, const QString& occasion, const QString& suffix) {
    const QDir folder(path);
    const QString base = u"%1 %2"_s.arg(when.toString(u"yyyy-MM-dd HHmmss"_s), occasion);
    QString name = base + suffix;
    for (int number = 2; kindOf(folder.filePath(name)) != FileKind::Missing; ++number)
        name = base + u"（%1）"_s.arg(number) + suffix;
    return folder.filePath(name);
}

} // namespace qinghe
