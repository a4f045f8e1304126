#include "store/header_toggle.h"

#include "disk/plain_file.h"
#include "disk/replace_file.h"
#include "runtime/runtime_error.h"
#include "store/copies.h"
#include "store/file_head.h"
#include "store/migrations.h"

#include <QDir>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 MarkOffset = 1;
const QByteArray Healed("\x01\x00", 2), Spoilt("\x00\x00", 2);

[[noreturn]] void throwFor(int number, const QString& problem, const QString& path, const QString& help = {}) {
    throw RuntimeError(number, problem.arg(QDir::toNativeSeparators(path)) + help);
}

/// Nothing is written into what is no book, whatever its name. The book may be a link that its owner has laid.
void writeMark(const QString& path, const QByteArray& mark) {
    PlainFile file(path, Links::Follow);
    if (!file.exists())
        throwFor(RuntimeError::FileNotFound, u"找不到账本文件“%1”。"_s, path, wayBack(path));
    if (!file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly | QIODevice::Unbuffered))
        throwFor(RuntimeError::PathFileAccess, u"无法写入账本文件“%1”，请检查它和所在文件夹的权限。"_s, path);
    const QByteArray head = file.read(FileHead::Size);
    if (file.error() != QFile::NoError)
        throwFor(RuntimeError::DeviceFailure,
                 u"读取账本文件“%1”时磁盘出错。请检查磁盘或者 U 盘是否接好，再启动程序试一次。"_s, path);
    if (FileHead(head).mark == FileHead::Mark::None)
        throwFor(RuntimeError::StoreFailure, u"“%1”不是账本文件，或者已经损坏。"_s, path, wayBack(path));
    file.seek(MarkOffset);
    writeWhole(file, mark);
}

} // namespace

void healHeader(const QString& path) {
    requireKnownVersion(path);
    writeMark(path, Healed);
}

void spoilHeader(const QString& path) {
    writeMark(path, Spoilt);
}

bool headerIsSpoilt(const QString& path) {
    return headOf(path).mark == FileHead::Mark::Spoilt;
}

bool hasFormOfBook(const QString& path) {
    const FileHead::Mark mark = headOf(path).mark;
    return mark == FileHead::Mark::Healed || mark == FileHead::Mark::Spoilt;
}

} // namespace qinghe
