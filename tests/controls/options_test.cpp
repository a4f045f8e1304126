#include "window_fixture.h"

namespace qinghe::testing {
namespace {

class Options : public WindowTest {
protected:
    Frame& frame = put<Frame>(form, u"Frame2"_s, {0, 0, 3000, 3000});
    Frame& otherFrame = put<Frame>(form, u"Frame6"_s, {3000, 0, 3000, 3000});
    OptionButton& first = put<OptionButton>(frame, u"Option7"_s, {300, 300, 1500, 300}, u"录入数据"_s);
    OptionButton& second = put<OptionButton>(frame, u"Option8"_s, {300, 900, 1500, 300}, u"统计"_s);
    OptionButton& elsewhere = put<OptionButton>(otherFrame, u"Option1"_s, {300, 300, 1500, 300}, u"借入"_s);
    CheckBox& box = put<CheckBox>(frame, u"Check1"_s, {300, 1500, 1500, 300}, u"日程提醒"_s);

    /// Where the mark of an option or a tick lies.
    static void clickMark(QWidget& control) { pointer::click(control, {8, control.height() / 2}); }
};

TEST_F(Options, CodeRaisesTheClickOnceAndOnlyOnAChange) {
    first.setValue(true);
    EXPECT_EQ(noted(), QStringList{u"Option7"_s});
    first.setValue(true);
    EXPECT_EQ(noted(), QStringList{});
    second.setValue(true);
    EXPECT_EQ(noted(), QStringList{u"Option8"_s});
    EXPECT_FALSE(first.Value());
    EXPECT_TRUE(second.Value());
}

TEST_F(Options, AUsersClickRaisesItOnceAndOnlyOnAChange) {
    clickMark(first);
    EXPECT_EQ(noted(), QStringList{u"Option7"_s});
    clickMark(first);
    EXPECT_EQ(noted(), QStringList{});
    clickMark(second);
    EXPECT_EQ(noted(), QStringList{u"Option8"_s});
    EXPECT_FALSE(first.Value());
}

TEST_F(Options, AUserAndCodeTakeTurns) {
    first.setValue(true);
    clickMark(second);
    first.setValue(true);
    clickMark(second);
    EXPECT_EQ(noted(), (QStringList{u"Option7"_s, u"Option8"_s, u"Option7"_s, u"Option8"_s}));
    EXPECT_TRUE(second.Value());
    EXPECT_FALSE(first.Value());
}

TEST_F(Options, EveryContainerIsAGroupOfItsOwn) {
    first.setValue(true);
    elsewhere.setValue(true);
    EXPECT_TRUE(first.Value());
    clickMark(second);
    EXPECT_TRUE(elsewhere.Value());
}

TEST_F(Options, CodeCanLeaveAGroupWithoutAChoiceAndRaisesNothing) {
    first.setValue(true);
    noted();
    first.setValue(false);
    EXPECT_FALSE(first.Value());
    EXPECT_EQ(noted(), QStringList{});
    clickMark(first);
    EXPECT_EQ(noted(), QStringList{u"Option7"_s});
    clickMark(second);
    EXPECT_FALSE(first.Value());
}

TEST_F(Options, CodeCanMoveTheChoiceFromInsideTheClick) {
    second.Click = [this] {
        note(u"Option8"_s);
        first.setValue(true);
    };
    clickMark(second);
    EXPECT_EQ(noted(), (QStringList{u"Option8"_s, u"Option7"_s}));
    EXPECT_TRUE(first.Value());
    EXPECT_FALSE(second.Value());
}

TEST_F(Options, AnErrorRaisedByCodeTravelsToTheCaller) {
    first.Click = [] { throw RuntimeError(RuntimeError::TypeMismatch, u"类型不匹配"_s); };
    box.Click = [] { throw RuntimeError(RuntimeError::Overflow, u"溢出"_s); };
    EXPECT_EQ(errorOf([this] { first.setValue(true); }), RuntimeError::TypeMismatch);
    EXPECT_EQ(errorOf([this] { box.setValue(true); }), RuntimeError::Overflow);
}

TEST_F(Options, ATickRaisesItsClickOnEveryChangeWhoeverMadeIt) {
    box.setValue(true);
    box.setValue(true);
    EXPECT_EQ(noted(), QStringList{u"Check1"_s});
    clickMark(box);
    EXPECT_FALSE(box.Value());
    box.setValue(false);
    EXPECT_EQ(noted(), QStringList{u"Check1"_s});
}

TEST_F(Options, TheClickSeesTheNewState) {
    box.Click = [this] { note(box.Value() ? u"on"_s : u"off"_s); };
    first.Click = [this] { note(first.Value() ? u"chosen"_s : u"not chosen"_s); };
    box.setValue(true);
    clickMark(box);
    clickMark(first);
    EXPECT_EQ(noted(), (QStringList{u"on"_s, u"off"_s, u"chosen"_s}));
}

TEST_F(Options, StatesAreReachedFromOutsideByName) {
    form.findChild<QWidget*>(u"Option7"_s)->setProperty("checked", true);
    form.findChild<QWidget*>(u"Check1"_s)->setProperty("checked", true);
    EXPECT_EQ(noted(), (QStringList{u"Option7"_s, u"Check1"_s}));
    EXPECT_EQ(first.property("text").toString(), u"录入数据"_s);
}

} // namespace
} // namespace qinghe::testing
