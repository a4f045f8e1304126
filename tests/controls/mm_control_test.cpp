#include "controls/mm_control.h"
#include "qt_printing.h"
#include "support/doubles.h"

#include <gtest/gtest.h>

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class MediaControl : public ::testing::Test {
protected:
    /// Gives the commands one after the other and tells what the device heard.
    QStringList calls(const QStringList& commands) {
        device.calls.clear();
        for (const QString& command : commands)
            control.setProperty("Command", command);
        return device.calls;
    }

    NotingSound device;
    MMControl control{device, u"MM1"_s};
};

TEST_F(MediaControl, OpenTakesTheNamedFileOnceAndPlayLeavesAPlayingPiecePlaying) {
    control.setProperty("FileName", u"/folder/音乐1.wav"_s);
    EXPECT_EQ(calls({u"open"_s, u"open"_s, u"play"_s}), (QStringList{u"open 音乐1.wav"_s, u"play"_s}));
    EXPECT_EQ(calls({u"open"_s, u"stop"_s, u"prev"_s}), (QStringList{u"stop"_s, u"rewind"_s}));
}

TEST_F(MediaControl, AnotherNameIsOpenedInsteadAndOnlyAtTheNextOpen) {
    control.setFileName(u"a.wav"_s);
    calls({u"open"_s});
    control.setFileName(u"b.wav"_s);
    EXPECT_EQ(calls({u"play"_s}), QStringList{u"play"_s});
    EXPECT_EQ(calls({u"open"_s}), (QStringList{u"close"_s, u"open b.wav"_s}));
}

TEST_F(MediaControl, AfterCloseTheSameNameIsOpenedAfresh) {
    control.setFileName(u"a.wav"_s);
    EXPECT_EQ(calls({u"open"_s, u"close"_s, u"open"_s}), (QStringList{u"open a.wav"_s, u"close"_s, u"open a.wav"_s}));
}

TEST_F(MediaControl, WithoutAnOpenPieceCommandsAreHarmless) {
    EXPECT_EQ(calls({u"play"_s, u"stop"_s, u"prev"_s, u"close"_s, u"close"_s}), QStringList{});
    EXPECT_EQ(control.Command(), u"close"_s);
}

TEST_F(MediaControl, PositionAndLengthAreThoseOfThePieceAndNoughtWhenClosed) {
    EXPECT_EQ(control.Length(), 0);
    control.setFileName(u"a.wav"_s);
    calls({u"open"_s});
    device.position = 2500;
    EXPECT_EQ(control.property("Position").toInt(), 2500);
    EXPECT_EQ(control.property("Length").toInt(), 6000);
    calls({u"close"_s});
    EXPECT_EQ(control.Position(), 0);
    EXPECT_EQ(control.Length(), 0);
}

TEST_F(MediaControl, WhatCannotBeOpenedStaysClosedAndIsTriedAgain) {
    device.present = false;
    control.setFileName(u"a.wav"_s);
    EXPECT_EQ(calls({u"open"_s, u"play"_s, u"open"_s}), (QStringList{u"open a.wav"_s, u"open a.wav"_s}));
    EXPECT_EQ(control.Length(), 0);
}

TEST_F(MediaControl, AnUnknownCommandDoesNothing) {
    control.setFileName(u"a.wav"_s);
    EXPECT_EQ(calls({u"open"_s, u"eject"_s, u"Play"_s}), QStringList{u"open a.wav"_s});
    EXPECT_EQ(control.Command(), u"Play"_s);
}

} // namespace
} // namespace qinghe::testing
