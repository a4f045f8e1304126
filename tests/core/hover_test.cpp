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
    for (const auto* name : {u"Label24", u"Label2(0)", u"Label2(1)", u"Label1", u"Label6", u"Label5", u"Label12",
                             u"Label4", u"Label8", u"Label23", u"Label7"}) {
        Label& hovered = label(QString::fromUtf16(name));
        pointer::move(hovered);
        EXPECT_EQ(hovered.ForeColor(), Red) << QString::fromUtf16(name).toStdString();
        EXPECT_TRUE(handOver(hovered)) << QString::fromUtf16(name).toStdString();
    }
}

TEST_F(Hover, ALabelThatThePointerHasLeftStaysRedUntilItIsOnTheBareForm) {
    pointer::move(label(u"Label1"_s));
    pointer::move(label(u"Label6"_s));
    pointer::move(rig.frame(u"Frame13"_s), {2, 2});
    pointer::move(rig.onMain<Image>(u"Picture3"_s));
    EXPECT_EQ(label(u"Label1"_s).ForeColor(), Red);
    EXPECT_EQ(label(u"Label6"_s).ForeColor(), Red);
    pointer::move(main(), BareForm);
    EXPECT_EQ(label(u"Label1"_s).ForeColor(), Black);
    EXPECT_EQ(label(u"Label6"_s).ForeColor(), Black);
}

TEST_F(Hover, OnTheBareFormThePageInFrontIsRed) {
    click(u"Label5"_s);
    pointer::move(label(u"Label1"_s));
    label(u"Label5"_s).setForeColor(Black);
    pointer::move(main(), BareForm);
    EXPECT_EQ(label(u"Label5"_s).ForeColor(), Red);
    EXPECT_EQ(label(u"Label24"_s).ForeColor(), Black);
}

TEST_F(Hover, TheWindowImagesAndTheAddressShowTheHandAndNothingElse) {
    for (const auto* name : {u"Image3", u"Image4", u"Image5", u"Image7", u"Label20"}) {
        Label& hovered = label(QString::fromUtf16(name));
        const quint32 colour = hovered.ForeColor();
        pointer::move(hovered);
        EXPECT_TRUE(handOver(hovered)) << QString::fromUtf16(name).toStdString();
        EXPECT_EQ(hovered.ForeColor(), colour);
    }
    EXPECT_FALSE(rig.ended());
}

TEST_F(Hover, AButtonUnderThePointerIsGreyAndShowsTheHand) {
    click(u"Label2(0)"_s);
    for (const auto* name : {u"Command4", u"Command5", u"Command6"}) {
        CommandButton& hovered = button(QString::fromUtf16(name));
        EXPECT_EQ(hovered.BackColor(), White);
        pointer::move(hovered);
        EXPECT_EQ(hovered.BackColor(), Grey) << QString::fromUtf16(name).toStdString();
        EXPECT_TRUE(handOver(hovered));
    }
}

TEST_F(Hover, OnTheFrameItsGreyButtonsTurnWhiteAgain) {
    click(u"Label2(0)"_s);
    pointer::move(button(u"Command4"_s));
    pointer::move(button(u"Command6"_s));
    button(u"Command5"_s).setBackColor(0x123456);
    pointer::move(rig.frame(u"Frame2"_s), {4, 400});
    EXPECT_EQ(button(u"Command4"_s).BackColor(), White);
    EXPECT_EQ(button(u"Command6"_s).BackColor(), White);
    EXPECT_EQ(button(u"Command5"_s).BackColor(), 0x123456u);
}

TEST_F(Hover, AnOptionShowsTheHand) {
    click(u"Label2(0)"_s);
    auto& option = rig.onMain<OptionButton>(u"Option8"_s);
    pointer::move(option);
    EXPECT_TRUE(handOver(option));
    EXPECT_FALSE(option.Value());
}

} // namespace
} // namespace qinghe::testing
