#include "platform/background_work.h"
#include "support/guard_fixture.h"

#include <QTest>
#include <QThread>

#include <atomic>

namespace qinghe::testing {
namespace {

constexpr auto Now = std::chrono::milliseconds(0);

class BackgroundWork : public GuardTest {
protected:
    std::unique_ptr<Background> background = backgroundWork();
    std::atomic<bool> reached = false;
    bool done = false;

    std::function<void()> noteDone() {
        return [this] { done = true; };
    }
    /// Until it is told to stop.
    std::function<void(std::stop_token)> endless() {
        return [this](const std::stop_token& stop) {
            reached = true;
            while (!stop.stop_requested())
                QThread::msleep(1);
        };
    }
};

TEST_F(BackgroundWork, RunsOnAThreadOfItsOwnAndEndsAsATick) {
    QThread* on = nullptr;
    background->start(
        Now, [&](const std::stop_token&) { on = QThread::currentThread(); }, noteDone());
    EXPECT_TRUE(QTest::qWaitFor([this] { return done; }));
    EXPECT_NE(on, QThread::currentThread());
    EXPECT_TRUE(log.contains(u"returned"_s));
}

TEST_F(BackgroundWork, ItsEndWaitsForAHandlerThatIsAtWork) {
    handlers::enter([this] {
        background->start(
            Now, [this](const std::stop_token&) { reached = true; }, noteDone());
        EXPECT_TRUE(QTest::qWaitFor([this] { return reached.load(); }));
        turnLoop();
        EXPECT_FALSE(done);
    });
    EXPECT_TRUE(QTest::qWaitFor([this] { return done; }));
}

TEST_F(BackgroundWork, StopsWhenItIsToldToAndItsEndIsNotHeard) {
    background->start(Now, endless(), noteDone());
    EXPECT_TRUE(QTest::qWaitFor([this] { return reached.load(); }));
    background->stop();
    turnLoop();
    EXPECT_FALSE(done);
    background->stop(); // once more is harmless
}

TEST_F(BackgroundWork, WhatIsToldToStopBeforeItsTimeNeverBegins) {
    background->start(
        std::chrono::hours(1), [this](const std::stop_token&) { reached = true; }, noteDone());
    background->stop();
    turnLoop();
    EXPECT_FALSE(reached || done);
}

TEST_F(BackgroundWork, AnEndThatWaitsIsDroppedToo) {
    handlers::enter([this] {
        background->start(
            Now, [this](const std::stop_token&) { reached = true; }, noteDone());
        EXPECT_TRUE(QTest::qWaitFor([this] { return reached.load(); }));
        turnLoop();
        background->stop();
    });
    turnLoop();
    EXPECT_FALSE(done);
}

TEST_F(BackgroundWork, NobodyWaitsForItLongerThanHeWants) {
    std::atomic<bool> mayEnd = false;
    background->start(
        Now,
        [&](const std::stop_token&) {
            while (!mayEnd)
                QThread::msleep(1);
        },
        noteDone());
    background->stop(std::chrono::milliseconds(1));
    EXPECT_FALSE(mayEnd); // and here we are
    mayEnd = true;
    background->stop();
}

} // namespace
} // namespace qinghe::testing
