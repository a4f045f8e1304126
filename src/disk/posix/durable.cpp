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

bool isOutOfRoom() {
    return errno == ENOSPC || errno == EDQUOT || errno == EFBIG;
}

} // namespace qinghe
