#include "disk/durable.h"

#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>

#include <cerrno>
#include <fcntl.h>
#include <sys/resource.h>
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
    struct rlimit largest = {};
    if (::getrlimit(RLIMIT_FSIZE, &largest) == 0 && static_cast<rlim_t>(length) > largest.rlim_cur) {
        errno = EFBIG;
        return false;
    }
    if (::fallocate(file.handle(), FALLOC_FL_KEEP_SIZE, 0, length) == 0)
        return true;
    if (!isOutOfRoom()) {
        const QStorageInfo disk(QFileInfo(file.fileName()).path());
        return !disk.isValid() || disk.bytesAvailable() >= length - file.size();
    }
    file.resize(file.size()); // lets go what it has been given behind its end
    return false;
}

bool isOutOfRoom() {
    return errno == ENOSPC || errno == EDQUOT || errno == EFBIG;
}

} // namespace qinghe
