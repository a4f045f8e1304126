#include "disk/replace_file.h"

#include "disk/durable.h"
#include "disk/plain_file.h"
#include "runtime/runtime_error.h"

#include <QDir>
#include <QFileInfo>

#include <filesystem>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void fail(int number, const QString& path, const QString& why) {
    throw RuntimeError(number, u"不能写入文件“%1”：%2。"_s.arg(QDir::toNativeSeparators(path), why));
}

/// The same for every attempt at a name, and short however long that is.
QString unfinishedNameOf(const QFileInfo& file) {
    const QString mark = QString::number(qHash(file.fileName(), 0), 16);
    return file.dir().filePath(UnfinishedFiles.toString().replace(u'*', mark));
}

void makeWhole(const QString& path, const QString& wanted, const std::function<void(QFile&)>& fill) {
    PlainFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
        fail(isOutOfRoom() ? RuntimeError::DiskFull : RuntimeError::PathFileAccess, wanted, file.objection());
    fill(file);
    if (!makeDurable(file))
        fail(RuntimeError::DeviceFailure, wanted, u"磁盘没有收下写入的内容"_s);
}

} // namespace

bool writeBytes(QFile& file, const QByteArray& bytes) {
    qint64 written = 0;
    while (written < bytes.size()) { // a disk takes what still fits before it says that it is full
        const qint64 taken = file.write(bytes.constData() + written, bytes.size() - written);
        if (taken <= 0)
            return false;
        written += taken;
    }
    return true;
}

void writeWhole(QFile& file, const QByteArray& bytes, const QString& shown) {
    if (writeBytes(file, bytes))
        return;
    const bool isFull = isOutOfRoom(); // before anything else is asked of the system
    fail(isFull ? RuntimeError::DiskFull : RuntimeError::PathFileAccess, shown.isEmpty() ? file.fileName() : shown,
         isFull ? u"磁盘已满，请腾出空间后再试"_s : file.errorString());
}

void writeWholeFile(QFile& file, const QString& source) {
    constexpr qint64 PieceSize = 1 << 18;
    const auto failReading = [&source](int number, const QString& why) {
        throw RuntimeError(number, u"不能读取文件“%1”：%2。"_s.arg(QDir::toNativeSeparators(source), why));
    };
    PlainFile opened(source, Links::Follow);
    if (!opened.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        failReading(RuntimeError::PathFileAccess, opened.objection());
    for (QByteArray piece = opened.read(PieceSize); !piece.isEmpty(); piece = opened.read(PieceSize))
        writeWhole(file, piece);
    if (opened.error() != QFile::NoError)
        failReading(RuntimeError::DeviceFailure, opened.errorString());
}

void replaceFile(const QString& path, const std::function<void(QFile&)>& fill) {
    const QFileInfo wanted(path);
    const QString unfinished = unfinishedNameOf(wanted);
    QFile::remove(unfinished);
    try {
        makeWhole(unfinished, path, fill);
        std::error_code failed;
        std::filesystem::rename(QFile(unfinished).filesystemFileName(), QFile(path).filesystemFileName(), failed);
        if (failed)
            fail(RuntimeError::PathFileAccess, path, u"它是一个文件夹，或者没有使用它的权限"_s);
    } catch (...) {
        QFile::remove(unfinished);
        throw;
    }
    if (!makeNamesDurable(wanted.absolutePath()))
        fail(RuntimeError::DeviceFailure, path, u"磁盘没有收下写入的内容"_s);
}

void replaceFile(const QString& path, const QByteArray& bytes) {
    replaceFile(path, [&](QFile& file) { writeWhole(file, bytes, path); });
}

} // namespace qinghe
