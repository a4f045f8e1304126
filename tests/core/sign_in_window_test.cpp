#include "core_fixture.h"
#include "support/pointer.h"

namespace qinghe::testing {
namespace {

class SignInWindow : public CoreTest {
protected:
    void SetUp() override { rig.start(); }
    Form& form() { return *rig.loaded(forms::SignIn); }
    Image& image(const QString& name) { return rig.control<Image>(forms::SignIn, name); }
};

TEST_F(SignInWindow, TheMinimiseImageMinimises) {
    rig.click(image(sign_in::Minimise));
    EXPECT_EQ(form().WindowState(), 1);
    EXPECT_FALSE(rig.ended());
}

TEST_F(SignInWindow, TheExitImageDeletesThePictureAndEndsWithTheHeaderHealed) {
    ASSERT_TRUE(folder().contains(u"dlpf.jpg"_s));
    rig.click(image(sign_in::Close));
    expectEndedWell();
    EXPECT_EQ(folder(), QStringList{u"data.dll"_s});
    EXPECT_EQ(rig.headerBytes(), Healed);
}

TEST_F(SignInWindow, TheDesktopsCloseEndsTheProgramAndLeavesThePicture) {
    form().close();
    expectEndedWell();
    EXPECT_TRUE(folder().contains(u"dlpf.jpg"_s));
    EXPECT_EQ(rig.headerBytes(), Healed);
}

TEST_F(SignInWindow, TheButtonIsRedUnderThePointerAndBlackWhenItIsOnTheWindow) {
    rig.hover(signInButton());
    EXPECT_EQ(signInButton().ForeColor(), Red);
    EXPECT_TRUE(handOver(signInButton()));
    pointer::move(form(), {150, 270});
    EXPECT_EQ(signInButton().ForeColor(), Black);
}

TEST_F(SignInWindow, ImagesAndWordsShowTheHand) {
    auto& words = rig.at(sign_in::RememberWords);
    for (Label* control :
         {static_cast<Label*>(&image(sign_in::Minimise)), static_cast<Label*>(&image(sign_in::Close)), &words}) {
        rig.hover(*control);
        EXPECT_TRUE(handOver(*control)) << control->objectName().toStdString();
    }
    EXPECT_EQ(signInButton().ForeColor(), Black);
}

TEST_F(SignInWindow, FollowsADragOfItsBareGroundAndNothingElse) {
    const double left = form().Left(), top = form().Top();
    const QPoint ground(150, 270), way(30, -20);
    pointer::press(form(), ground);
    pointer::move(form(), ground + way);
    EXPECT_EQ(form().Left(), left + 30 * 15);
    EXPECT_EQ(form().Top(), top - 20 * 15);
    pointer::release(form(), ground);
    pointer::move(form(), ground + way);
    EXPECT_EQ(form().Left(), left + 30 * 15) << "the button is up";
    pointer::press(password(), {20, 10});
    pointer::move(password(), {60, 10});
    EXPECT_EQ(form().Left(), left + 30 * 15) << "in a field the pointer selects";
}

TEST_F(SignInWindow, EnterOnTheTickSignsIn) {
    remember().setFocus();
    QTest::keyClick(&remember(), Qt::Key_Return);
    rig.settle();
    EXPECT_TRUE(rig.loaded(forms::Main));
    EXPECT_FALSE(rig.loaded(forms::SignIn));
}

TEST_F(SignInWindow, TheSignInButtonStaysRedUntilThePointerIsOnTheBareWindow) {
    rig.hover(signInButton());
    rig.hover(image(sign_in::Minimise));
    EXPECT_EQ(signInButton().ForeColor(), Red);
}

TEST_F(SignInWindow, ThePictureStaysAfterTheSignInUntilTheMainWindowIsLeft) {
    rig.click(signInButton());
    rig.settle();
    EXPECT_TRUE(folder().contains(u"dlpf.jpg"_s));
    click(title::Close);
    EXPECT_FALSE(folder().contains(u"dlpf.jpg"_s));
}

} // namespace
} // namespace qinghe::testing
