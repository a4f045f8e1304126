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
    {u"Label24"_s, u"  桌面"_s, 0, 24, u"Frame13"_s, 200, 1680, 11535, 6135},
    {u"Label2(0)"_s, u"  收入"_s, 1080, 20, u"Frame2"_s, 120, 1680, 11655, 6255},
    {u"Label2(1)"_s, u"  支出"_s, 2160, 21, u"Frame2"_s, 120, 1680, 11655, 6255},
    {u"Label1"_s, u"  暂借"_s, 3240, 1, u"Frame6"_s, 120, 1680, 11655, 6255},
    {u"Label6"_s, u"  储蓄"_s, 4320, 6, u"frame9"_s, 120, 1680, 11655, 6255},
    {u"Label5"_s, u"  预算"_s, 5400, 5, u"Frame8"_s, 120, 1680, 11655, 6255},
    {u"Label12"_s, u"  图表"_s, 6480, 12, u"Frame15"_s, 120, 1680, 11655, 6225},
    {u"Label4"_s, u" 用户"_s, 7680, 4, u"Frame7"_s, 120, 1680, 11655, 6255},
    {u"Label8"_s, u"  日记"_s, 8640, 8, u"Frame10"_s, 120, 1680, 11655, 6255},
    {u"Label23"_s, u"  日程"_s, 9720, 23, u"Frame17"_s, 120, 1680, 11655, 6015},
    {u"Label7"_s, u" 设置"_s, 10920, 7, u"Frame16"_s, 120, 1680, 11655, 6135},
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
        for (const auto* name : {u"Frame13", u"Frame2", u"Frame6", u"frame9", u"Frame8", u"Frame15", u"Frame7",
                                 u"Frame10", u"Frame17", u"Frame16", u"Frame3"})
            if (rig.frame(QString::fromUtf16(name)).Visible())
                shown << QString::fromUtf16(name);
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
        rig.frame(u"Frame3"_s).setShown(true);
        click(page.label);
        EXPECT_EQ(framesOnView(), QStringList{page.frame}) << page.label.toStdString();
        const Frame& frame = rig.frame(page.frame);
        EXPECT_EQ(frame.Left(), page.left) << page.label.toStdString();
        EXPECT_EQ(frame.Top(), page.top) << page.label.toStdString();
        EXPECT_EQ(frame.Width(), page.width) << page.label.toStdString();
        EXPECT_EQ(frame.Height(), page.height) << page.label.toStdString();
        rig.frame(u"Frame7"_s).setShown(false); // the schedule's page leaves it as it stands
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
    click(u"Label4"_s);
    click(u"Label23"_s);
    EXPECT_EQ(framesOnView(), (QStringList{u"Frame7"_s, u"Frame17"_s}));
    const QPoint middle = rig.frame(u"Frame17"_s).geometry().center();
    const QWidget* front = main().childAt(middle);
    EXPECT_TRUE(front == &rig.frame(u"Frame17"_s) || rig.frame(u"Frame17"_s).isAncestorOf(front));
}

TEST_F(NavigationTest, EveryOtherPageHidesTheUsersPage) {
    for (const ExpectedPage& page : Expected) {
        if (page.number == 23 || page.number == 4)
            continue;
        click(u"Label4"_s);
        click(u"Label23"_s);
        click(page.label);
        EXPECT_FALSE(rig.frame(u"Frame7"_s).Visible()) << page.label.toStdString();
    }
}

TEST_F(NavigationTest, ThePageInFrontCanBeOpenedOnceMore) {
    for (const ExpectedPage& page : Expected) {
        click(page.label);
        click(page.label);
        EXPECT_TRUE(rig.frame(page.frame).isVisible()) << page.label.toStdString();
        EXPECT_EQ(redLabels(), QStringList{page.label});
    }
}

TEST_F(NavigationTest, AGridStandsInItsPlaceInsideItsPage) {
    click(u"Label2(0)"_s);
    const auto& grid = rig.onMain<MSFlexGrid>(u"ms2"_s);
    EXPECT_EQ(grid.Left(), 120);
    EXPECT_EQ(grid.Top(), 840);
    EXPECT_EQ(grid.Width(), 11415);
    EXPECT_EQ(grid.Height(), 4815);
}

} // namespace
} // namespace qinghe::testing
