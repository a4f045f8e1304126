#pragma once

#include <functional>
#include <memory>

class QSocketNotifier;

namespace qinghe {

/// The system's own ways of asking a program to end: the log-out, the closed terminal, the machine's shutdown. While it
/// lives each of them calls `asked` from the event loop, in the loop of a message box too, and so never in the midst of
/// a handler's work; asking again hurries nothing. What the process was told to ignore when it was started (as by
/// nohup) stays ignored. One at a time.
class EndRequests {
public:
    explicit EndRequests(std::function<void()> asked);
    /// Gives the signals back as they were.
    ~EndRequests();
    EndRequests(const EndRequests&) = delete;
    EndRequests& operator=(const EndRequests&) = delete;

private:
    struct Signals;
    std::unique_ptr<Signals> m_signals;
    std::unique_ptr<QSocketNotifier> m_heard;
};

} // namespace qinghe
