#include "controls/long_text_box.h"
#include "window_fixture.h"

#include <QApplication>

namespace qinghe::testing {
namespace {

class Clicks : public WindowTest {
protected:
    Label& label = put<Label>(form, u"Label1"_s, {0, 0, 1500, 600}, u"桌面"_s);
    Label& other = put<Label>(form, u"Label2"_s, {1500, 0, 1500, 600});
    Frame& frame = put<Frame>(form, u"Frame2"_s, {0, 900, 6000, 3000});
    CommandButton& button = put<CommandButton>(frame, u"Command6"_s, {0, 600, 1500, 600}, u"保存"_s);
};

TEST_F(Clicks, APressAndReleaseOnALabelAreItsClickAlone) {
    pointer::click(label);
    EXPECT_EQ(noted(), QStringList{u"Label1"_s});
}

TEST_F(Clicks, AReleaseOnAnotherControlIsNoClick) {
    pointer::press(label);
    pointer::release(other);
    EXPECT_EQ(noted(), QStringList{});
    pointer::click(other);
    EXPECT_EQ(noted(), QStringList{u"Label2"_s});
}

TEST_F(Clicks, AReleaseWithoutAPressIsNoClick) {
    pointer::release(label);
    EXPECT_EQ(noted(), QStringList{});
}

TEST_F(Clicks, OnlyTheLeftButtonClicks) {
    QTest::mouseClick(form.windowHandle(), Qt::RightButton, {}, label.geometry().center());
    QTest::mouseClick(form.windowHandle(), Qt::RightButton, {}, frame.geometry().center());
    QTest::mouseClick(form.windowHandle(), Qt::RightButton, {}, QPoint(10, 290));
    EXPECT_EQ(noted(), QStringList{});
}

TEST_F(Clicks, APressOnALabelOrAFrameNeverReachesTheForm) {
    form.MouseDown = [this](double, double) { note(u"down"_s); };
    form.MouseUp = [this](double, double) { note(u"up"_s); };
    pointer::click(label);
    pointer::click(frame);
    EXPECT_EQ(noted(), (QStringList{u"Label1"_s, u"Frame2"_s}));
    pointer::click(form, {300, 45});
    EXPECT_EQ(noted(), (QStringList{u"down"_s, u"up"_s, u"Form2"_s}));
}

TEST_F(Clicks, AMoveOverALabelOrAFrameNeverReachesTheForm) {
    form.MouseMove = [this](double, double) { note(u"form"_s); };
    label.MouseMove = [this] { note(u"label"_s); };
    frame.MouseMove = [this] { note(u"frame"_s); };
    button.MouseMove = [this] { note(u"button"_s); };
    pointer::move(label);
    pointer::move(frame);
    pointer::move(button);
    pointer::move(other);
    EXPECT_EQ(noted(), (QStringList{u"label"_s, u"frame"_s, u"button"_s}));
    pointer::move(form, {300, 45});
    EXPECT_EQ(noted(), QStringList{u"form"_s});
}

TEST_F(Clicks, ADisabledLabelHandsItsClickToItsContainer) {
    label.setUsable(false);
    pointer::click(label);
    EXPECT_EQ(noted(), QStringList{u"Form2"_s});
}

TEST_F(Clicks, ADisabledButtonHandsItsClickToItsContainer) {
    button.setUsable(false);
    pointer::click(button);
    EXPECT_EQ(noted(), QStringList{u"Frame2"_s});
}

TEST_F(Clicks, ADisabledOptionOrTickHandsItsClickToItsContainer) {
    auto& option = put<OptionButton>(frame, u"Option1"_s, {1800, 600, 1500, 300}, u"借入"_s);
    auto& box = put<CheckBox>(frame, u"Check1"_s, {1800, 1200, 1500, 300}, u"提醒"_s);
    for (QWidget* control : {static_cast<QWidget*>(&option), static_cast<QWidget*>(&box)}) {
        control->setEnabled(false);
        pointer::click(*control);
        EXPECT_EQ(noted(), QStringList{u"Frame2"_s});
    }
    EXPECT_FALSE(option.Value());
    EXPECT_FALSE(box.Value());
}

TEST_F(Clicks, ADisabledTextBoxHandsItsClickToItsContainer) {
    auto& box = put<TextBox>(frame, u"tx2"_s, {1800, 600, 1500, 300});
    pointer::click(box);
    EXPECT_EQ(noted(), QStringList{u"tx2"_s});
    box.setUsable(false);
    pointer::click(box);
    EXPECT_EQ(noted(), QStringList{u"Frame2"_s});
}

TEST_F(Clicks, ATextBoxIsClickedByTheLeftButtonOnItself) {
    auto& line = put<TextBox>(frame, u"Text4"_s, {1800, 600, 1500, 300});
    auto& lines = put<LongTextBox>(frame, u"Text3"_s, {1800, 1200, 1500, 900});
    for (QWidget* box : {static_cast<QWidget*>(&line), lines.viewport()}) {
        const QPoint centre = pointer::inWindow(*box, box->rect().center());
        QTest::mouseClick(form.windowHandle(), Qt::RightButton, {}, centre);
        if (QWidget* menu = QApplication::activePopupWidget())
            menu->close();
        QTest::mousePress(form.windowHandle(), Qt::LeftButton, {}, centre);
        QTest::mouseRelease(form.windowHandle(), Qt::LeftButton, {}, pointer::inWindow(label, {1, 1}));
    }
    EXPECT_EQ(noted(), QStringList{});
    pointer::click(line);
    pointer::click(*lines.viewport());
    EXPECT_EQ(noted(), (QStringList{u"Text4"_s, u"Text3"_s}));
}

TEST_F(Clicks, TwoQuickClicksOnALabelAreTwoClicks) {
    pointer::doubleClick(label);
    EXPECT_EQ(noted(), (QStringList{u"Label1"_s, u"Label1"_s}));
}

TEST_F(Clicks, ALabelWithADoubleClickOfItsOwnTellsItOnce) {
    label.DblClick = [this] { note(u"double"_s); };
    pointer::doubleClick(label);
    EXPECT_EQ(noted(), (QStringList{u"Label1"_s, u"double"_s}));
}

TEST_F(Clicks, TheSecondPressOfADoubleClickBegunOnAnotherControlIsNobodys) {
    label.DblClick = [this] { note(u"double"_s); };
    label.setShown(false);
    put<Label>(form, u"Label9"_s, {0, 0, 1500, 600}).Click = [this] { label.setShown(true), label.raise(); };
    pointer::doubleClick(form, label.geometry().center());
    EXPECT_FALSE(noted().contains(u"double"_s));
}

TEST_F(Clicks, TheSecondPressOfADoubleClickBegunElsewhereSelectsNothingInATextBox) {
    auto& box = put<TextBox>(form, u"tx2"_s, {0, 0, 1500, 600});
    box.setBoxText(u"100"_s);
    box.setShown(false);
    put<Label>(form, u"Label9"_s, {0, 0, 1500, 600}).Click = [&box] { box.setShown(true), box.raise(); };
    pointer::doubleClick(form, box.geometry().center());
    ASSERT_TRUE(box.isVisible());
    EXPECT_EQ(box.selectedText(), QString());
    pointer::doubleClick(box);
    EXPECT_EQ(box.selectedText(), u"100"_s);
}

TEST_F(Clicks, TheSecondPressOfADoubleClickOnAFrameIsNoSecondClick) {
    pointer::doubleClick(frame);
    EXPECT_EQ(noted(), QStringList{u"Frame2"_s});
}

TEST_F(Clicks, AButtonClicksByMouseAndBySpaceAndEnter) {
    pointer::click(button);
    QTest::keyClick(&button, Qt::Key_Space);
    QTest::keyClick(&button, Qt::Key_Return);
    QTest::keyClick(&button, Qt::Key_Enter);
    EXPECT_EQ(noted(), QStringList(4, u"Command6"_s));
}

TEST_F(Clicks, AHeldEnterKeyPressesAButtonOnce) {
    QTest::simulateEvent(&button, true, Qt::Key_Return, {}, u"\r"_s, true);
    EXPECT_EQ(noted(), QStringList{});
}

TEST_F(Clicks, AnErrorInAClickEndsTheProgramAndLeavesNoHandler) {
    label.Click = [] { throw RuntimeError(RuntimeError::SubscriptOutOfRange, u"下标越界"_s); };
    pointer::click(label);
    EXPECT_EQ(noted(), (QStringList{u"report 9"_s, u"end 1"_s}));
    EXPECT_EQ(handlers::depth(), 0);
}

TEST_F(Clicks, ALabelShowsItsWordsAsTheyStand) {
    label.setCaption(u"<b>饭 & 菜</b>"_s);
    EXPECT_EQ(label.textFormat(), Qt::PlainText);
    EXPECT_EQ(label.text(), u"<b>饭 & 菜</b>"_s);
    EXPECT_EQ(label.Caption(), label.text());
}

} // namespace
} // namespace qinghe::testing
