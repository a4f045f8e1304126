#include "household.h"

#include <chrono>
#include <gtest/gtest.h>
#include <thread>

using namespace whole;

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

} // namespace

TEST(Tray, AStartIntoTheTrayWaitsThereForAClick) {
    const LedgerFolder folder;
    startInTray(folder);
    Program program(folder);
    program.click("Form5/Label1");
    program.waitFor(trayIcon);
    program.waitUntil([&] { return !program.shows("Form2"); }, "the main window to go");
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
        program.waitUntil([&] { return !program.shows("Form2"); }, "the main window to go");
        program.look();
        comeBack(program);
        program.click("Form2/Image4");
    }
    program.waitUntil([&] { return !program.shows("Form2"); }, "the main window to go");
    EXPECT_TRUE(program.running());
}
