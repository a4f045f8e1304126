#include "controls/event.h"
#include "support/doubles.h"
#include "support/guard_fixture.h"

#include <QRegularExpression>

#include <new>
#include <stdexcept>
#include <vector>

namespace qinghe::testing {
namespace {

class Handlers : public GuardTest {};

void noteDepth(QStringList& log) {
    log << u"depth %1"_s.arg(handlers::depth());
}

TEST_F(Handlers, NestAndCommitOnceWhenTheOutermostReturns) {
    handlers::enter([this] {
        noteDepth(log);
        handlers::enter([this] { noteDepth(log); });
        log << u"between"_s;
        handlers::enter([this] { noteDepth(log); });
        noteDepth(log);
    });
    EXPECT_EQ(log, (QStringList{u"depth 1"_s, u"depth 2"_s, u"between"_s, u"depth 2"_s, u"depth 1"_s, u"commit"_s,
                                u"returned"_s}));
    EXPECT_EQ(handlers::depth(), 0);
}

TEST_F(Handlers, ATickBetweenHandlersRunsAtOnceAsAHandlerOfItsOwn) {
    handlers::tick(this, [this] { noteDepth(log); });
    EXPECT_EQ(log, (QStringList{u"depth 1"_s, u"commit"_s, u"returned"_s}));
}

TEST_F(Handlers, ATickWaitsUntilTheOutermostHandlerHasReturnedAndItsWorkIsKept) {
    handlers::enter([this] {
        handlers::enter([this] { handlers::tick(this, [this] { log << u"tick"_s; }); });
        log << u"work"_s;
    });
    EXPECT_EQ(log, (QStringList{u"work"_s, u"commit"_s, u"returned"_s, u"tick"_s, u"commit"_s, u"returned"_s}));
}

TEST_F(Handlers, ATickWaitsOnceAtMostForEachKey) {
    const int one = 0, other = 0;
    handlers::enter([&] {
        for (int i = 0; i < 3; ++i)
            handlers::tick(&one, [this] { log << u"one"_s; });
        handlers::tick(&other, [this] { log << u"other"_s; });
    });
    EXPECT_EQ(log.count(u"one"_s), 1);
    EXPECT_EQ(log.count(u"other"_s), 1);
}

TEST_F(Handlers, WaitingTicksRunInTheOrderInWhichTheyCame) {
    const int keys[4] = {};
    handlers::enter([&] {
        for (const int& key : keys)
            handlers::tick(&key, [this, number = &key - keys] { log << QString::number(number); });
    });
    log.removeAll(u"commit"_s);
    log.removeAll(u"returned"_s);
    EXPECT_EQ(log, (QStringList{u"0"_s, u"1"_s, u"2"_s, u"3"_s}));
}

TEST_F(Handlers, ATickThatWaitsKeepsItsPlaceWhenItsTimerTicksAgain) {
    const int one = 0, other = 0;
    handlers::enter([&] {
        handlers::tick(&one, [this] { log << u"one"_s; });
        handlers::tick(&other, [this] { log << u"other"_s; });
        handlers::tick(&one, [this] { log << u"one again"_s; });
    });
    EXPECT_EQ(log.filter(QRegularExpression(u"^o"_s)), (QStringList{u"one"_s, u"other"_s}));
}

TEST_F(Handlers, AWaitingTickCanBeDropped) {
    const int one = 0, other = 0;
    handlers::enter([&] {
        handlers::tick(&one, [this] { log << u"one"_s; });
        handlers::tick(&other, [this] { log << u"other"_s; });
        handlers::forgetTick(&one);
    });
    EXPECT_FALSE(log.contains(u"one"_s));
    EXPECT_TRUE(log.contains(u"other"_s));
}

TEST_F(Handlers, ATickThatComesInDuringAWaitingTickWaitsToo) {
    const int one = 0, other = 0;
    handlers::enter([&] {
        handlers::tick(&one, [&] {
            handlers::tick(&other, [this] { log << u"other"_s; });
            log << u"one"_s;
        });
    });
    EXPECT_LT(log.indexOf(u"one"_s), log.indexOf(u"other"_s));
}

TEST_F(Handlers, ARunTimeErrorStopsTheHandlerKeepsItsWorkTellsAndEndsWithOne) {
    handlers::enter([this] {
        log << u"work"_s;
        throw RuntimeError(RuntimeError::TypeMismatch, u"类型不匹配"_s);
    });
    EXPECT_EQ(log, (QStringList{u"work"_s, u"commit"_s, u"report 13"_s, u"end 1"_s}));
    EXPECT_TRUE(handlers::ending());
}

TEST_F(Handlers, AnErrorIsToldAtTheInnermostGuard) {
    handlers::enter([this] {
        handlers::enter([] { throw RuntimeError(RuntimeError::Overflow, u"溢出"_s); });
        log << u"only tests come back here"_s;
    });
    EXPECT_LT(log.indexOf(u"end 1"_s), log.indexOf(u"only tests come back here"_s));
    EXPECT_EQ(log.count(u"end 1"_s), 1);
}

TEST_F(Handlers, AProgramThatEndsItselfGoesTheSameRoadWithoutAMessage) {
    handlers::enter([this] {
        log << u"work"_s;
        throw handlers::ProgramEnd{0};
    });
    EXPECT_EQ(log, (QStringList{u"work"_s, u"commit"_s, u"end 0"_s}));
}

TEST_F(Handlers, LackOfMemoryIsToldLikeARunTimeError) {
    handlers::enter([] { throw std::bad_alloc(); });
    EXPECT_EQ(log, (QStringList{u"commit"_s, u"report 7"_s, u"end 1"_s}));
}

TEST_F(Handlers, AnyOtherExceptionIsToldAsAnInternalErrorAndItsWorkIsKept) {
    const std::function<void()> throwing[] = {
        [] { std::vector<int>().at(3); },
        [] { throw std::runtime_error("no words for a user"); },
        [] { throw 7; },
    };
    for (const auto& call : throwing) {
        SetUp();
        log.clear();
        handlers::enter([&] {
            log << u"work"_s;
            call();
        });
        EXPECT_EQ(log, (QStringList{u"work"_s, u"commit"_s, u"report 51"_s, u"end 1"_s}));
        EXPECT_TRUE(handlers::ending());
        EXPECT_TRUE(told.contains(u"备份"_s)) << told.toStdString();
    }
}

TEST_F(Handlers, WhatWentWrongInsideIsNamedForWhoeverIsAskedForHelp) {
    handlers::enter([] { throw std::out_of_range("no such place"); });
    EXPECT_TRUE(told.contains(u"no such place"_s)) << told.toStdString();
}

TEST_F(Handlers, AForeignExceptionWhileTheWorkIsKeptDoesNotGetOut) {
    onCommit = [] { throw std::out_of_range("in the commit"); };
    handlers::enter([this] { log << u"work"_s; });
    EXPECT_EQ(log, (QStringList{u"work"_s, u"report 51"_s, u"end 1"_s}));
}

TEST_F(Handlers, NothingRunsOnceTheProgramIsEnding) {
    handlers::enter([this] {
        handlers::tick(this, [this] { log << u"tick"_s; });
        throw handlers::ProgramEnd{0};
    });
    log.clear();
    handlers::enter([this] { log << u"handler"_s; });
    handlers::tick(this, [this] { log << u"tick"_s; });
    EXPECT_EQ(log, QStringList{});
}

TEST_F(Handlers, BarLetsNoFurtherHandlerRun) {
    handlers::bar();
    handlers::enter([this] { log << u"handler"_s; });
    EXPECT_EQ(log, QStringList{});
}

TEST_F(Handlers, WorkThatCannotBeKeptAtTheEndIsThatHandlersError) {
    onCommit = [] { throw RuntimeError(RuntimeError::DiskFull, u"磁盘空间不足"_s); };
    handlers::enter([this] { log << u"work"_s; });
    EXPECT_EQ(log, (QStringList{u"work"_s, u"report 61"_s, u"end 1"_s}));
}

TEST_F(Handlers, WhenNeitherTheWorkCanBeDoneNorKeptTheFirstErrorIsTold) {
    onCommit = [] { throw RuntimeError(RuntimeError::DiskFull, u"磁盘空间不足"_s); };
    handlers::enter([] { throw RuntimeError(RuntimeError::TypeMismatch, u"类型不匹配"_s); });
    EXPECT_EQ(log, (QStringList{u"report 13"_s, u"end 1"_s}));
}

TEST_F(Handlers, BoundaryCallsRunOnceAKeyBeforeTheCommit) {
    handlers::enter([this] {
        for (int i = 0; i < 3; ++i)
            handlers::atBoundary(this, [this] { log << u"view"_s; });
    });
    EXPECT_EQ(log, (QStringList{u"view"_s, u"commit"_s, u"returned"_s}));
}

TEST_F(Handlers, ABoundaryCallCanAskForAnother) {
    const int other = 0;
    handlers::enter(
        [&] { handlers::atBoundary(this, [&] { handlers::atBoundary(&other, [this] { log << u"second"_s; }); }); });
    EXPECT_EQ(log, (QStringList{u"second"_s, u"commit"_s, u"returned"_s}));
}

TEST_F(Handlers, ABoundaryCallCanBeForgotten) {
    handlers::enter([this] {
        handlers::atBoundary(this, [this] { log << u"view"_s; });
        handlers::forget(this);
    });
    EXPECT_FALSE(log.contains(u"view"_s));
}

TEST_F(Handlers, TheWorkIsKeptBeforeAMessageIsShown) {
    Services services;
    auto messages = std::make_unique<AnsweringMessages>();
    messages->whileShown = [this](const ShownMessage&) { log << u"box"_s; };
    services.messages = std::move(messages);
    handlers::enter([&] {
        handlers::atBoundary(this, [this] { log << u"view"_s; });
        services.say(u"保存成功"_s);
        log << u"after"_s;
    });
    EXPECT_EQ(log, (QStringList{u"view"_s, u"commit"_s, u"box"_s, u"after"_s, u"commit"_s, u"returned"_s}));
}

TEST_F(Handlers, AMessageIsNotShownWhenTheWorkCannotBeKept) {
    Services services;
    auto messages = std::make_unique<AnsweringMessages>();
    const AnsweringMessages& shown = *messages;
    services.messages = std::move(messages);
    onCommit = [] { throw RuntimeError(RuntimeError::DiskFull, u"磁盘空间不足"_s); };
    handlers::enter([&] { services.say(u"保存成功"_s); });
    EXPECT_TRUE(shown.shown.empty());
    EXPECT_EQ(log, (QStringList{u"report 61"_s, u"end 1"_s}));
}

TEST_F(Handlers, AnEventRaisedByCodeLetsItsErrorTravelToTheCaller) {
    Event<int> event;
    EXPECT_FALSE(event);
    event.raise(1);
    event = [](int number) { throw RuntimeError(number, u"错误"_s); };
    EXPECT_TRUE(event);
    EXPECT_EQ(errorOf([&] { event.raise(9); }), 9);
    EXPECT_EQ(log, QStringList{});
}

TEST_F(Handlers, AnEventFromOutsideLetsNoErrorThrough) {
    Event<int> event;
    event.fromQt(1);
    event = [](int number) { throw RuntimeError(number, u"错误"_s); };
    EXPECT_EQ(errorOf([&] { event.fromQt(9); }), 0);
    EXPECT_EQ(log, (QStringList{u"commit"_s, u"report 9"_s, u"end 1"_s}));
}

} // namespace
} // namespace qinghe::testing
