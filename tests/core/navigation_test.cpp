#include "core_fixture.h"
#include "support/pointer.h"

namespace qinghe::testing {
namespace {

struct FramePlace {
    double left = 120, top = 1680, width = 11655, height = 6255;
};

/// Where a page's frame comes into view; those that are not named here have one place in common.
FramePlace placeOf(const QString& frame) {
    static const std::map<QString, FramePlace> others{
        {desktop::Page, {200, 1680, 11535, 6135}},
        {charts::Page, {.height = 6225}},
        {schedule::Page, {.height = 6015}},
        {settings::Page, {.height = 6135}},
    };
    const auto found = others.find(frame);
    return found == others.end() ? FramePlace{} : found->second;
}

class NavigationTest : public CoreTest {
protected:
    void SetUp() override { rig.signIn(); }

    QStringList redLabels() {
        QStringList red;
        for (const LabelledPage& page : LabelledPages)
            if (label(page.label).ForeColor() == Red)
                red << page.label;
        return red;
    }
    QStringList tabs() {
        QStringList chosen;
        for (const LabelledPage& page : LabelledPages)
            if (label(page.label).role() == Role::ChosenLabel)
                chosen << page.label;
        return chosen;
    }
    QStringList framesOnView() {
        QStringList shown;
        for (const Page* page : main().navigation().pages())
            if (page->frame().Visible())
                shown << page->traits().frame.toString();
        return shown;
    }
};

TEST_F(NavigationTest, TheLabelsStandInOneRow) {
    for (const LabelledPage& page : LabelledPages) {
        const Label& shown = label(page.label);
        EXPECT_EQ(shown.Caption(), page.caption);
        EXPECT_EQ(shown.Left(), page.left) << std::string(page.label);
        EXPECT_EQ(shown.Top(), 1080) << std::string(page.label);
        EXPECT_TRUE(shown.isVisible()) << std::string(page.label);
    }
}

TEST_F(NavigationTest, LabelsThatWouldOverlapShareTheRowEvenlyInTheirOrder) {
    static constexpr PageTab tabs[] = {{u"Label99", u"  礼金", 4900, PageCode::None}};
    static constexpr PageTraits traits{u"Frame99", u"礼金", 120, 1680, 11655, 6255, tabs};
    new Page(main().navigation(), traits); // between the accounts and the budget
    QStringList order;
    for (const LabelledPage& page : LabelledPages)
        order << page.label;
    order.insert(order.indexOf(pages::Budget), u"Label99"_s);
    const double share = main().Width() / static_cast<double>(order.size());
    for (qsizetype i = 0; i < order.size(); ++i) {
        EXPECT_NEAR(label(order[i]).Left(), share * static_cast<double>(i), 0.01) << order[i].toStdString();
        EXPECT_LE(label(order[i]).Width(), share);
    }
}

TEST_F(NavigationTest, AClickBringsThePagesFrameIntoItsPlaceAndHidesTheOthers) {
    for (const LabelledPage& page : LabelledPages) {
        rig.at(categories::Page).setShown(true);
        click(page.label);
        EXPECT_EQ(framesOnView(), QStringList{page.frame}) << std::string(page.label);
        const Frame& frame = rig.onMain<Frame>(page.frame);
        const FramePlace place = placeOf(page.frame);
        EXPECT_EQ(frame.Left(), place.left) << std::string(page.label);
        EXPECT_EQ(frame.Top(), place.top) << std::string(page.label);
        EXPECT_EQ(frame.Width(), place.width) << std::string(page.label);
        EXPECT_EQ(frame.Height(), place.height) << std::string(page.label);
        rig.at(users::Page).setShown(false); // the schedule's page leaves it as it stands
    }
}

TEST_F(NavigationTest, AClickTakesThePagesNumberAndMarksItsLabelAlone) {
    for (const LabelledPage& page : LabelledPages) {
        click(page.label);
        EXPECT_EQ(main().navigation().currentPage, page.number);
        EXPECT_EQ(redLabels(), QStringList{page.label});
    }
}

TEST_F(NavigationTest, TheTabIsThatOfThePageInViewWhateverThePointerWasOver) {
    EXPECT_EQ(tabs(), QStringList{pages::Desktop});
    for (const LabelledPage& page : LabelledPages) {
        click(page.label);
        EXPECT_EQ(tabs(), QStringList{page.label});
        pointer::move(label(page.number == 24 ? pages::Income : pages::Desktop));
        EXPECT_EQ(tabs(), QStringList{page.label});
    }
    rig.click(rig.at(settings::Categories));
    EXPECT_EQ(tabs(), QStringList{pages::Settings}) << "the categories belong to the settings";
    rig.click(rig.at(loans::Picture));
    EXPECT_EQ(tabs(), QStringList{pages::Loans});
    EXPECT_EQ(redLabels(), QStringList{pages::Settings}) << "whose number stays";
}

TEST_F(NavigationTest, AClickUnloadsTheTools) {
    for (const LabelledPage& page : LabelledPages) {
        openTools();
        click(page.label);
        EXPECT_FALSE(toolsOpen()) << std::string(page.label);
    }
}

TEST_F(NavigationTest, TheLabelsStayReachableOverEveryPage) {
    for (const LabelledPage& page : LabelledPages) {
        click(page.label);
        for (const LabelledPage& other : LabelledPages)
            EXPECT_EQ(main().childAt(label(other.label).geometry().center()), &label(other.label))
                << std::string(page.label);
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
    for (const LabelledPage& page : LabelledPages) {
        if (page.number == 23 || page.number == 4)
            continue;
        click(pages::Users);
        click(pages::Schedule);
        click(page.label);
        EXPECT_FALSE(rig.at(users::Page).Visible()) << std::string(page.label);
    }
}

TEST_F(NavigationTest, ThePageInFrontCanBeOpenedOnceMore) {
    for (const LabelledPage& page : LabelledPages) {
        click(page.label);
        click(page.label);
        EXPECT_TRUE(rig.onMain<Frame>(page.frame).isVisible()) << std::string(page.label);
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
