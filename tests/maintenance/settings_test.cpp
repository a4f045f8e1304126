#include "qt_printing.h"
#include "support/program_rig.h"

#include <gtest/gtest.h>

// The settings page: the way to the categories.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class SettingsTest : public ::testing::Test {
protected:
    SettingsTest() {
        rig.signIn();
        open();
    }

    void open() {
        rig.click(rig.onMain<Label>(u"Label7"_s));
        rig.settle();
    }
    CommandButton& categories() { return rig.onMain<CommandButton>(u"Command31"_s); }

    ProgramRig rig;
};

TEST_F(SettingsTest, TheWayToTheCategoriesStandsAmongTheSystemsSettings) {
    EXPECT_EQ(categories().text(), u"收支分类设置");
    EXPECT_EQ(categories().parentWidget(), &rig.frame(u"Frame20"_s));
    EXPECT_EQ(rig.frame(u"Frame20"_s).Caption(), u"系统设置");
    EXPECT_TRUE(categories().isVisible());
    EXPECT_TRUE(rig.frame(u"Frame20"_s).rect().contains(categories().geometry()));
}

TEST_F(SettingsTest, TheButtonBringsTheCategoriesUpInThePlaceOfTheSettings) {
    rig.click(categories());
    EXPECT_TRUE(rig.frame(u"Frame3"_s).isVisible());
    EXPECT_FALSE(rig.frame(u"Frame16"_s).Visible());
    EXPECT_TRUE(rig.onMain<OptionButton>(u"Option3"_s).Value());
}

TEST_F(SettingsTest, TheSettingsLabelLeadsBackAndTheButtonOpensOnceMore) {
    for (int visit = 0; visit < 3; ++visit) {
        rig.click(categories());
        ASSERT_TRUE(rig.frame(u"Frame3"_s).isVisible()) << visit;
        open();
        EXPECT_FALSE(rig.frame(u"Frame3"_s).Visible()) << visit;
        EXPECT_TRUE(rig.frame(u"Frame16"_s).isVisible()) << visit;
    }
}

TEST_F(SettingsTest, TheButtonIsGreyUnderThePointerAndWhiteBesideIt) {
    rig.hover(categories());
    EXPECT_EQ(categories().BackColor(), 0xE0E0E0u);
    EXPECT_EQ(categories().cursor().shape(), Qt::PointingHandCursor);
    rig.hover(rig.frame(u"Frame20"_s));
    EXPECT_EQ(categories().BackColor(), 0xFFFFFFu);
}

TEST_F(SettingsTest, TheButtonIsWhiteAgainWhenThePageComesBack) {
    rig.hover(categories());
    rig.click(categories());
    open();
    EXPECT_EQ(categories().BackColor(), 0xFFFFFFu);
}

TEST_F(SettingsTest, TheKeyboardOpensTheCategoriesToo) {
    categories().setFocus();
    rig.press(categories(), Qt::Key_Return);
    EXPECT_TRUE(rig.frame(u"Frame3"_s).isVisible());
}

} // namespace
} // namespace qinghe::testing
