#include "store/header_toggle.h"

#include "runtime/runtime_error.h"
#include "store/migrations.h"

#include <QDir>
#include <QFile>

namespace qinghe {

namespace {

constexpr qint64 kMarkOffset = 1;
const QByteArray kHealed("\x01\x00", 2), kSpoilt("\x00\x00", 2);

[[noreturn]] void throwFor(int number, const QString& problem, const QString& path) {
    throw RuntimeError(number, problem.arg(QDir::toNativeSeparators(path)));
}

void writeMark(const QString& path, const QByteArray& mark) {
    QFile file(path);
    if (!file.exists())
        throwFor(RuntimeError::FileNotFound, QStringLiteral("找不到账本文件“%1”。"), path);
    if (!file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly | QIODevice::Unbuffered))
        throwFor(RuntimeError::PathFileAccess, QStringLiteral("无法写入账本文件“%1”，请检查它和所在文件夹的权限。"),
                 path);
    if (file.size() < kMarkOffset + mark.size())
        throwFor(RuntimeError::StoreFailure, QStringLiteral("“%1”不是账本文件，或者已经损坏。"), path);
    if (!file.seek(kMarkOffset) || file.write(mark) != mark.size())
        throwFor(RuntimeError::PathFileAccess, QStringLiteral("写入账本文件“%1”失败。"), path);
}

} // namespace

void healHeader(const QString& path) {
    requireKnownVersion(path);
    writeMark(path, kHealed);
}

void spoilHeader(const QString& path) {
    writeMark(path, kSpoilt);
}

bool headerIsSpoilt(const QString& path) {
    const QByteArray head = "S" + kSpoilt + QByteArray("ite format 3\0", 13);
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.read(head.size()) == head;
}

} // namespace qinghe
