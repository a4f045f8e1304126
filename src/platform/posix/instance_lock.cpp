#include "platform/instance_lock.h"

#include <QFile>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace qinghe {

namespace {

class FolderLock : public InstanceLock {
public:
    explicit FolderLock(const QString& folder)
        : m_folder(::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {}
    ~FolderLock() override {
        if (m_folder >= 0)
            ::close(m_folder);
    }
    /// A folder that cannot be opened has no second copy to be told from.
    bool tryTake() override { return m_folder < 0 || ::flock(m_folder, LOCK_EX | LOCK_NB) == 0; }

private:
    int m_folder;
};

} // namespace

std::unique_ptr<InstanceLock> folderLock(const QString& folder) {
    return std::make_unique<FolderLock>(folder);
}

} // namespace qinghe
