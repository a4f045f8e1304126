#include "schedule_rig.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodEvent>

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

const ShownMessage TooLong{u"日程提醒内容不能超过50字,请重新设置内容。"_s, 64, u"系统提示"_s};

class ScheduleTyping : public ScheduleTest {
protected:
    void backspace() { rig.press(text(), Qt::Key_Backspace); }
    void commit(const QString& words) {
        QInputMethodEvent event;
        event.setCommitString(words);
        QCoreApplication::sendEvent(&text(), &event);
    }
    void putCursorAtEnd() { text().moveCursor(QTextCursor::End); }
    void expectWiped(const QString& left) {
        EXPECT_EQ(rig.messages->shown, std::vector<ShownMessage>{TooLong});
        EXPECT_EQ(text().Text(), left);
        EXPECT_EQ(counter(), u"1当前字数"_s);
    }
};

TEST_F(ScheduleTyping, TheCounterTellsTheCharactersAsTheKeyWillLeaveThem) {
    rig.type(text(), u"给爷爷打电话"_s);
    EXPECT_EQ(counter(), u"6当前字数"_s);
    rig.press(text(), Qt::Key_Return);
    EXPECT_EQ(counter(), u"7当前字数"_s);
    EXPECT_EQ(text().Text(), u"给爷爷打电话\r\n"_s);
    rig.type(text(), u"x"_s);
    EXPECT_EQ(counter(), u"8当前字数"_s); // the line break is one character
}

TEST_F(ScheduleTyping, WhatTheLimitTookComesBackWithCtrlZ) {
    const QString plan = QString(49, u'词');
    commit(plan);
    commit(u"多"_s);
    expectWiped(u"多"_s);
    QTest::keyClick(&text(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(text().Text(), plan);
}

TEST_F(ScheduleTyping, EmptyPaperSaysWhatComesFirst) {
    EXPECT_TRUE(text().placeholderText().startsWith(u"先在这里写日程"_s));
}

TEST_F(ScheduleTyping, TheFiftiethCharacterBringsTheMessageAndIsAllThatIsLeft) {
    rig.type(text(), u"字"_s.repeated(49));
    EXPECT_EQ(counter(), u"49当前字数"_s);
    EXPECT_TRUE(rig.messages->shown.empty());
    rig.type(text(), u"末"_s);
    expectWiped(u"末"_s);
}

TEST_F(ScheduleTyping, WhileTheMessageStandsTheTextIsStillThere) {
    text().setBoxText(u"字"_s.repeated(49));
    QStringList during;
    rig.messages->whileShown = [&](const ShownMessage&) { during << text().Text() << counter(); };
    rig.type(text(), u"末"_s);
    EXPECT_EQ(during, (QStringList{u"字"_s.repeated(49), u"50当前字数"_s}));
}

TEST_F(ScheduleTyping, ALineBreakIsAFiftiethCharacterToo) {
    text().setBoxText(u"字"_s.repeated(49));
    rig.press(text(), Qt::Key_Return);
    expectWiped(u"\r\n"_s);
}

TEST_F(ScheduleTyping, CharactersOfAnInputMethodAreCountedOneByOne) {
    commit(u"买菜😀"_s);
    EXPECT_EQ(counter(), u"3当前字数"_s);
    text().setBoxText(u"字"_s.repeated(48));
    putCursorAtEnd();
    commit(u"甲乙丙"_s); // the second of them is the fiftieth
    EXPECT_EQ(rig.messages->shown, std::vector<ShownMessage>{TooLong});
    EXPECT_EQ(text().Text(), u"乙丙"_s);
    EXPECT_EQ(counter(), u"2当前字数"_s);
}

TEST_F(ScheduleTyping, AnEmojiIsAFiftiethCharacterTooHoweverItIsTyped) {
    text().setBoxText(u"😀"_s.repeated(49));
    putCursorAtEnd();
    commit(u"👍"_s);
    expectWiped(u"👍"_s);
    rig.messages->shown.clear();
    text().setBoxText(u"😀"_s.repeated(49));
    putCursorAtEnd();
    QKeyEvent key(QEvent::KeyPress, 0, {}, u"👍"_s);
    QCoreApplication::sendEvent(&text(), &key);
    expectWiped(u"👍"_s);
}

TEST_F(ScheduleTyping, WordsThatAreStillComposedAreNotCounted) {
    QInputMethodEvent event(u"mai"_s, {});
    QCoreApplication::sendEvent(&text(), &event);
    EXPECT_EQ(counter(), u"1日程安排"_s);
}

TEST_F(ScheduleTyping, BackspaceInAnEmptyBoxCountsBelowZero) {
    backspace();
    EXPECT_EQ(counter(), u"-1当前字数"_s);
}

TEST_F(ScheduleTyping, BackspaceCountsTheTextWithoutItsOuterBlanks) {
    text().setBoxText(u"  两个  "_s);
    putCursorAtEnd();
    backspace();
    EXPECT_EQ(counter(), u"1当前字数"_s);
    EXPECT_EQ(text().Text(), u"  两个 "_s);
    text().setBoxText(u"两个\r\n"_s); // a line break is no blank
    putCursorAtEnd();
    backspace();
    EXPECT_EQ(counter(), u"2当前字数"_s);
}

TEST_F(ScheduleTyping, BackspaceAtFortyNineCharactersBringsNoMessage) {
    text().setBoxText(u"字"_s.repeated(49));
    putCursorAtEnd();
    backspace();
    EXPECT_TRUE(rig.messages->shown.empty());
    EXPECT_EQ(counter(), u"48当前字数"_s);
    EXPECT_EQ(text().Text().size(), 48);
}

TEST_F(ScheduleTyping, KeysThatEnterNothingAreNotCounted) {
    rig.type(text(), u"ab"_s);
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Home, Qt::Key_Delete, Qt::Key_Escape, Qt::Key_Shift})
        rig.press(text(), key);
    EXPECT_EQ(counter(), u"2当前字数"_s);
    EXPECT_EQ(text().Text(), u"b"_s);
}

TEST_F(ScheduleTyping, PastedTextIsNeitherCountedNorLimited) {
    QGuiApplication::clipboard()->setText(u"长"_s.repeated(100000));
    QTest::keyClick(&text(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(text().Text().size(), 100000);
    EXPECT_EQ(counter(), u"1日程安排"_s);
    EXPECT_TRUE(rig.messages->shown.empty());
    rig.type(text(), u"x"_s); // only the length of exactly 49 is looked for
    EXPECT_EQ(counter(), u"100001当前字数"_s);
    EXPECT_TRUE(rig.messages->shown.empty());
    write(text().Text(), u"2024-6-18"_s);
    rig.click(save());
    EXPECT_EQ(plans(u"length(日程内容)"_s), QStringList{u"100001"_s});
}

} // namespace
} // namespace qinghe::testing
