#include "disk/plain_file.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

int flagsFor(QIODevice::OpenMode mode, Links links) {
    const bool writes = mode & QIODevice::WriteOnly, reads = mode & QIODevice::ReadOnly;
    int flags = O_CLOEXEC | O_NOCTTY | O_NONBLOCK; // a pipe or a device answers at once, and is then refused
    flags |= writes ? reads ? O_RDWR : O_WRONLY : O_RDONLY;
    if (links == Links::Refuse)
        flags |= O_NOFOLLOW;
    if (writes && !(mode & QIODevice::ExistingOnly))
        flags |= O_CREAT;
    if (mode & QIODevice::NewOnly)
        flags |= O_EXCL;
    if (mode & QIODevice::Append)
        flags |= O_APPEND;
    return flags;
}

/// What is there loses its content only when it is known to be a plain file.
bool empties(QIODevice::OpenMode mode) {
    using enum QIODevice::OpenModeFlag;
    return (mode & Truncate) || ((mode & WriteOnly) && !(mode & (ReadOnly | Append | NewOnly)));
}

QString objectionOf(int error) {
    switch (error) {
    case ELOOP:
        return u"它是一个链接，不是文件"_s;
    case EISDIR:
        return u"它是一个文件夹"_s;
    case ENXIO:
        return u"它不是普通文件"_s;
    case EACCES:
    case EPERM:
    case EROFS:
        return u"没有使用它的权限"_s;
    case ENOENT:
        return u"没有这个文件"_s;
    case EEXIST:
        return u"已经有一个同名的文件"_s;
    case ENOSPC:
    case EDQUOT:
        return u"磁盘已满"_s;
    default:
        return QString::fromLocal8Bit(std::strerror(error));
    }
}

} // namespace

FileKind kindOf(const QString& path) {
    struct stat info = {};
    if (::lstat(QFile::encodeName(path).constData(), &info) != 0)
        return FileKind::Missing;
    if (S_ISLNK(info.st_mode))
        return FileKind::Link;
    if (S_ISDIR(info.st_mode))
        return FileKind::Folder;
    if (!S_ISREG(info.st_mode))
        return FileKind::Other;
    return info.st_nlink > 1 ? FileKind::Shared : FileKind::Plain;
}

bool isOwn(const QString& path) {
    struct stat info = {};
    return ::lstat(QFile::encodeName(path).constData(), &info) != 0 || info.st_uid == ::geteuid();
}

bool isOwnAlone(const QFile& opened) {
    struct stat info = {};
    return ::fstat(opened.handle(), &info) == 0 && info.st_uid == ::geteuid() && info.st_nlink == 1;
}

void closeToOthers(const QString& path) {
    constexpr mode_t Owners = S_IRWXU, All = S_IRWXU | S_IRWXG | S_IRWXO;
    const int opened =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (opened < 0)
        return;
    struct stat info = {};
    if (::fstat(opened, &info) == 0 && info.st_uid == ::geteuid() && (info.st_mode & All & ~Owners) != 0 &&
        (S_ISDIR(info.st_mode) || (S_ISREG(info.st_mode) && info.st_nlink == 1)))
        ::fchmod(opened, info.st_mode & Owners);
    ::close(opened);
}

bool PlainFile::refuse(const QString& objection) {
    m_objection = objection;
    setErrorString(objection);
    return false;
}

bool PlainFile::open(OpenMode mode) {
    constexpr mode_t ForOwner = S_IRUSR | S_IWUSR;
    const int opened = ::open(QFile::encodeName(m_path).constData(), flagsFor(mode, m_links), ForOwner);
    if (opened < 0)
        return refuse(objectionOf(errno));
    struct stat info = {};
    const bool plain = ::fstat(opened, &info) == 0 && S_ISREG(info.st_mode);
    if (!plain || (empties(mode) && ::ftruncate(opened, 0) != 0)) {
        const QString why = plain                   ? objectionOf(errno)
                            : S_ISDIR(info.st_mode) ? objectionOf(EISDIR)
                                                    : objectionOf(ENXIO);
        ::close(opened);
        return refuse(why);
    }
    constexpr OpenMode Ours = NewOnly | ExistingOnly | Truncate;
    return QFile::open(opened, mode & ~Ours, AutoCloseHandle);
}

} // namespace qinghe
