#include "store/sqlite_failure.h"

#include "runtime/runtime_error.h"
#include "store/copies.h"
#include "store/file_head.h"
#include "store/header_toggle.h"
#include "store/header_vfs.h"

#include <QDir>
#include <QStringView>
#include <sqlite3.h>

#include <algorithm>
#include <array>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

struct FailureRow {
    int code; ///< SQLite's; an extended code stands before its primary one
    int number;
    QStringView text;      ///< %1 is the file
    bool isBroken = false; ///< the file cannot be read any more: how it comes back is told as well
};

constexpr std::array Failures{
    FailureRow{SQLITE_READONLY_DBMOVED, RuntimeError::StoreFailure,
               u"账本文件“%1”在使用中被移走或换掉了，请重新启动程序。"},
    FailureRow{SQLITE_NOTADB, RuntimeError::StoreFailure, u"“%1”不是账本文件，或者已经损坏。", true},
    FailureRow{SQLITE_CORRUPT, RuntimeError::StoreFailure, u"账本文件“%1”已经损坏。", true},
    FailureRow{SQLITE_FULL, RuntimeError::DiskFull, u"磁盘已满，无法保存到“%1”。请腾出空间后再试。"},
    FailureRow{ForeignJournal, RuntimeError::StoreFailure,
               u"账本文件“%1”旁边的 data.dll-journal 不是这个账本自己的，没有使用它，账本没有改动。"
               u"请重新启动程序，启动时会把它放到一边。"},
    FailureRow{SQLITE_CANTOPEN, RuntimeError::PathFileAccess, u"无法打开账本文件“%1”，请检查它和所在文件夹的权限。"},
    FailureRow{SQLITE_READONLY, RuntimeError::PathFileAccess, u"无法写入账本文件“%1”，请检查它和所在文件夹的权限。"},
    FailureRow{SQLITE_PERM, RuntimeError::PathFileAccess, u"没有使用账本文件“%1”的权限。"},
    FailureRow{SQLITE_BUSY, RuntimeError::FileLocked, u"账本文件“%1”正被别的程序占用，请关闭那个程序后再试。"},
    FailureRow{SQLITE_LOCKED, RuntimeError::FileLocked, u"账本文件“%1”正被别的程序占用，请关闭那个程序后再试。"},
    FailureRow{SQLITE_IOERR_READ, RuntimeError::DeviceFailure,
               u"读取账本文件“%1”时磁盘出错。请检查磁盘或者 U 盘是否接好，再启动程序试一次。"},
    FailureRow{SQLITE_IOERR_LOCK, RuntimeError::DeviceFailure,
               u"账本文件“%1”所在的地方不能给文件加锁（有些网络文件夹是这样），在那里使用账本不安全。"
               u"请把程序的整个文件夹移到这台电脑的磁盘上再用。"},
    FailureRow{SQLITE_IOERR, RuntimeError::DeviceFailure, u"读写账本文件“%1”时磁盘出错。"},
    FailureRow{SQLITE_NOMEM, RuntimeError::OutOfMemory, u"内存不足，无法使用账本文件“%1”。"},
};

/// A copy that was made while the program did not run, and was put here while it runs.
constexpr FailureRow SpoiltHeader{SQLITE_NOTADB, RuntimeError::StoreFailure,
                                  u"账本文件“%1”是程序关闭以后的样子，现在还不能读。请重新启动程序，启动时会恢复。"};
/// A file that another program has switched to a way of writing that this one does not take part in.
constexpr FailureRow SwitchedToLog{SQLITE_CANTOPEN, RuntimeError::StoreFailure,
                                   u"账本文件“%1”被别的数据库程序改成了另一种写法（WAL），这个程序不能使用它，"
                                   u"账本没有改动。请用那个程序把它改回来（journal_mode=DELETE），再启动这个程序；"
                                   u"在那以前不要删掉旁边的 data.dll-wal，新的记录可能在里面。"
                                   u"不能改回来时，也可以换上一份备份：",
                                   true};
constexpr FailureRow UnknownFailure{0, RuntimeError::StoreFailure, u"使用账本文件“%1”时出错。"};

const FailureRow& rowOf(int code, const QString& path) {
    if ((code & 0xff) == SQLITE_NOTADB && headerIsSpoilt(path))
        return SpoiltHeader;
    if (code == SQLITE_CANTOPEN && headOf(path).isSwitchedToLog)
        return SwitchedToLog;
    const auto matches = [code](const FailureRow& row) { return row.code == code || row.code == (code & 0xff); };
    const auto found = std::ranges::find_if(Failures, matches);
    return found == Failures.end() ? UnknownFailure : *found;
}

} // namespace

void throwSqliteFailure(int code, const QString& path, const QString& detail) {
    const FailureRow& row = rowOf(code, path);
    QString text = row.text.toString().arg(QDir::toNativeSeparators(path));
    // SQLite's own words are English; they help nobody but where there are none of ours.
    if (&row == &UnknownFailure)
        text += u"请把下面这行文字告诉维护程序的人。\r\n%1：%2"_s.arg(code).arg(detail);
    else
        text += u"（代码 %1）"_s.arg(code);
    if (row.isBroken)
        text += wayBack(path);
    throw RuntimeError(row.number, text);
}

} // namespace qinghe
