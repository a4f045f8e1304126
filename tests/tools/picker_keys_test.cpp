#include "tools/tool_rig.h"

#include <QApplication>

// The picker by keys: the date box keeps the keyboard and hands keys on when it is asked to.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

constexpr quint32 Blue = 0xFF0000;

class PickerKeysTest : public ToolTest {
protected:
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, const QString& text = {}) {
        QTest::sendKeyEvent(QTest::Click, holder(), key, text, modifiers);
        rig.settle();
    }
    /// In the main window, which a desktop would leave the active one.
    QWidget* holder() { return rig.mainWindow().focusWidget(); }
    void enter() { key(Qt::Key_Return, {}, u"\r"_s); }
    bool isOpen() { return ToolTest::isOpen(forms::DatePicker); }
    /// The month on show and the day that the keys are at, in its ring: "2024 年 6月|18".
    QString at() {
        for (int i = 0; i < 42; ++i)
            if (const Label& day = rig.at(date_picker::Day[i]); day.role() == Role::WalkedDay) {
                EXPECT_EQ(day.BackColor(), Blue);
                return rig.at(date_picker::Month).Caption().trimmed() + u'|' + day.Caption();
            }
        return u"nowhere"_s;
    }
};

TEST_F(PickerKeysTest, TheBoxKeepsItsKeysUntilDownOrF4HandsThemOn) {
    openDatePicker(); // the rig's day is 2024-6-18
    ASSERT_EQ(holder(), &tx2());
    key(Qt::Key_Left);
    EXPECT_EQ(at(), u"nowhere");
    key(Qt::Key_Down);
    EXPECT_EQ(at(), u"2024 年 6月|18");
    EXPECT_EQ(holder(), &tx2());
    key(Qt::Key_5, {}, u"5"_s); // typed: the box has its keys again
    EXPECT_EQ(at(), u"nowhere");
    EXPECT_TRUE(tx2().Text().contains(u'5'));
    key(Qt::Key_F4);
    EXPECT_EQ(at(), u"2024 年 6月|18");
}

TEST_F(PickerKeysTest, TheArrowsWalkOverDaysAndMonths) {
    openDatePicker();
    key(Qt::Key_F4);
    const auto walk = [this](Qt::Key pressed, const QString& to, Qt::KeyboardModifiers modifiers = {}) {
        key(pressed, modifiers);
        EXPECT_EQ(at(), to);
    };
    walk(Qt::Key_Right, u"2024 年 6月|19"_s);
    walk(Qt::Key_Down, u"2024 年 6月|26"_s);
    walk(Qt::Key_Down, u"2024 年 7月|3"_s);
    walk(Qt::Key_Up, u"2024 年 6月|26"_s);
    walk(Qt::Key_End, u"2024 年 6月|30"_s);
    walk(Qt::Key_Right, u"2024 年 7月|1"_s);
    walk(Qt::Key_Left, u"2024 年 6月|30"_s);
    walk(Qt::Key_Home, u"2024 年 6月|1"_s);
    walk(Qt::Key_Left, u"2024 年 5月|31"_s);
    walk(Qt::Key_PageUp, u"2024 年 4月|30"_s);
    walk(Qt::Key_PageDown, u"2024 年 5月|30"_s);
    walk(Qt::Key_PageUp, u"2023 年 5月|30"_s, Qt::ControlModifier);
    walk(Qt::Key_PageDown, u"2024 年 5月|30"_s, Qt::ControlModifier);
}

TEST_F(PickerKeysTest, EnterTakesTheDayAsADoubleClickDoesAndTheBoxGoesOn) {
    openDatePicker();
    key(Qt::Key_Down);
    key(Qt::Key_Left);
    enter();
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(tx2().Text(), u"2024-6-17");
    EXPECT_EQ(ms2().TextMatrix(1, 2), u"2024-6-17");
    ASSERT_EQ(holder(), &tx2());
    enter(); // the box's own again
    EXPECT_EQ(ms2().Col(), 3);
}

TEST_F(PickerKeysTest, AHeldEnterTakesNoDay) {
    openDatePicker();
    key(Qt::Key_Down);
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, {}, u"\r"_s, true);
    QApplication::sendEvent(&tx2(), &held);
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(ms2().Col(), 2);
}

TEST_F(PickerKeysTest, EscClosesItAndTheBoxStaysOpenUntilTheNextOne) {
    openDatePicker();
    const QString before = tx2().Text();
    key(Qt::Key_Down);
    key(Qt::Key_Escape, {}, u"\x1b"_s);
    EXPECT_FALSE(isOpen());
    EXPECT_TRUE(tx2().isVisible());
    EXPECT_EQ(tx2().Text(), before);
    key(Qt::Key_F4); // opens it anew
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(at(), u"2024 年 6月|18");
    key(Qt::Key_Escape, {}, u"\x1b"_s);
    key(Qt::Key_Escape, {}, u"\x1b"_s);
    EXPECT_FALSE(tx2().isVisible());
    EXPECT_EQ(holder(), &ms2());
}

TEST_F(PickerKeysTest, InABoxThatHoldsNoDateTheKeysAreTheBoxs) {
    openPage();
    rig.clickCell(ms2(), 1, 3);
    key(Qt::Key_Down);
    key(Qt::Key_F4);
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(ms2().Row(), 1);
}

TEST_F(PickerKeysTest, EveryDateBoxOfItsOwnOpensItByDownAndTakesTheDay) {
    openPage();
    struct Field {
        Name<Label> page;
        Name<TextBox> box;
    };
    for (const Field& field : {Field{pages::Schedule, schedule::Date}, Field{pages::Charts, charts::From},
                               Field{pages::Charts, charts::To}}) {
        press(rig.at(field.page));
        if (field.page.name == pages::Charts.name)
            rig.click(rig.at(charts::IncomeByItem));
        auto& box = rig.at(field.box);
        box.setFocus();
        key(Qt::Key_Down);
        ASSERT_TRUE(isOpen()) << std::string(field.box);
        key(Qt::Key_Right);
        enter();
        EXPECT_EQ(box.Text(), u"2024-6-19") << std::string(field.box);
        EXPECT_EQ(holder(), &box);
    }
}

} // namespace
} // namespace qinghe::testing
