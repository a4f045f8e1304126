#include "controls/long_text_box.h"
#include "window_fixture.h"

#include <QInputMethodEvent>
#include <QTextBlock>
#include <QTextLayout>

namespace qinghe::testing {
namespace {

class LongTextKeys : public WindowTest {
protected:
    LongTextKeys() {
        box.KeyPress = [this](int code) { seen << u"%1:%2"_s.arg(code).arg(box.Text()); };
    }

    LongTextBox& box = put<LongTextBox>(form, u"Text3"_s, {300, 300, 4000, 3000});
    QStringList seen; ///< code of each key press, and the text as it was then
};

TEST_F(LongTextKeys, AKeyIsToldBeforeItEnters) {
    QTest::keyClicks(&box, u"a"_s);
    QTest::keyClick(&box, Qt::Key_Return);
    QTest::keyClick(&box, Qt::Key_Backspace);
    EXPECT_EQ(seen, (QStringList{u"97:"_s, u"13:a"_s, u"8:a\r\n"_s}));
    EXPECT_EQ(box.Text(), u"a"_s);
}

TEST_F(LongTextKeys, KeysThatEnterNothingAreNotTold) {
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Up, Qt::Key_Delete, Qt::Key_Tab})
        QTest::keyClick(&box, key);
    for (const Qt::KeyboardModifier command : {Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier})
        QTest::keyClick(&box, Qt::Key_A, command);
    EXPECT_EQ(seen, QStringList{});
}

TEST_F(LongTextKeys, EachCharacterOfAnInputMethodIsToldAndEntersBeforeTheNext) {
    QInputMethodEvent event;
    event.setCommitString(u"买菜😀"_s);
    QCoreApplication::sendEvent(&box, &event);
    ASSERT_EQ(seen.size(), 3);
    EXPECT_EQ(seen[0], u"%1:"_s.arg(u'买'));
    EXPECT_EQ(seen[1], u"%1:买"_s.arg(u'菜'));
    EXPECT_TRUE(seen[2].endsWith(u":买菜"_s));
    EXPECT_EQ(box.Text(), u"买菜😀"_s);
}

TEST_F(LongTextKeys, AnEmojiOfAKeyIsOneKeyPress) {
    QKeyEvent event(QEvent::KeyPress, 0, {}, u"😀"_s);
    QCoreApplication::sendEvent(&box, &event);
    EXPECT_EQ(seen.size(), 1);
    EXPECT_EQ(box.Text(), u"😀"_s);
}

TEST_F(LongTextKeys, AHandlerThatEmptiesTheBoxLeavesTheKeyAlone) {
    box.setBoxText(u"full"_s);
    box.KeyPress = [this](int) { box.setBoxText({}); };
    QTest::keyClicks(&box, u"x"_s);
    EXPECT_EQ(box.Text(), u"x"_s);
}

TEST_F(LongTextKeys, WhatIsStillComposedGoesWithTheLastCharacterOfACommit) {
    const auto composed = [this] { return box.textCursor().block().layout()->preeditAreaText(); };
    QStringList during;
    box.KeyPress = [&](int) { during << composed(); };
    QInputMethodEvent event(u"mai"_s, {{QInputMethodEvent::Cursor, 1, 1, {}}});
    event.setCommitString(u"买菜"_s);
    QCoreApplication::sendEvent(&box, &event);
    EXPECT_EQ(during, (QStringList{QString(), QString()}));
    EXPECT_EQ(composed(), u"mai"_s);
    EXPECT_EQ(box.Text(), u"买菜"_s);
}

TEST_F(LongTextKeys, APlaceThatACommitSelectsIsSelectedAfterItsLastCharacter) {
    QInputMethodEvent event({}, {{QInputMethodEvent::Selection, 0, 1, {}}});
    event.setCommitString(u"买菜"_s);
    QCoreApplication::sendEvent(&box, &event);
    EXPECT_EQ(box.Text(), u"买菜"_s);
    EXPECT_EQ(box.textCursor().selectedText(), u"买"_s);
}

TEST_F(LongTextKeys, TabLeavesTheBoxAndEntersNothing) {
    auto& next = put<TextBox>(form, u"Text4"_s, {300, 3600, 3000, 375});
    box.setFocus();
    QTest::keyClick(&box, Qt::Key_Tab);
    EXPECT_EQ(box.Text(), QString());
    EXPECT_TRUE(next.hasFocus());
}

TEST_F(LongTextKeys, ALineBrokenWithShiftIsALineToo) {
    QTest::keyClicks(&box, u"a"_s);
    QTest::keyClick(&box, Qt::Key_Return, Qt::ShiftModifier);
    QTest::keyClicks(&box, u"b"_s);
    EXPECT_EQ(box.Text(), u"a\r\nb"_s);
}

TEST_F(LongTextKeys, ACommitThatReplacesWordsReplacesThemOnce) {
    box.setBoxText(u"abc"_s);
    box.moveCursor(QTextCursor::End);
    QInputMethodEvent event;
    event.setCommitString(u"xy"_s, -2, 2);
    QCoreApplication::sendEvent(&box, &event);
    EXPECT_EQ(box.Text(), u"axy"_s);
}

} // namespace
} // namespace qinghe::testing
