#include "platform/end_requests.h"

#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace qinghe {

namespace {

constexpr std::array Asking{SIGTERM, SIGHUP, SIGINT};

int calling = -1; ///< the pipe's end for the signals' own function, which may do next to nothing

void call(int) {
    const int before = errno;
    [[maybe_unused]] const auto written = ::write(calling, "e", 1); // a full pipe has called already
    errno = before;
}

} // namespace

struct EndRequests::Signals {
    std::array<struct sigaction, Asking.size()> before = {};
    std::array<int, 2> pipe = {-1, -1};

    Signals() {
        if (::pipe2(pipe.data(), O_CLOEXEC | O_NONBLOCK) != 0)
            return; // the process ends as others do, at once
        calling = pipe[1];
        struct sigaction action = {};
        action.sa_handler = call;
        action.sa_flags = SA_RESTART;
        for (std::size_t i = 0; i < Asking.size(); ++i) {
            ::sigaction(Asking[i], nullptr, &before[i]);
            if (before[i].sa_handler != SIG_IGN)
                ::sigaction(Asking[i], &action, nullptr);
        }
    }
    ~Signals() {
        if (pipe[0] < 0)
            return;
        for (std::size_t i = 0; i < Asking.size(); ++i)
            ::sigaction(Asking[i], &before[i], nullptr);
        calling = -1;
        for (const int end : pipe)
            ::close(end);
    }
};

EndRequests::EndRequests(std::function<void()> asked) : m_signals(std::make_unique<Signals>()) {
    const int pipe = m_signals->pipe[0];
    if (pipe < 0)
        return;
    m_heard = std::make_unique<QSocketNotifier>(pipe, QSocketNotifier::Read);
    QObject::connect(m_heard.get(), &QSocketNotifier::activated, m_heard.get(), [pipe, asked = std::move(asked)] {
        std::array<char, 16> calls;
        while (::read(pipe, calls.data(), calls.size()) > 0) {
        }
        asked();
    });
}

EndRequests::~EndRequests() = default;

} // namespace qinghe
