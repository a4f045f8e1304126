#include "controls/press_tracker.h"

#include <gtest/gtest.h>

namespace qinghe {
namespace {

constexpr QPoint Inside(10, 10), Outside(200, 10);

struct Presses : ::testing::Test {
    Presses() { control.resize(100, 50); }

    void press(PressTracker& tracker, Qt::MouseButton button = Qt::LeftButton) {
        tracker.press(event(QEvent::MouseButtonPress, Inside, button));
    }
    bool released(PressTracker& tracker, const QPoint& at = Inside, Qt::MouseButton button = Qt::LeftButton) {
        return tracker.releasedOn(control, event(QEvent::MouseButtonRelease, at, button));
    }
    static QMouseEvent event(QEvent::Type type, const QPointF& at, Qt::MouseButton button) {
        return {type, at, at, button, button, Qt::NoModifier};
    }

    QWidget control;
    PressTracker one, other;
};

TEST_F(Presses, APressAndAReleaseOnTheControlAreAClickOnce) {
    press(one);
    EXPECT_TRUE(released(one));
    EXPECT_FALSE(released(one));
}

TEST_F(Presses, AReleaseElsewhereIsNoneAndEndsThePress) {
    press(one);
    EXPECT_FALSE(released(one, Outside));
    EXPECT_FALSE(released(one));
}

TEST_F(Presses, AnotherButtonClicksNeitherAloneNorWithTheLeftOne) {
    press(one, Qt::RightButton);
    EXPECT_FALSE(released(one, Inside, Qt::RightButton));
    press(one);
    press(one, Qt::RightButton);
    EXPECT_FALSE(released(one, Inside, Qt::RightButton));
    EXPECT_FALSE(released(one));
}

TEST_F(Presses, AForgottenPressIsNoClick) {
    press(one);
    one.forget();
    EXPECT_FALSE(released(one));
}

TEST_F(Presses, AReleaseTellsWhereThePressWas) {
    press(one);
    EXPECT_EQ(one.release(event(QEvent::MouseButtonRelease, Outside, Qt::LeftButton)), Inside);
}

TEST_F(Presses, OnlyTheLastPressIsTheLast) {
    EXPECT_FALSE(one.isLast());
    press(one);
    EXPECT_TRUE(one.isLast());
    press(other, Qt::RightButton);
    EXPECT_FALSE(one.isLast());
    EXPECT_TRUE(other.isLast());
}

} // namespace
} // namespace qinghe
