#include "core_fixture.h"

namespace qinghe::testing {
namespace {

struct ExpectedPage {
    QString label, caption;
    double labelLeft;
    int number;
    QString frame;
    double left, top, width, height;
};

const std::array<ExpectedPage, 11> Expected{{
    {pages::Desktop, u"  桌面"_s, 0, 24, desktop::Page, 200, 1680, 11535, 6135},
    {pages::Income, u"  收入"_s, 1080, 20, income::Page, 120, 1680, 11655, 6255},
    {pages::Expense, u"  支出"_s, 2160, 21, income::Page, 120, 1680, 11655, 6255},
    {pages::Loans, u"  暂借"_s, 3240, 1, loans::Page, 120, 1680, 11655, 6255},
    {pages::Accounts, u"  储蓄"_s, 4320, 6, accounts::Page, 120, 1680, 11655, 6255},
    {pages::Budget, u"  预算"_s, 5400, 5, budget::Page, 120, 1680, 11655, 6255},
    {pages::Charts, u"  图表"_s, 6480, 12, charts::Page, 120, 1680, 11655, 6225},
    {pages::Users, u" 用户"_s, 7680, 4, users::Page, 120, 1680, 11655, 6255},
    {pages::Diary, u"  日记"_s, 8640, 8, diary_page::Page, 120, 1680, 11655, 6255},
    {pages::Schedule, u"  日程"_s, 9720, 23, schedule::Page, 120, 1680, 11655, 6015},
    {pages::Settings, u" 设置"_s, 10920, 7, settings::Page, 120, 1680, 11655, 6135},
}};

class NavigationTest : public CoreTest {
protected:
    void SetUp() override { rig.signIn(); }

    QStringList redLabels() {
        QStringList red;
        for (const ExpectedPage& page : Expected)
            if (label(page.label).ForeColor() == Red)
                red << page.label;
        return red;
    }
    QStringList framesOnView() {
        QStringList shown;
        for (const QString& name :
             QStringList{desktop::Page, income::Page, loans::Page, accounts::Page, budget::Page, charts::Page,
                         users::Page, diary_page::Page, schedule::Page, settings::Page, categories::Page})
            if (rig.onMain<Frame>(name).Visible())
                shown << name;
        return shown;
    }
};

TEST_F(NavigationTest, TheLabelsStandInOneRow) {
    for (const ExpectedPage& page : Expected) {
        const Label& shown = label(page.label);
        EXPECT_EQ(shown.Caption(), page.caption);
        EXPECT_EQ(shown.Left(), page.labelLeft) << page.label.toStdString();
        EXPECT_EQ(shown.Top(), 1080) << page.label.toStdString();
        EXPECT_TRUE(shown.isVisible()) << page.label.toStdString();
    }
}

TEST_F(NavigationTest, AClickBringsThePagesFrameIntoItsPlaceAndHidesTheOthers) {
    for (const ExpectedPage& page : Expected) {
        rig.at(categories::Page).setShown(true);
        click(page.label);
        EXPECT_EQ(framesOnView(), QStringList{page.frame}) << page.label.toStdString();
        const Frame& frame = rig.onMain<Frame>(page.frame);
        EXPECT_EQ(frame.Left(), page.left) << page.label.toStdString();
        EXPECT_EQ(frame.Top(), page.top) << page.label.toStdString();
        EXPECT_EQ(frame.Width(), page.width) << page.label.toStdString();
        EXPECT_EQ(frame.Height(), page.height) << page.label.toStdString();
        rig.at(users::Page).setShown(false); // the schedule's page leaves it as it stands
    }
}

TEST_F(NavigationTest, AClickTakesThePagesNumberAndMarksItsLabelAlone) {
    for (const ExpectedPage& page : Expected) {
        click(page.label);
        EXPECT_EQ(main().navigation().currentPage, page.number);
        EXPECT_EQ(redLabels(), QStringList{page.label});
    }
}

TEST_F(NavigationTest, AClickUnloadsTheTools) {
    for (const ExpectedPage& page : Expected) {
        openTools();
        click(page.label);
        EXPECT_FALSE(toolsOpen()) << page.label.toStdString();
    }
}

TEST_F(NavigationTest, TheLabelsStayReachableOverEveryPage) {
    for (const ExpectedPage& page : Expected) {
        click(page.label);
        for (const ExpectedPage& other : Expected)
            EXPECT_EQ(main().childAt(label(other.label).geometry().center()), &label(other.label))
                << page.label.toStdString();
    }
}

TEST_F(NavigationTest, TheScheduleLeavesTheUsersPageVisibleBehindIt) {
    click(pages::Users);
    click(pages::Schedule);
    EXPECT_EQ(framesOnView(), (QStringList{users::Page, schedule::Page}));
    const QPoint middle = rig.at(schedule::Page).geometry().center();
    const QWidget* front = main().childAt(middle);
    EXPECT_TRUE(front == &rig.at(schedule::Page) || rig.at(schedule::Page).isAncestorOf(front));
}

TEST_F(NavigationTest, EveryOtherPageHidesTheUsersPage) {
    for (const ExpectedPage& page : Expected) {
        if (page.number == 23 || page.number == 4)
            continue;
        click(pages::Users);
        click(pages::Schedule);
        click(page.label);
        EXPECT_FALSE(rig.at(users::Page).Visible()) << page.label.toStdString();
    }
}

TEST_F(NavigationTest, ThePageInFrontCanBeOpenedOnceMore) {
    for (const ExpectedPage& page : Expected) {
        click(page.label);
        click(page.label);
        EXPECT_TRUE(rig.onMain<Frame>(page.frame).isVisible()) << page.label.toStdString();
        EXPECT_EQ(redLabels(), QStringList{page.label});
    }
}

TEST_F(NavigationTest, AGridStandsInItsPlaceInsideItsPage) {
    click(pages::Income);
    const auto& grid = rig.at(income::Grid);
    EXPECT_EQ(grid.Left(), 120);
    EXPECT_EQ(grid.Top(), 840);
    EXPECT_EQ(grid.Width(), 11415);
    EXPECT_EQ(grid.Height(), 4815);
}

} // namespace
} // namespace qinghe::testing
