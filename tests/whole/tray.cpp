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
        program.waitFor(forms::Main);
        program.look();
        std::this_thread::sleep_for(std::chrono::seconds(1));
        if (program.shows(forms::Main))
            return;
    }
}

/// Presses a button of the display's pointer on the icon.
void pressIcon(Program& program, Button button) {
    display_pointer::click(program.place(trayIcon).center(), button);
}

void waitUntilGone(Program& program) {
    program.waitUntil([&] { return !program.shows(forms::Main); }, "the main window to go");
}

} // namespace

TEST(Tray, AStartIntoTheTrayWaitsThereForAClick) {
    const LedgerFolder folder;
    startInTray(folder);
    Program program(folder);
    program.click(sign_in::Enter);
    program.waitFor(trayIcon);
    waitUntilGone(program);
    EXPECT_TRUE(program.running());

    program.click(trayIcon);
    program.waitFor(forms::Main);
    program.click(pages::Income);
    EXPECT_EQ(program.caption(income::Page), "收入记录");
    endByCross(program);
}

TEST(Tray, MinimisingGoesThereAndAClickComesBackEachTime) {
    const LedgerFolder folder;
    startInTray(folder);
    Program program(folder);
    program.click(sign_in::Enter);
    for (int i = 0; i < 3; ++i) {
        program.waitFor(trayIcon);
        waitUntilGone(program);
        program.look();
        comeBack(program);
        program.click(title::Minimise);
    }
    waitUntilGone(program);
    EXPECT_TRUE(program.running());
}

TEST(Tray, OnlyTheLeftButtonOnTheIconBringsTheWindowBack) {
    const LedgerFolder folder;
    startInTray(folder);
    Program program(folder);
    program.click(sign_in::Enter);
    program.waitFor(trayIcon);
    waitUntilGone(program);
    program.look();
    for (const Button button : {Button::Right, Button::Middle}) {
        pressIcon(program, button);
        program.look();
        EXPECT_FALSE(program.shows(forms::Main)) << static_cast<int>(button);
    }
    pressIcon(program, Button::Left);
    program.waitFor(forms::Main);
    program.waitForKeyboard(forms::Main);
    endByCross(program);
}

TEST(Tray, AClickOnTheIconBringsACoveredWindowToTheFront) {
    const LedgerFolder folder, neighbour;
    startInTray(folder);
    Program program(folder);
    program.click(sign_in::Enter);
    program.waitFor(trayIcon);
    waitUntilGone(program);
    comeBack(program);
    Program other(neighbour);
    signIn(other);
    other.look(); // the window has found its place
    const QPoint income = program.place(pages::Income).center();
    ASSERT_TRUE(other.place(forms::Main).contains(income));

    pressIcon(program, Button::Left);
    program.waitForKeyboard(forms::Main);
    display_pointer::click(income);
    program.waitUntil([&] { return program.shows(income::Page); }, "the income");
    EXPECT_TRUE(other.shows(desktop::Page));
    endByCross(program);
}
