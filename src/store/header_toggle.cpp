#include "store/header_toggle.h"

#include "runtime/runtime_error.h"
#include "store/copies.h"
#include "store/migrations.h"

#include <QDir>
#include <QFile>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 MarkOffset = 1;
const QByteArray Healed("\x01\x00", 2), Spoilt("\x00\x00", 2);

[[noreturn]] void throwFor(int number, const QString& problem, const QString& path, const QString& help = {}) {
    throw RuntimeError(number, problem.arg(QDir::toNativeSeparators(path)) + help);
}

QByteArray headWith(const QByteArray& mark) {
    return "S" + mark + QByteArray("ite format 3\0", 13);
}

QByteArray headOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(headWith(Healed).size()) : QByteArray();
}

void writeMark(const QString& path, const QByteArray& mark) {
    QFile file(path);
    if (!file.exists())
        throwFor(RuntimeError::FileNotFound, u"找不到账本文件“%1”。"_s, path, wayBack(path));
    if (!file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly | QIODevice::Unbuffered))
        throwFor(RuntimeError::PathFileAccess, u"无法写入账本文件“%1”，请检查它和所在文件夹的权限。"_s, path);
    if (file.size() < MarkOffset + mark.size())
        throwFor(RuntimeError::StoreFailure, u"“%1”不是账本文件，或者已经损坏。"_s, path, wayBack(path));
    if (!file.seek(MarkOffset) || file.write(mark) != mark.size())
        throwFor(RuntimeError::PathFileAccess, u"写入账本文件“%1”失败。"_s, path);
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
    return headOf(path) == headWith(Spoilt);
}

bool hasFormOfBook(const QString& path) {
    const QByteArray head = headOf(path);
    return head == headWith(Healed) || head == headWith(Spoilt);
}

} // namespace qinghe
