#include "platform/durable.h"

#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <unistd.h>

namespace qinghe {

bool makeDurable(const QFile& file) {
    if (::fsync(file.handle()) != 0)
        return false;
    const QByteArray folder = QFile::encodeName(QFileInfo(file.fileName()).absolutePath());
    const int names = ::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (names < 0)
        return true; // a folder that may be written into and not read: its names reach the disk in their own time
    const bool kept = ::fsync(names) == 0;
    ::close(names);
    return kept;
}

} // namespace qinghe
