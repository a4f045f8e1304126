#include "ledger/ledger_lists.h"
#include "support/page_rig.h"

#include <QApplication>
#include <QInputMethodEvent>

// A key in a list does what a click does: each deed is done by the mouse and by keys, and what there is to be seen and
// stored afterwards is the same.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class EveryListKeysTest : public EveryListTest {
protected:
    EveryListKeysTest() { openWith(3); }

    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, const QString& text = {}) {
        QWidget* const holder = rig.mainWindow().focusWidget();
        QTest::sendKeyEvent(QTest::Click, holder ? holder : &rig.mainWindow(), key, text, modifiers);
        rig.settle();
    }
    bool listHasKeyboard() { return rig.mainWindow().focusWidget() == &grid(); }
    void enterKey() { key(Qt::Key_Return, {}, u"\r"_s); }
    void held(Qt::Key code, const QString& text = {}) {
        QKeyEvent event(QEvent::KeyPress, code, {}, text, true);
        QApplication::sendEvent(QApplication::focusWidget(), &event);
        rig.settle();
    }
    void compose(const QString& text) {
        QInputMethodEvent event;
        event.setCommitString(text);
        QApplication::sendEvent(QApplication::focusWidget(), &event);
        rig.settle();
    }
    /// Walks there from the first cell.
    void walkTo(int row, int col) {
        if (box().isVisible())
            tidy();
        grid().setFocus();
        key(Qt::Key_Home, Qt::ControlModifier);
        for (; row > 1; --row)
            key(Qt::Key_Down);
        for (; col > 1; --col)
            key(Qt::Key_Right);
    }
    void tidy() {
        shared().unloadPickers();
        rig.mainWindow().activateWindow();
        rig.settle();
        box().setShown(false);
    }

    /// What there is to be seen of a cell that is open.
    QStringList seen() {
        QStringList all{current(), tools(), box().Text(), box().selectedText()};
        all << (box().isVisible() ? u"box"_s : u"no box"_s) << (box().isEnabled() ? u"enabled"_s : u"disabled"_s)
            << (rig.mainWindow().focusWidget() ? rig.mainWindow().focusWidget()->objectName() : QString());
        return all;
    }
    QStringList outcome() {
        QStringList all = rows() + stored() + QStringList{current()};
        for (const ShownMessage& message : rig.messages->shown)
            all << message.text;
        return all << (listHasKeyboard() ? u"list"_s : u"elsewhere"_s);
    }
    void begin() {
        rig.sql(u"delete from %1"_s.arg(list.table.toString()));
        store(3);
        restart();
    }
    /// The same from the same beginning, once by the mouse and once by keys.
    void expectAlike(const std::function<void()>& byMouse, const std::function<void()>& byKeys) {
        begin();
        byMouse();
        const QStringList expected = outcome();
        begin();
        byKeys();
        EXPECT_EQ(outcome(), expected);
    }
};

INSTANTIATE_TEST_SUITE_P(Lists, EveryListKeysTest, ::testing::ValuesIn(LedgerLists), listName);

TEST_P(EveryListKeysTest, F2AndEnterOpenEveryCellAsTheClickDoes) {
    for (int col = 1; col <= lastColumn(); ++col) {
        clickCell(2, col);
        const QStringList clicked = seen();
        walkTo(2, col);
        key(Qt::Key_F2);
        EXPECT_EQ(seen(), clicked) << col;
        walkTo(2, col);
        enterKey();
        EXPECT_EQ(seen(), clicked) << col;
    }
}

TEST_P(EveryListKeysTest, ACharacterOpensTheCellAndBeginsItsText) {
    walkTo(2, list.text);
    key(Qt::Key_A, {}, u"a"_s);
    key(Qt::Key_B, {}, u"b"_s);
    EXPECT_EQ(box().Text(), u"ab");
    expectEditorOver(2, list.text);
    enterKey();
    EXPECT_EQ(grid().TextMatrix(2, list.text), u"ab");
}

TEST_P(EveryListKeysTest, AComposedTextDoesTheSame) {
    walkTo(2, list.text);
    QInputMethodEvent composing(u"mi"_s, {});
    QApplication::sendEvent(&grid(), &composing);
    EXPECT_FALSE(box().isVisible()) << "nothing has been chosen yet";
    compose(u"大米"_s);
    compose(u"粥"_s);
    EXPECT_EQ(box().Text(), u"大米粥");
}

TEST_P(EveryListKeysTest, AFigureTypedOverAnAmountBeginsInTheCalculator) {
    if (!list.amount)
        return;
    walkTo(1, list.amount);
    for (const QString& digit : {u"3"_s, u"5"_s}) // quicker than the desktop gives the calculator the keyboard
        QTest::sendKeyEvent(QTest::Click, &grid(), static_cast<Qt::Key>(digit.front().unicode()), digit, {});
    EXPECT_EQ(tools(), u"Form9");
    QTest::sendKeyEvent(QTest::Click, &grid(), Qt::Key_Return, u"\r"_s, {});
    rig.settle();
    EXPECT_EQ(grid().TextMatrix(1, list.amount), u"35");
}

TEST_P(EveryListKeysTest, ADateIsTypedOverToo) {
    if (!list.date)
        return;
    walkTo(1, list.date);
    for (const QString& part : {u"2"_s, u"0"_s})
        key(static_cast<Qt::Key>(part.front().unicode()), {}, part);
    EXPECT_EQ(box().Text(), u"20");
    EXPECT_EQ(tools(), u"Form1");
}

TEST_P(EveryListKeysTest, EscClosesTheBoxAndTheArrowsAreTheListsAgain) {
    for (int col = 1; col <= lastColumn(); ++col) {
        const QStringList before = rows();
        walkTo(1, col);
        key(Qt::Key_F2);
        for (int i = 0; i < 2; ++i) // over an amount the first is the calculator's
            key(Qt::Key_Escape, {}, u"\x1b"_s);
        EXPECT_FALSE(box().isVisible()) << col;
        EXPECT_TRUE(listHasKeyboard()) << col;
        EXPECT_EQ(rows(), before);
        key(Qt::Key_Down);
        EXPECT_EQ(grid().Row(), 2) << col;
        shared().unloadPickers();
    }
}

TEST_P(EveryListKeysTest, DeleteInsertAndSavePressTheButtons) {
    const auto fill = [this] {
        for (int col = 1; col < lastColumn(); ++col)
            grid().setTextMatrix(grid().Rows() - 1, col, list.date == col ? u"2024-6-1"_s : u"7"_s);
    };
    for (const QKeyCombination& adds : {QKeyCombination(Qt::Key_Insert), Qt::CTRL | Qt::Key_N})
        expectAlike(
            [&] {
                clickCell(2, list.text);
                write(u"改"_s);
                enter();
                tidy();
                press(remove());
                press(add());
                press(add()); // there is a blank row
                fill();
                press(save());
                grid().setFocus();
            },
            [&] {
                walkTo(2, list.text);
                compose(u"改"_s);
                enterKey();
                tidy();
                grid().setFocus();
                key(Qt::Key_Delete);
                key(adds.key(), adds.keyboardModifiers());
                key(adds.key(), adds.keyboardModifiers());
                fill();
                key(Qt::Key_S, Qt::ControlModifier);
            });
    EXPECT_EQ(rig.messages->shown.size(), 3U);
}

TEST_P(EveryListKeysTest, AddingGivesTheListTheKeyboardFromEverywhere) {
    rig.mainWindow().setFocus();
    key(Qt::Key_Insert);
    EXPECT_TRUE(listHasKeyboard());
    EXPECT_EQ(grid().Row(), 4);
}

TEST_P(EveryListKeysTest, AKeyThatIsHeldDoesNothingTwice) {
    walkTo(1, list.text);
    for (const Qt::Key pressed : {Qt::Key_F2, Qt::Key_Return, Qt::Key_Space, Qt::Key_A})
        held(pressed, u"a"_s);
    EXPECT_FALSE(box().isVisible());
    const QStringList before = rows();
    for (const Qt::Key pressed : {Qt::Key_Delete, Qt::Key_Insert}) {
        QTest::simulateEvent(&grid(), true, pressed, {}, {}, true);
        rig.settle();
    }
    EXPECT_EQ(rows(), before);
    EXPECT_TRUE(rig.messages->shown.empty());
}

TEST_P(EveryListKeysTest, NoKeyReachesThePageWhenItIsOutOfView) {
    press(rig.at(pages::Desktop));
    const QStringList before = rows() + stored();
    for (const Qt::Key pressed : {Qt::Key_Delete, Qt::Key_Insert, Qt::Key_F2})
        key(pressed);
    key(Qt::Key_S, Qt::ControlModifier);
    key(Qt::Key_N, Qt::ControlModifier);
    for (const Qt::Key pressed : {Qt::Key_Delete, Qt::Key_F2, Qt::Key_A})
        QTest::keyClick(&grid(), pressed); // even one that reaches it
    EXPECT_EQ(rows() + stored(), before);
    EXPECT_FALSE(box().Visible());
    EXPECT_TRUE(rig.messages->shown.empty());
}

} // namespace
} // namespace qinghe::testing
