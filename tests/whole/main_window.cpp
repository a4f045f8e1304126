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
    program.click(pages::Income);
    program.clickCell(income::Grid, 1, 2);
    program.waitFor(forms::DatePicker);
    program.look(); // the window has found its place
    const double left = program.get(forms::Main, "Left").toDouble(), top = program.get(forms::Main, "Top").toDouble();

    program.drag(forms::Main, bareTitle, {40, 24});

    program.waitUntil([&] { return program.get(forms::Main, "Left").toDouble() == left + 40 * 15; },
                      "the way to the right");
    EXPECT_EQ(program.get(forms::Main, "Top").toDouble(), top + 24 * 15);
    EXPECT_FALSE(program.shows(forms::DatePicker));
}

TEST(MainWindow, StaysUnderThePointerInAFastDrag) {
    const LedgerFolder folder;
    Program program(folder);
    signIn(program);
    program.look(); // the window has found its place
    const double left = program.get(forms::Main, "Left").toDouble(), top = program.get(forms::Main, "Top").toDouble();

    display_pointer::drag(program.place(forms::Main).topLeft() + bareTitle, {9, 4}, 60);

    program.look();
    EXPECT_EQ(program.get(forms::Main, "Left").toDouble(), left + 60 * 9 * 15);
    EXPECT_EQ(program.get(forms::Main, "Top").toDouble(), top + 60 * 4 * 15);
    endByCross(program);
}

TEST(MainWindow, APickerAskedForAgainComesOverTheWindowThatWasLaidOverIt) {
    const LedgerFolder folder;
    Program program(folder);
    signIn(program);
    program.click(pages::Settings);
    program.click(settings::Restore);
    program.waitForKeyboard(forms::Backup);
    program.click(pages::Income);
    program.clickCell(income::Grid, 1, 2);
    program.waitFor(forms::DatePicker);
    program.look(); // the windows have found their places
    const QPoint fifteenth = program.place(date_picker::Day[19]).center();
    const QRect other = program.place(forms::Backup);
    ASSERT_TRUE(other.contains(fifteenth));

    display_pointer::click(QPoint(other.center().x(), other.top() - 8)); // its title, which brings it to the front
    program.waitForKeyboard(forms::Backup);
    display_pointer::click(program.place(income::Box).center());
    program.look();
    display_pointer::doubleClick(fifteenth);
    program.waitUntil([&] { return program.text(income::Box) == "2024-11-15"; }, "the day");
}

TEST(MainWindow, LinksOpenPagesThatLieBesideTheProgram) {
    const LedgerFolder folder;
    Program program(folder);
    signIn(program);
    program.click(title::About);
    EXPECT_EQ(openedPage(program, 1), "adetail.htm");
    program.click(title::WebAddress);
    EXPECT_EQ(openedPage(program, 2), "index.htm");
    for (const char* page : {"web/adetail.htm", "web/index.htm", "web/softs.htm"})
        EXPECT_TRUE(folder.has(page)) << page;
}

TEST(MainWindow, ToolsStandBesideIt) {
    const LedgerFolder folder;
    Program program(folder);
    signIn(program);
    program.look(); // the window has found its place
    program.click(title::Tools);
    program.waitFor(forms::Web);
    EXPECT_EQ(program.get(forms::Web, "windowTitle").toString().toStdString(), "软件工具");
    EXPECT_EQ(program.get(forms::Web, "Left").toDouble(),
              program.get(forms::Main, "Left").toDouble() + program.get(forms::Main, "Width").toDouble());
    EXPECT_EQ(program.get(forms::Web, "Height").toDouble(), program.get(forms::Main, "Height").toDouble());
    program.close(forms::Web);
    endByCross(program);
}

TEST(MainWindow, ClosedByTheDesktopItEndsAndLeavesTheDataOpen) {
    const LedgerFolder folder;
    Program program(folder);
    signIn(program);
    program.close(forms::Main);
    EXPECT_EQ(program.exitCode(), 0);
    EXPECT_EQ(folder.header(), "01 00");
    EXPECT_TRUE(folder.has("pf.jpg"));
}
