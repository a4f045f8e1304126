#include "store/migrations.h"

#include "runtime/runtime_error.h"
#include "store/connection.h"
#include "store/data_file.h"
#include "store/file_head.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr int LastVersion = 9999; ///< beyond it a number is no version but damage

/// Gives the version that a number in the file stands for.
int versionOf(int number, const QString& path, int newest) {
    const QString shown = QDir::toNativeSeparators(path), told = QString::number(number);
    if (number < 0 || number > LastVersion)
        throw RuntimeError(
            RuntimeError::StoreFailure,
            u"“%1”的版本号是 %2，不是账本的版本号，文件可能已经损坏。请改用另一份备份文件。"_s.arg(shown, told));
    if (number > newest)
        throw RuntimeError(RuntimeError::StoreFailure,
                           u"“%1”是第 %2 版的账本，这个程序只能读到第 %3 版。请安装新版的程序，再使用它。"
                           u"账本没有改动。"_s.arg(shown, told, QString::number(newest)));
    return std::max(number, FirstVersion);
}

/// Whether both can be read and hold the same bytes.
bool holdTheSame(const QString& one, const QString& other) {
    QFile first(one), second(other);
    return first.open(QIODevice::ReadOnly) && second.open(QIODevice::ReadOnly) && first.readAll() == second.readAll();
}

/// A name beside the file that is free, or that a copy of the same content bears already.
QString nameForCopy(const QString& path, int version, const QString& copy) {
    const QFileInfo file(path);
    const QString base = file.dir().filePath(u"%1.版本%2"_s.arg(file.completeBaseName(), QString::number(version)));
    QString name = base + u".dat"_s;
    for (int number = 2; QFileInfo::exists(name) && !holdTheSame(name, copy); ++number)
        name = base + u"-%1.dat"_s.arg(number);
    return name;
}

/// The bytes of a copy are durable under a name that says it is unfinished before the copy gets its own. This name is
/// as durable as the first page that a step writes, since both need the folder to be synced before.
void keepCopy(Connection& connection, int version) {
    const QString unfinished = connection.path() + u".unfinished"_s;
    const auto removeUnfinished = [&] {
        QFile::remove(unfinished);
        QFile::remove(journalOf(unfinished));
    };
    removeUnfinished();
    try {
        connection.copyTo(unfinished);
        const QString name = nameForCopy(connection.path(), version, unfinished);
        if (!QFileInfo::exists(name) && !QFile::rename(unfinished, name))
            throw RuntimeError(RuntimeError::PathFileAccess,
                               u"无法写入文件“%1”。"_s.arg(QDir::toNativeSeparators(name)));
    } catch (const RuntimeError& error) {
        removeUnfinished();
        throw RuntimeError(error.number(),
                           u"账本要换成新版的格式，但没能先留一份副本，账本没有改动。"_s + error.text());
    }
    removeUnfinished();
}

void runSteps(Connection& connection, int version, std::span<const Migration> steps) {
    for (const Migration& step : steps) {
        if (step.to > version)
            step.run(connection);
    }
    connection.setVersion(versionAfter(steps));
}

} // namespace

void requireKnownVersion(const QString& path) {
    const FileHead head = headOf(path);
    if (head.isWhole)
        versionOf(head.version, path, CurrentVersion);
}

void bringUpToDate(Connection& connection, std::span<const Migration> steps) {
    const int newest = versionAfter(steps);
    const int version = versionOf(connection.version(), connection.path(), newest);
    if (version == newest)
        return;
    const qint64 seen = connection.dataVersion();
    keepCopy(connection, version);
    connection.begin();
    try {
        if (connection.dataVersion() != seen)
            throw RuntimeError(RuntimeError::FileLocked, u"账本文件“%1”正被别的程序占用，请关闭那个程序后再试。"_s.arg(
                                                             QDir::toNativeSeparators(connection.path())));
        runSteps(connection, version, steps);
        connection.commit();
    } catch (...) {
        connection.rollBack();
        throw;
    }
}

} // namespace qinghe
