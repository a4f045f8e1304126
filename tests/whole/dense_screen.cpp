#include "display.h"
#include "display_pointer.h"
#include "household.h"

#include <gtest/gtest.h>

using namespace whole;

namespace {

/// A screen of so many pixels, and how many of them the desktop makes of one of its units.
class ScaledScreen : public ::testing::Test {
protected:
    ScaledScreen(const QString& pixels, const QByteArray& scale) : display(pixels) {
        qputenv("QT_SCALE_FACTOR", scale);
    }
    ~ScaledScreen() override { qunsetenv("QT_SCALE_FACTOR"); }

    const Display display;
    const LedgerFolder folder;
};

/// The main window fills it for the most part.
class DenseScreen : public ScaledScreen {
protected:
    DenseScreen() : ScaledScreen(QStringLiteral("2600x2000"), "2") {}
};

/// A small laptop whose desktop shows everything at one and a half of its size.
class SmallDenseScreen : public ScaledScreen {
protected:
    SmallDenseScreen() : ScaledScreen(QStringLiteral("1366x768"), "1.5") {}
};

} // namespace

TEST_F(DenseScreen, TheMainWindowStandsInTheMiddleInItsOwnSize) {
    Program program(folder);
    EXPECT_EQ(program.place(forms::SignIn).size(), QSize(710, 560));
    signIn(program);
    program.look(); // the window manager has done with it
    const QRect window = program.place(forms::Main);
    EXPECT_EQ(window.size(), QSize(1600, 1080));
    EXPECT_LT((window.center() - QPoint(1300, 1000)).manhattanLength(), 40); // the bar at the foot of the screen apart

    // Its far corner is there for the pointer.
    display_pointer::click(program.place(pages::Settings).center());
    program.waitUntil([&] { return program.shows(settings::Page); }, "the settings");
    program.click(title::Tools);
    program.waitForKeyboard(forms::Web);
    program.look();
    EXPECT_EQ(program.place(forms::Web).size(), QSize(1600, 1080));
    endByCross(program);
}

TEST_F(DenseScreen, ADragMovesByTheWayOfThePointer) {
    Program program(folder);
    signIn(program);
    program.look(); // the window has found its place
    const QRect before = program.place(forms::Main);
    display_pointer::drag(before.topLeft() + 2 * bareTitle, {-5, 4}, 60);
    program.look();
    EXPECT_EQ(program.place(forms::Main), before.translated(-300, 240));
    endByCross(program);
}

TEST_F(SmallDenseScreen, TheMainWindowTakesTheLargestScaleThatFits) {
    Program program(folder);
    signIn(program);
    program.look();
    const QRect window = program.place(forms::Main);
    EXPECT_TRUE(QRect(0, 0, 1366, 768).contains(window)) << window.top() << " to " << window.bottom();
    EXPECT_GT(window.height(), 768 * 0.9) << "the panel's height and a hundredth are left, not more";
    EXPECT_NEAR(window.width() * 540.0, window.height() * 800.0, 800);
    display_pointer::click(program.place(pages::Settings).center());
    program.waitUntil([&] { return program.shows(settings::Page); }, "the settings");
    endByCross(program);
}
