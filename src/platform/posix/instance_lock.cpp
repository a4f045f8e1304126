#include "platform/instance_lock.h"

#include "platform/handlers.h"

#include <QFile>
#include <QSocketNotifier>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace qinghe {

namespace {

/// A name for the folder among those of sockets that lie in no folder and go with their process; every copy that runs
/// here finds the same one.
struct Address {
    explicit Address(int folder) {
        struct stat info = {};
        fstat(folder, &info);
        const QByteArray name = "qinghe-" + QByteArray::number(quint64(getuid())) + '-' +
                                QByteArray::number(quint64(info.st_dev), 16) + '-' +
                                QByteArray::number(quint64(info.st_ino), 16);
        place.sun_family = AF_UNIX;
        std::ranges::copy(name, place.sun_path + 1); // behind a NUL, which says that it lies in no folder
        size = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + static_cast<std::size_t>(name.size()));
    }
    const sockaddr* get() const { return reinterpret_cast<const sockaddr*>(&place); }

    sockaddr_un place = {};
    socklen_t size = 0;
};

class FolderLock : public InstanceLock {
public:
    explicit FolderLock(const QString& folder)
        : m_folder(::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)),
          m_socket(::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0)) {}
    ~FolderLock() override {
        m_calls.reset();
        for (const int opened : {m_folder, m_socket})
            if (opened >= 0)
                ::close(opened);
    }
    /// Only a lock that is held tells of a second copy; a folder that cannot be opened, or lies where there are no
    /// locks, has none to be told from.
    bool tryTake() override {
        if (m_folder < 0)
            return true;
        if (isHeldElsewhere())
            return false;
        listen();
        return true;
    }

    void answerCalls(std::function<void()> called) override { m_called = std::move(called); }

    void callHolder() override {
        const Address address(m_folder);
        if (m_socket >= 0)
            ::sendto(m_socket, "come", 4, MSG_NOSIGNAL, address.get(), address.size);
    }

private:
    bool isHeldElsewhere() const {
        int result = 0;
        do
            result = ::flock(m_folder, LOCK_EX | LOCK_NB);
        while (result != 0 && errno == EINTR);
        return result != 0 && errno == EWOULDBLOCK;
    }

    void listen() {
        const Address address(m_folder);
        if (!m_called || m_calls || ::bind(m_socket, address.get(), address.size) != 0)
            return;
        m_calls = std::make_unique<QSocketNotifier>(m_socket, QSocketNotifier::Read);
        QObject::connect(m_calls.get(), &QSocketNotifier::activated, m_calls.get(), [this] {
            char call[16];
            while (::recv(m_socket, call, sizeof call, 0) >= 0) {
            }
            handlers::enter(m_called);
        });
    }

    int m_folder;
    int m_socket;
    std::function<void()> m_called;
    std::unique_ptr<QSocketNotifier> m_calls; ///< while this copy listens
};

} // namespace

std::unique_ptr<InstanceLock> folderLock(const QString& folder) {
    return std::make_unique<FolderLock>(folder);
}

} // namespace qinghe
