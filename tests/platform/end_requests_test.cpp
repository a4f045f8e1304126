#include "platform/end_requests.h"

#include <QCoreApplication>
#include <QTest>

#include <csignal>
#include <gtest/gtest.h>
#include <optional>

namespace qinghe {
namespace {

class EndRequestsTest : public ::testing::Test {
protected:
    /// Lets the loop run until it has been asked so many times.
    void expectAsked(int times) {
        EXPECT_TRUE(QTest::qWaitFor([&] { return m_asked >= times; }, 2000));
        QCoreApplication::processEvents();
        EXPECT_EQ(m_asked, times);
    }
    int m_asked = 0;
    std::optional<EndRequests> m_requests{std::in_place, [this] { ++m_asked; }};
};

TEST_F(EndRequestsTest, AreHeardInTheLoopAndNowhereElse) {
    int expected = 0;
    for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
        std::raise(signal);
        EXPECT_EQ(m_asked, expected);
        expectAsked(++expected);
    }
}

TEST_F(EndRequestsTest, ManyAtOnceAreOne) {
    for (int i = 0; i < 100; ++i)
        std::raise(SIGTERM);
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_asked > 0; }, 2000));
    EXPECT_EQ(m_asked, 1);
}

TEST_F(EndRequestsTest, GiveTheSignalsBack) {
    m_requests.reset();
    struct sigaction now = {};
    ::sigaction(SIGTERM, nullptr, &now);
    EXPECT_EQ(now.sa_handler, SIG_DFL);
}

TEST_F(EndRequestsTest, LeaveAloneWhatTheProcessWasToldToIgnore) {
    m_requests.reset();
    std::signal(SIGHUP, SIG_IGN);
    m_requests.emplace([this] { ++m_asked; });
    std::raise(SIGHUP);
    std::raise(SIGTERM);
    expectAsked(1);
    m_requests.reset();
    EXPECT_EQ(std::signal(SIGHUP, SIG_DFL), SIG_IGN);
}

} // namespace
} // namespace qinghe
