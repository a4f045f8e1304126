#include "window_fixture.h"

#include <QInputMethodEvent>

namespace qinghe::testing {
namespace {

class TextBoxes : public WindowTest {
protected:
    TextBoxes() {
        box.KeyPress = [this](int code) { keys << code; };
        box.Change = [this] { changes << box.Text(); };
        box.takeFocus();
    }
    void commit(const QString& text) {
        QInputMethodEvent event;
        event.setCommitString(text);
        QCoreApplication::sendEvent(&box, &event);
    }
    void compose(const QString& text) {
        QInputMethodEvent event(text, {});
        QCoreApplication::sendEvent(&box, &event);
    }
    QList<int> takeKeys() { return std::exchange(keys, {}); }
    QStringList takeChanges() { return std::exchange(changes, {}); }

    TextBox& box = put<TextBox>(form, u"tx2"_s, {300, 300, 3000, 375});
    QList<int> keys;
    QStringList changes;
};

TEST_F(TextBoxes, ACharacterIsAKeyPressWithItsCode) {
    QTest::keyClicks(&box, u"a5."_s);
    EXPECT_EQ(takeKeys(), (QList<int>{'a', '5', '.'}));
    EXPECT_EQ(box.Text(), u"a5."_s);
}

TEST_F(TextBoxes, ACommitEndsAtTheCharacterWhoseChangeClosesTheBox) {
    box.Change = [this] { box.setUsable(false); };
    commit(u"余额"_s);
    EXPECT_EQ(box.Text(), u"余"_s);
    EXPECT_EQ(takeKeys(), QList<int>{u'余'});
}

TEST_F(TextBoxes, ACommitEndsBeforeTheCharacterWhoseKeyPressClosesTheBox) {
    box.KeyPress = [this](int code) { box.setUsable(code != u'额'); };
    commit(u"余额表"_s);
    EXPECT_EQ(box.Text(), u"余"_s);
}

TEST_F(TextBoxes, EnterBackspaceAndEscHaveTheirCodes) {
    box.setBoxText(u"12"_s);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Backspace, Qt::Key_Escape})
        QTest::keyClick(&box, key);
    EXPECT_EQ(takeKeys(), (QList<int>{13, 13, 8, 27}));
    EXPECT_EQ(box.Text(), u"1"_s);
}

TEST_F(TextBoxes, ArrowsDeleteAndKeysWithCtrlAreNoKeyPressesAndStillWork) {
    box.setBoxText(u"12"_s);
    for (const Qt::Key key : {Qt::Key_Home, Qt::Key_Right, Qt::Key_Left, Qt::Key_Up, Qt::Key_Down, Qt::Key_Delete})
        QTest::keyClick(&box, key);
    EXPECT_EQ(box.Text(), u"2"_s);
    QTest::keyClick(&box, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(box.selectedText(), u"2"_s);
    for (const Qt::KeyboardModifier command : {Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier})
        QTest::keyClick(&box, Qt::Key_B, command);
    QTest::keyClick(&box, Qt::Key_Shift);
    EXPECT_EQ(takeKeys(), QList<int>{});
}

TEST_F(TextBoxes, TheKeyPressComesBeforeTheBoxActsOnTheKey) {
    box.setBoxText(u"1"_s);
    box.KeyPress = [this](int) { note(box.Text()); };
    QTest::keyClicks(&box, u"2"_s);
    QTest::keyClick(&box, Qt::Key_Backspace);
    EXPECT_EQ(noted(), (QStringList{u"1"_s, u"12"_s}));
}

TEST_F(TextBoxes, ABoxThatItsHandlerDisablesDoesNotTakeTheKey) {
    box.KeyPress = [this](int) { box.setUsable(false); };
    QTest::keyClicks(&box, u"7"_s);
    EXPECT_EQ(box.Text(), QString());
}

TEST_F(TextBoxes, ACommittedTextIsOneKeyPressACharacter) {
    commit(u"买菜"_s);
    EXPECT_EQ(takeKeys(), (QList<int>{u'买', u'菜'}));
    commit(u"ab"_s);
    EXPECT_EQ(takeKeys(), (QList<int>{'a', 'b'}));
    EXPECT_EQ(box.Text(), u"买菜ab"_s);
}

TEST_F(TextBoxes, AnEmojiOfTwoUnitsIsOneKeyPress) {
    commit(u"😀好"_s);
    EXPECT_EQ(takeKeys().size(), 2);
    EXPECT_EQ(box.Text(), u"😀好"_s);
    QKeyEvent event(QEvent::KeyPress, 0, {}, u"😀"_s);
    QCoreApplication::sendEvent(&box, &event);
    EXPECT_EQ(takeKeys().size(), 1);
    EXPECT_EQ(box.Text(), u"😀好😀"_s);
}

TEST_F(TextBoxes, TextThatIsStillComposedIsNoKeyPressAndNoChange) {
    compose(u"mai"_s);
    EXPECT_EQ(takeKeys(), QList<int>{});
    EXPECT_EQ(takeChanges(), QStringList{});
    commit(u"买"_s);
    EXPECT_EQ(takeKeys(), QList<int>{u'买'});
    EXPECT_EQ(takeChanges(), QStringList{u"买"_s});
}

TEST_F(TextBoxes, TypingAndAssigningRaiseTheChange) {
    QTest::keyClicks(&box, u"1"_s);
    EXPECT_EQ(takeChanges(), QStringList{u"1"_s});
    box.setBoxText(u"2"_s);
    EXPECT_EQ(takeChanges(), QStringList{u"2"_s});
    QTest::keyClick(&box, Qt::Key_Backspace);
    EXPECT_EQ(takeChanges(), QStringList{QString()});
}

TEST_F(TextBoxes, AssigningAnEqualTextRaisesTheChangeToo) {
    box.setBoxText(u"88"_s);
    box.setBoxText(u"88"_s);
    EXPECT_EQ(takeChanges(), (QStringList{u"88"_s, u"88"_s}));
    box.setBoxText({});
    box.setBoxText({});
    EXPECT_EQ(takeChanges(), (QStringList{QString(), QString()}));
}

TEST_F(TextBoxes, AnErrorInAChangeRaisedByCodeTravelsToTheCaller) {
    box.Change = [] { throw RuntimeError(RuntimeError::TypeMismatch, u"类型不匹配"_s); };
    EXPECT_EQ(errorOf([this] { box.setBoxText(u"1"_s); }), RuntimeError::TypeMismatch);
}

TEST_F(TextBoxes, EnterAndEscDoNotReachTheForm) {
    struct Listener : QObject {
        bool eventFilter(QObject*, QEvent* event) override {
            seen += event->type() == QEvent::KeyPress;
            return false;
        }
        int seen = 0;
    } listener;
    form.installEventFilter(&listener);
    QTest::keyClick(&box, Qt::Key_Return);
    QTest::keyClick(&box, Qt::Key_Escape);
    EXPECT_EQ(listener.seen, 0);
}

TEST_F(TextBoxes, TakesTheKeyboardOnlyWhenItCanBeUsed) {
    auto& button = put<CommandButton>(form, u"Command6"_s, {300, 1500, 1500, 300}, u"保存"_s);
    button.setFocus();
    box.setUsable(false);
    box.takeFocus();
    EXPECT_TRUE(button.hasFocus());
    box.setUsable(true);
    box.setShown(false);
    box.takeFocus();
    EXPECT_TRUE(button.hasFocus());
    box.setShown(true);
    box.takeFocus();
    EXPECT_TRUE(box.hasFocus());
}

TEST_F(TextBoxes, ABoxThatGoesGivesTheKeyboardToItsRefugeAndNotToTheNextButton) {
    auto& refuge = put<TextBox>(form, u"tx9"_s, {300, 3000, 1500, 300});
    put<CommandButton>(form, u"Command6"_s, {300, 1500, 1500, 300}, u"保存"_s);
    box.setFocusRefuge(&refuge);
    box.takeFocus();
    box.setUsable(false);
    EXPECT_TRUE(refuge.hasFocus());
    box.setUsable(true);
    box.takeFocus();
    box.setShown(false);
    EXPECT_TRUE(refuge.hasFocus());
}

TEST_F(TextBoxes, TheTextIsReachedFromOutsideByName) {
    EXPECT_TRUE(form.findChild<QLineEdit*>(u"tx2"_s)->setProperty("text", u"外面"_s));
    EXPECT_EQ(box.Text(), u"外面"_s);
    EXPECT_EQ(takeChanges(), QStringList{u"外面"_s});
}

} // namespace
} // namespace qinghe::testing
