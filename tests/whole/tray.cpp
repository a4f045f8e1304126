#include "display_pointer.h"
#include "household.h"

#include <chrono>
#include <gtest/gtest.h>
#include <thread>

using namespace whole;
using display_pointer::Button;

namespace {

const std::string trayIcon = "QSystemTrayIconSys";

void startInTray(const LedgerFolder& folder) {
    folder.execute("update systuopanb set 最小化到托盘 = 1");
}

/// Comes back from the tray. The window manager may still be telling of the way down when the click comes; whoever sees
/// the window go again clicks once more.
void comeBack(Program& program) {
    std::this_thread::sleep_for(std::chrono::seconds(1));
    for (int i = 0; i < 3; ++i) {
        program.click(trayIcon);
        program.waitFor("Form2");
        program.look();
        std::this_thread::sleep_for(std::chrono::seconds(1));
        if (program.shows("Form2"))
            return;
    }
}

/// Presses a button of the display's pointer on the icon.
void pressIcon(Program& program, Button button) {
    display_pointer::click(program.place(trayIcon).center(), button);
}

void waitUntilGone(Program& program) {
    program.waitUntil([&] { return !program.shows("Form2"); }, "the main window to go");
}

} // namespace

TEST(Tray, AStartIntoTheTrayWaitsThereForAClick) {
    const LedgerFolder folder;
    startInTray(folder);
    Program program(folder);
    program.click("Form5/Label1");
    program.waitFor(trayIcon);
    waitUntilGone(program);
    EXPECT_TRUE(program.running());

    program.click(trayIcon);
    program.waitFor("Form2");
    program.click("Form2/Label2(0)");
    EXPECT_EQ(program.caption("Form2/Frame2"), "收入记录");
    endByCross(program);
}

TEST(Tray, MinimisingGoesThereAndAClickComesBackEachTime) {
    const LedgerFolder folder;
    startInTray(folder);
    Program program(folder);
    program.click("Form5/Label1");
    for (int i = 0; i < 3; ++i) {
        program.waitFor(trayIcon);
        waitUntilGone(program);
        program.look();
        comeBack(program);
        program.click("Form2/Image4");
    }
    waitUntilGone(program);
    EXPECT_TRUE(program.running());
}

TEST(Tray, OnlyTheLeftButtonOnTheIconBringsTheWindowBack) {
    const LedgerFolder folder;
    startInTray(folder);
    Program program(folder);
    program.click("Form5/Label1");
    program.waitFor(trayIcon);
    waitUntilGone(program);
    program.look();
    for (const Button button : {Button::Right, Button::Middle}) {
        pressIcon(program, button);
        program.look();
        EXPECT_FALSE(program.shows("Form2")) << static_cast<int>(button);
    }
    pressIcon(program, Button::Left);
    program.waitFor("Form2");
    program.waitForKeyboard("Form2");
    endByCross(program);
}

TEST(Tray, AClickOnTheIconBringsACoveredWindowToTheFront) {
    const LedgerFolder folder, neighbour;
    startInTray(folder);
    Program program(folder);
    program.click("Form5/Label1");
    program.waitFor(trayIcon);
    waitUntilGone(program);
    comeBack(program);
    Program other(neighbour);
    signIn(other);
    other.look(); // the window has found its place
    const QPoint income = program.place("Form2/Label2(0)").center();
    ASSERT_TRUE(other.place("Form2").contains(income));

    pressIcon(program, Button::Left);
    program.waitForKeyboard("Form2");
    display_pointer::click(income);
    program.waitUntil([&] { return program.shows("Form2/Frame2"); }, "the income");
    EXPECT_TRUE(other.shows("Form2/Frame13"));
    endByCross(program);
}
