#include "core_fixture.h"
#include "support/pointer.h"

namespace qinghe::testing {
namespace {

constexpr QPoint BareForm{400, 20};
constexpr quint32 Grey = 0xE0E0E0, White = 0xFFFFFF;

class Hover : public CoreTest {
protected:
    void SetUp() override { rig.signIn(); }
    CommandButton& button(const QString& name) { return rig.onMain<CommandButton>(name); }
};

TEST_F(Hover, ALabelUnderThePointerIsRedAndShowsTheHand) {
    for (const LabelledPage& page : LabelledPages) {
        Label& hovered = label(page.label);
        pointer::move(hovered);
        EXPECT_EQ(hovered.ForeColor(), Red) << std::string(page.label);
        EXPECT_TRUE(handOver(hovered)) << std::string(page.label);
    }
}

TEST_F(Hover, ALabelThatThePointerHasLeftStaysRedUntilItIsOnTheBareForm) {
    pointer::move(label(pages::Loans));
    pointer::move(label(pages::Accounts));
    pointer::move(rig.at(desktop::Page), {2, 2});
    pointer::move(rig.at(title::Band));
    EXPECT_EQ(label(pages::Loans).ForeColor(), Red);
    EXPECT_EQ(label(pages::Accounts).ForeColor(), Red);
    pointer::move(main(), BareForm);
    EXPECT_EQ(label(pages::Loans).ForeColor(), Black);
    EXPECT_EQ(label(pages::Accounts).ForeColor(), Black);
}

TEST_F(Hover, OnTheBareFormThePageInFrontIsRed) {
    click(pages::Budget);
    pointer::move(label(pages::Loans));
    label(pages::Budget).setForeColor(Black);
    pointer::move(main(), BareForm);
    EXPECT_EQ(label(pages::Budget).ForeColor(), Red);
    EXPECT_EQ(label(pages::Desktop).ForeColor(), Black);
}

TEST_F(Hover, TheWindowImagesAndTheAddressShowTheHandAndNothingElse) {
    for (const QString& name :
         QStringList{title::Close, title::Minimise, title::Tools, title::About, title::WebAddress}) {
        Label& hovered = label(name);
        const quint32 colour = hovered.ForeColor();
        pointer::move(hovered);
        EXPECT_TRUE(handOver(hovered)) << name.toStdString();
        EXPECT_EQ(hovered.ForeColor(), colour);
    }
    EXPECT_FALSE(rig.ended());
}

TEST_F(Hover, AButtonUnderThePointerIsGreyAndShowsTheHand) {
    click(pages::Income);
    for (const QString& name : QStringList{income::Add, income::Remove, income::Save}) {
        CommandButton& hovered = button(name);
        EXPECT_EQ(hovered.BackColor(), White);
        pointer::move(hovered);
        EXPECT_EQ(hovered.BackColor(), Grey) << name.toStdString();
        EXPECT_TRUE(handOver(hovered));
    }
}

TEST_F(Hover, OnTheFrameItsGreyButtonsTurnWhiteAgain) {
    click(pages::Income);
    pointer::move(button(income::Add));
    pointer::move(button(income::Save));
    button(income::Remove).setBackColor(0x123456);
    pointer::move(rig.at(income::Page), {4, 400});
    EXPECT_EQ(button(income::Add).BackColor(), White);
    EXPECT_EQ(button(income::Save).BackColor(), White);
    EXPECT_EQ(button(income::Remove).BackColor(), 0x123456u);
}

TEST_F(Hover, AnOptionShowsTheHand) {
    click(pages::Income);
    auto& option = rig.at(income::ByItem);
    pointer::move(option);
    EXPECT_TRUE(handOver(option));
    EXPECT_FALSE(option.Value());
}

} // namespace
} // namespace qinghe::testing
