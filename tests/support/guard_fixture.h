#pragma once

#include "platform/handlers.h"
#include "qt_printing.h"

#include <QCoreApplication>
#include <QStringList>
#include <QWidget>

#include <gtest/gtest.h>

/// For tests of the floor that has windows and no program yet.
namespace qinghe::testing {

using namespace Qt::StringLiterals;

/// Handlers start afresh for each test; what the guard asks of the program is noted in `log`.
class GuardTest : public ::testing::Test {
protected:
    void SetUp() override {
        handlers::reset();
        handlers::install({
            .commit = [this] { onCommit(); },
            .report =
                [this](const RuntimeError& error) {
                    log << u"report %1"_s.arg(error.number());
                    told = error.text();
                },
            .end = [this](int code) { log << u"end %1"_s.arg(code); },
            .returned = [this] { log << u"returned"_s; },
        });
    }
    void TearDown() override { handlers::reset(); }

    static void turnLoop() {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    QStringList log;
    QString told; ///< the text of the error last reported
    std::function<void()> onCommit = [this] { log << u"commit"_s; };
};

/// Runs `call` and gives the number of the run-time error that it throws, 0 when it throws none.
inline int errorOf(const std::function<void()>& call) {
    try {
        call();
        return 0;
    } catch (const RuntimeError& error) {
        return error.number();
    }
}

} // namespace qinghe::testing
