#include "display_pointer.h"
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

TEST(MainWindow, StaysUnderThePointerInAFastDrag) {
    const LedgerFolder folder;
    Program program(folder);
    signIn(program);
    program.look(); // the window has found its place
    const double left = program.get("Form2", "Left").toDouble(), top = program.get("Form2", "Top").toDouble();

    display_pointer::drag(program.place("Form2").topLeft() + bareTitle, {9, 4}, 60);

    program.look();
    EXPECT_EQ(program.get("Form2", "Left").toDouble(), left + 60 * 9 * 15);
    EXPECT_EQ(program.get("Form2", "Top").toDouble(), top + 60 * 4 * 15);
    endByCross(program);
}

TEST(MainWindow, APickerAskedForAgainComesOverTheWindowThatWasLaidOverIt) {
    const LedgerFolder folder;
    Program program(folder);
    signIn(program);
    program.click("Form2/Label7");
    program.click("Form2/Option16");
    program.waitForKeyboard("Form13");
    program.click("Form2/Label2(0)");
    program.clickCell("Form2/ms2", 1, 2);
    program.waitFor("Form1");
    program.look(); // the windows have found their places
    const QPoint fifteenth = program.place("Form1/Label3(19)").center();
    const QRect other = program.place("Form13");
    ASSERT_TRUE(other.contains(fifteenth));

    display_pointer::click(QPoint(other.center().x(), other.top() - 8)); // its title, which brings it to the front
    program.waitForKeyboard("Form13");
    display_pointer::click(program.place("Form2/tx2").center());
    program.look();
    display_pointer::doubleClick(fifteenth);
    program.waitUntil([&] { return program.text("Form2/tx2") == "2024-11-15"; }, "the day");
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
