#include "maintenance/file_copy.h"

#include "disk/durable.h"
#include "platform/files.h"
#include "runtime/runtime_error.h"

#include <QDir>

#include <filesystem>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 PieceSize = 1 << 20;

[[noreturn]] void refuse(int number, const QString& problem, const QFile& file) {
    throw RuntimeError(number, problem.arg(QDir::toNativeSeparators(file.fileName())));
}

/// The same file may bear several names.
bool isSameFile(const QFile& one, const QFile& other) {
    std::error_code failed;
    return std::filesystem::equivalent(one.filesystemFileName(), other.filesystemFileName(), failed) && !failed;
}

void openSource(QFile& source) {
    if (!source.exists())
        refuse(RuntimeError::FileNotFound, u"找不到文件“%1”。请检查文件名和所在的文件夹。"_s, source);
    files::requirePlainFile(source.fileName());
    if (!source.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        refuse(RuntimeError::PathFileAccess, u"无法读取文件“%1”。请检查它的权限。"_s, source);
    if (source.size() == 0)
        refuse(RuntimeError::PathFileAccess, u"文件“%1”是空的。请指定另一个文件。"_s, source);
}

void openTarget(QFile& target) {
    files::requireFolderOf(target.fileName());
    if (target.exists())
        files::requirePlainFile(target.fileName());
    constexpr auto Mode = QIODevice::ReadWrite | QIODevice::Unbuffered;
    if (!target.open(Mode, QFile::ReadOwner | QFile::WriteOwner)) // passwords in it are in clear
        refuse(RuntimeError::PathFileAccess, u"无法写入文件“%1”。请检查它和所在文件夹的权限，或者另选一个位置。"_s,
               target);
}

bool isFull(const QFile& target) {
    return target.error() == QFile::ResourceError;
}

} // namespace

FileCopy::FileCopy(const QString& source, const QString& target) : m_source(source), m_target(target) {
    openSource(m_source);
    if (isSameFile(m_source, m_target))
        refuse(RuntimeError::PathFileAccess, u"“%1”和要复制的是同一个文件。请指定另一个文件。"_s, m_target);
    openTarget(m_target);
    m_length = m_source.size();
}

void FileCopy::run(const std::function<void(qint64 written)>& progress) {
    QByteArray last;
    for (QByteArray piece = nextPiece(); !piece.isEmpty(); piece = nextPiece()) {
        append(piece);
        last = piece.last(1);
        progress(m_target.pos());
    }
    append(last);
    progress(m_target.pos());
    if (!makeDurable(m_target))
        breakOff(u"磁盘没有收下写入的内容"_s);
}

QByteArray FileCopy::nextPiece() {
    QByteArray piece(PieceSize, Qt::Uninitialized);
    const qint64 got = m_source.read(piece.data(), PieceSize);
    if (got < 0)
        breakOff(u"读取“%1”时出错"_s.arg(QDir::toNativeSeparators(m_source.fileName())));
    piece.truncate(got);
    return piece;
}

void FileCopy::append(const QByteArray& piece) {
    qint64 written = 0;
    while (written < piece.size()) { // a disk takes what still fits before it says that it is full
        const qint64 taken = m_target.write(piece.constData() + written, piece.size() - written);
        if (taken <= 0)
            breakOff(isFull(m_target) ? u"磁盘已满"_s : u"写入时出错"_s);
        written += taken;
    }
}

void FileCopy::breakOff(const QString& reason) const {
    throw RuntimeError(isFull(m_target) ? RuntimeError::DiskFull : RuntimeError::PathFileAccess,
                       u"%1，“%2”没有写完，现在的内容不完整。请腾出空间或检查磁盘后再试。"_s.arg(
                           reason, QDir::toNativeSeparators(m_target.fileName())));
}

} // namespace qinghe
