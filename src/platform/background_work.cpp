#include "platform/background_work.h"

#include "platform/handlers.h"

#include <QObject>

#include <future>
#include <thread>

namespace qinghe {

namespace {

class OwnThread : public Background {
public:
    ~OwnThread() override { stop(Forever); }

    void start(std::function<void(std::stop_token)> work, std::function<void()> done) override {
        stop(Forever);
        std::promise<void> end;
        m_ended = end.get_future();
        m_home = std::make_unique<QObject>();
        m_thread = std::jthread([this, work = std::move(work), done = std::move(done), home = m_home.get(),
                                 end = std::move(end)](const std::stop_token& stopped) mutable {
            work(stopped);
            // The home outlives the thread; a call that waits goes with it.
            QMetaObject::invokeMethod(
                home, [this, done] { handlers::tick(this, done); }, Qt::QueuedConnection);
            end.set_value();
        });
    }

    void stop(std::chrono::milliseconds patience) override {
        if (!m_thread.joinable())
            return;
        m_thread.request_stop();
        if (patience != Forever && m_ended.wait_for(patience) == std::future_status::timeout)
            return;
        m_thread.join();
        m_home.reset();
        handlers::forgetTick(this);
    }

private:
    std::unique_ptr<QObject> m_home; ///< where the end is told
    std::future<void> m_ended;
    std::jthread m_thread;
};

} // namespace

std::unique_ptr<Background> backgroundWork() {
    return std::make_unique<OwnThread>();
}

} // namespace qinghe
