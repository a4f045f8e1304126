#include "household.h"

#include <gtest/gtest.h>

using namespace whole;

namespace {

/// Waits until the desktop has opened so many pages, and gives the last one's file name.
std::string openedPage(Program& program, std::size_t count) {
    program.waitUntil([&] { return program.openedPages().size() == count; }, "the browser");
    const std::string page = program.openedPages().back();
    return page.substr(page.rfind('/') + 1);
}

} // namespace

TEST(MainWindow, FollowsADragOfItsBackgroundAndPutsTheDatePickerAway) {
    const LedgerFolder folder;
    Program program(folder);
    signIn(program);
    program.click("Form2/Label2(0)");
    program.clickCell("Form2/ms2", 1, 2);
    program.waitFor("Form1");
    program.look(); // the window has found its place
    const double left = program.get("Form2", "Left").toDouble(), top = program.get("Form2", "Top").toDouble();

    program.drag("Form2", bareTitle, {40, 24});

    program.waitUntil([&] { return program.get("Form2", "Left").toDouble() == left + 40 * 15; },
                      "the way to the right");
    EXPECT_EQ(program.get("Form2", "Top").toDouble(), top + 24 * 15);
    EXPECT_FALSE(program.shows("Form1"));
}

TEST(MainWindow, LinksOpenPagesThatLieBesideTheProgram) {
    const LedgerFolder folder;
    Program program(folder);
    signIn(program);
    program.click("Form2/Image7");
    EXPECT_EQ(openedPage(program, 1), "adetail.htm");
    program.click("Form2/Label20");
    EXPECT_EQ(openedPage(program, 2), "index.htm");
    for (const char* page : {"web/adetail.htm", "web/index.htm", "web/softs.htm"})
        EXPECT_TRUE(folder.has(page)) << page;
}

TEST(MainWindow, ToolsStandBesideIt) {
    const LedgerFolder folder;
    Program program(folder);
    signIn(program);
    program.look(); // the window has found its place
    program.click("Form2/Image5");
    program.waitFor("Form7");
    EXPECT_EQ(program.get("Form7", "windowTitle").toString().toStdString(), "软件工具");
    EXPECT_EQ(program.get("Form7", "Left").toDouble(),
              program.get("Form2", "Left").toDouble() + program.get("Form2", "Width").toDouble());
    EXPECT_EQ(program.get("Form7", "Height").toDouble(), program.get("Form2", "Height").toDouble());
    program.close("Form7");
    endByCross(program);
}

TEST(MainWindow, ClosedByTheDesktopItEndsAndLeavesTheDataOpen) {
    const LedgerFolder folder;
    Program program(folder);
    signIn(program);
    program.close("Form2");
    EXPECT_EQ(program.exitCode(), 0);
    EXPECT_EQ(folder.header(), "01 00");
    EXPECT_TRUE(folder.has("pf.jpg"));
}
