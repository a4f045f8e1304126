#include "platform/files.h"

#include "runtime/runtime_error.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImageIOHandler>
#include <QImageReader>

namespace qinghe::files {

using namespace Qt::StringLiterals;

namespace {

constexpr int LargestPictureMiB = 512; ///< decoded; 48 megapixels need 184

[[noreturn]] void failAccess(const QFile& file, const QString& what) {
    if (file.error() == QFileDevice::ResourceError)
        throw RuntimeError(RuntimeError::DiskFull,
                           u"磁盘空间不足，%1没有写完。请清理磁盘后再试。"_s.arg(file.fileName()));
    throw RuntimeError(RuntimeError::PathFileAccess,
                       u"%1：%2。请检查文件夹的权限和磁盘空间。"_s.arg(what, file.fileName()));
}

/// Into an open file.
void write(QFile& file, const QByteArray& bytes) {
    if (file.write(bytes) != bytes.size() || !file.flush())
        failAccess(file, u"文件没有写完"_s);
}

void write(const QString& path, QIODevice::OpenMode mode, const QByteArray& bytes) {
    QFile file(path);
    if (!file.open(mode))
        failAccess(file, u"不能写入文件"_s);
    write(file, bytes);
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

void writeAll(const QString& path, const QByteArray& bytes) {
    write(path, QIODevice::WriteOnly | QIODevice::Truncate, bytes);
}

QString writeNewForOwner(const QString& path, const QByteArray& bytes) {
    const QFileInfo wanted(path);
    QFile file(path);
    for (int i = 2; file.exists(); ++i)
        file.setFileName(
            wanted.dir().filePath(u"%1（%2）.%3"_s.arg(wanted.completeBaseName()).arg(i).arg(wanted.suffix())));
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly, QFileDevice::ReadOwner | QFileDevice::WriteOwner))
        failAccess(file, u"不能写入文件"_s);
    write(file, bytes);
    return file.fileName();
}

void writeOver(const QString& path, const QByteArray& bytes) {
    write(path, QIODevice::ReadWrite, bytes);
}

QByteArray readAll(const QString& path) {
    QFile file(path);
    if (!file.exists())
        throw RuntimeError(RuntimeError::FileNotFound, u"找不到文件：%1。"_s.arg(path));
    if (isFolder(path) || !file.open(QIODevice::ReadOnly))
        failAccess(file, u"不能读取文件"_s);
    return file.readAll();
}

QByteArray readAllOrMake(const QString& path) {
    if (path.isEmpty())
        throw RuntimeError(RuntimeError::PathFileAccess, u"没有指定文件。请先选择一个文件。"_s);
    requireFolderOf(path);
    if (!QFileInfo::exists(path))
        writeAll(path, {});
    requirePlainFile(path);
    return readAll(path);
}

void deleteMatching(const QString& folder, const QString& pattern) {
    QDir dir(folder);
    const QString names = QString(pattern).replace(u'[', u"[[]"_s); // brackets are no wildcards here
    for (const QString& name : dir.entryList({names}, QDir::Files | QDir::Hidden | QDir::System | QDir::CaseSensitive))
        if (QFile file(dir.filePath(name)); !file.remove())
            failAccess(file, u"不能删除文件"_s);
}

QImage loadPicture(const QString& path, const QSize& fill) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw RuntimeError(RuntimeError::FileNotFound, u"找不到图片文件：%1。"_s.arg(path));
    QByteArray bytes = file.readAll();
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer);
    reader.setAllocationLimit(LargestPictureMiB);
    reader.setAutoTransform(true);
    const bool turned = reader.transformation() & QImageIOHandler::TransformationRotate90;
    const QSize needed = turned ? (fill * qApp->devicePixelRatio()).transposed() : fill * qApp->devicePixelRatio();
    if (reader.size().width() > needed.width() && reader.size().height() > needed.height())
        reader.setScaledSize(needed);
    QImage image = reader.read();
    if (image.isNull())
        throw RuntimeError(RuntimeError::InvalidPicture,
                           u"这个文件不是能显示的图片：%1。请换一个 JPEG、PNG 或 BMP 图片。"_s.arg(path));
    return image;
}

} // namespace qinghe::files
