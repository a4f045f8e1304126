#include "household.h"

#include <gtest/gtest.h>

using namespace whole;

namespace {

const std::string trayIcon = "QSystemTrayIconSys";

void startInTray(const LedgerFolder& folder) {
    folder.execute("update systuopanb set 最小化到托盘 = 1");
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
        program.click(trayIcon);
        program.waitFor("Form2");
        program.look();
        program.click("Form2/Image4");
    }
    program.waitUntil([&] { return !program.shows("Form2"); }, "the main window to go");
    EXPECT_TRUE(program.running());
}
