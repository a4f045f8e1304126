#pragma once

#include <csignal>
#include <sys/resource.h>

namespace qinghe::testing {

/// No file of this process grows beyond so many bytes while this lives: a write takes what still fits, the next one
/// fails.
class SmallDisk {
public:
    explicit SmallDisk(rlim_t largestFile) : m_handler(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit small{largestFile, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~SmallDisk() {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

private:
    void (*m_handler)(int);
    rlimit m_before{};
};

} // namespace qinghe::testing
