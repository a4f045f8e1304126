#include "maintenance/file_copy.h"

#include "disk/durable.h"
#include "disk/replace_file.h"
#include "platform/files.h"
#include "runtime/runtime_error.h"

#include <QDir>
#include <QFileInfo>

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
    const auto native = [](const QFile& file) { return QFile(file.fileName()).filesystemFileName(); };
    std::error_code failed;
    return std::filesystem::equivalent(native(one), native(other), failed) && !failed;
}

void openSource(PlainFile& source) {
    if (!QFileInfo::exists(source.fileName()))
        refuse(RuntimeError::FileNotFound, u"找不到文件“%1”。请检查文件名和所在的文件夹。"_s, source);
    files::requirePlainFile(source.fileName());
    if (!source.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        refuse(RuntimeError::PathFileAccess, u"无法读取文件“%1”。请检查它的权限。"_s, source);
    if (source.size() == 0)
        refuse(RuntimeError::PathFileAccess, u"文件“%1”是空的。请指定另一个文件。"_s, source);
}

/// What is written into a target stays in this one file, and nobody else can read it there: the passwords of a book are
/// in clear.
void requireOwnFile(const QFile& target) {
    const QString path = target.fileName();
    const FileKind kind = kindOf(path);
    if (kind == FileKind::Link)
        refuse(RuntimeError::PathFileAccess,
               u"“%1”是一个链接，写进去会改掉它指向的文件，程序没有写入。请改用一个不是链接的文件。"_s, target);
    files::requirePlainFile(path);
    if (kind == FileKind::Shared)
        refuse(RuntimeError::PathFileAccess,
               u"“%1”在别处还有一个名字，写进去会改掉那边的文件，程序没有写入。请另选一个文件，或者先去掉那个名字。"_s,
               target);
    if (!isOwn(path))
        refuse(
            RuntimeError::PathFileAccess,
            u"“%1”是这台电脑上另一个账户的文件，那个账户能读到写进去的内容，程序没有写入。请另选一个文件，或者用那个账户来做。"_s,
            target);
}

void openTarget(PlainFile& target, bool isNew) {
    const auto mode = isNew ? QIODevice::NewOnly : QIODevice::ExistingOnly;
    if (!target.open(QIODevice::ReadWrite | QIODevice::Unbuffered | mode) || !isOwnAlone(target))
        refuse(RuntimeError::PathFileAccess, u"无法写入文件“%1”。请检查它和所在文件夹的权限，或者另选一个位置。"_s,
               target);
    target.setPermissions(QFile::ReadOwner | QFile::WriteOwner); // before the first byte
}

} // namespace

FileCopy::FileCopy(const QString& source, const QString& target) : m_source(source, Links::Follow), m_target(target) {
    openSource(m_source);
    if (isSameFile(m_source, m_target))
        refuse(RuntimeError::PathFileAccess, u"“%1”和要复制的是同一个文件。请指定另一个文件。"_s, m_target);
    m_length = m_source.size();
    files::requireFolderOf(target);
    const bool isNew = kindOf(target) == FileKind::Missing;
    if (!isNew)
        requireOwnFile(m_target);
    openTarget(m_target, isNew);
    if (reserve(m_target, m_length + 1))
        return;
    if (isNew)
        QFile::remove(target);
    refuse(RuntimeError::DiskFull, u"磁盘空间不够，“%1”没有写入，原来的内容都还在。请腾出空间，或者另选一个位置。"_s,
           m_target);
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
        breakOff(RuntimeError::DeviceFailure, u"磁盘没有收下写入的内容"_s);
}

QByteArray FileCopy::nextPiece() {
    QByteArray piece(PieceSize, Qt::Uninitialized);
    const qint64 got = m_source.read(piece.data(), PieceSize);
    if (got < 0)
        breakOff(RuntimeError::PathFileAccess, u"读取“%1”时出错"_s.arg(QDir::toNativeSeparators(m_source.fileName())));
    piece.truncate(got);
    return piece;
}

void FileCopy::append(const QByteArray& piece) {
    if (writeBytes(m_target, piece))
        return;
    isOutOfRoom() ? breakOff(RuntimeError::DiskFull, u"磁盘已满"_s)
                  : breakOff(RuntimeError::PathFileAccess, u"写入时出错"_s);
}

void FileCopy::breakOff(int number, const QString& reason) const {
    throw RuntimeError(number, u"%1，“%2”没有写完，现在的内容不完整。请腾出空间或检查磁盘后再试。"_s.arg(
                                   reason, QDir::toNativeSeparators(m_target.fileName())));
}

} // namespace qinghe
