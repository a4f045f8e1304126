#include "disk/durable.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace qinghe {

bool makeDurable(const QFile& file) {
    return ::fsync(file.handle()) == 0 && makeNamesDurable(QFileInfo(file.fileName()).absolutePath());
}

bool makeNamesDurable(const QString& folder) {
    const int names = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (names < 0)
        return true;
    const bool kept = ::fsync(names) == 0 || errno == EINVAL || errno == ENOTSUP;
    ::close(names);
    return kept;
}

bool reserve(QFile& file, qint64 length) {
    const qint64 before = file.size();
    const int failure = ::posix_fallocate(file.handle(), 0, length);
    if (failure == 0)
        return true;
    if (file.size() > before) // part of the room was there
        file.resize(before);
    errno = failure;
    return !isOutOfRoom();
}

bool isOutOfRoom() {
    return errno == ENOSPC || errno == EDQUOT || errno == EFBIG;
}

} // namespace qinghe
