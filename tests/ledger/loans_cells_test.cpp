#include "ledger/loans_rig.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QMenu>

// The columns of a loan: amounts that are keyed by moving along with Enter, a balance that is closed to keys, a date.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class LoansCellsTest : public LoansTest {
protected:
    LoansCellsTest() { openWith(3); }

    static void askForMenu(QWidget& widget, QPoint at, QContextMenuEvent::Reason reason = QContextMenuEvent::Mouse) {
        QContextMenuEvent event(reason, at, widget.mapToGlobal(at));
        QApplication::sendEvent(&widget, &event);
    }
    static QMenu* menu() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }
    void pickFromMenu(const QString& text) {
        ASSERT_TRUE(menu());
        const QList<QAction*> entries = menu()->actions();
        ASSERT_EQ(entries.front()->text(), text);
        QTest::mouseClick(menu(), Qt::LeftButton, {}, menu()->actionGeometry(entries.front()).center());
    }
};

TEST_F(LoansCellsTest, OpenTheCalculatorByAClickOnEitherAmount) {
    for (const int col : {3, 4}) {
        clickCell(1, 1);
        clickCell(1, col);
        EXPECT_EQ(tools(), forms::Calculator);
        expectUnderEditor(forms::Calculator);
        EXPECT_EQ(shared().calcTarget, 2);
        EXPECT_FALSE(box().isEnabled());
        calculate(u"7"_s);
        EXPECT_EQ(grid().TextMatrix(1, col), u"7");
    }
}

TEST_F(LoansCellsTest, TakeAmountsFromTheKeyboardAfterEnter) {
    clickCell(1, 2);
    enter();
    EXPECT_EQ(tools(), u"none");
    EXPECT_TRUE(box().isEnabled());
    write(u"200"_s);
    enter();
    EXPECT_EQ(tools(), u"none");
    write(u"五十"_s); // any text is taken
    enter();
    EXPECT_EQ(row(1), u"户1|2024-5-1|200|五十|90|甲|乙|备1");
    EXPECT_EQ(current(), u"1,5");
}

TEST_F(LoansCellsTest, OfferTheBalanceUnselectedSinceOneKeyWouldWipeIt) {
    clickCell(1, 5);
    EXPECT_EQ(box().selectedText(), QString());
    rig.type(box(), u"5"_s);
    EXPECT_EQ(box().Text(), u"905"_s);
}

TEST_F(LoansCellsTest, TakeOneCharacterForTheBalanceAlsoFromAnInputMethod) {
    clickCell(1, 5);
    box().selectAll();
    QInputMethodEvent event;
    event.setCommitString(u"余额"_s);
    QApplication::sendEvent(&box(), &event);
    EXPECT_EQ(box().Text(), u"余");
    EXPECT_FALSE(box().isEnabled());
}

TEST_F(LoansCellsTest, OpenThePickerByEnterAndByClick) {
    clickCell(1, 1);
    enter();
    EXPECT_EQ(tools(), forms::DatePicker);
    EXPECT_EQ(shared().dateTarget, 4);
    expectUnderEditor(forms::DatePicker);
    enter();
    EXPECT_EQ(tools(), u"none");
    clickCell(2, 2);
    rig.doubleClick(rig.at(date_picker::Day[6]));
    EXPECT_EQ(grid().TextMatrix(2, 2), u"2024-6-1");
    EXPECT_EQ(box().Text(), u"2024-6-1");
}

TEST_F(LoansCellsTest, BringTheToolsBackByAClickInTheBox) {
    clickCell(1, 2);
    rig.loaded(forms::DatePicker)->close();
    press(box());
    EXPECT_EQ(tools(), forms::DatePicker);
    clickCell(1, 1);
    for (const int col : {3, 4}) {
        box().setUsable(true);
        grid().setCol(col); // as the arrow keys of the grid do
        press(box());
        EXPECT_EQ(tools(), forms::Calculator);
        EXPECT_FALSE(box().isEnabled());
    }
}

TEST_F(LoansCellsTest, CloseTheBoxWhenEnterReachesTheBalance) {
    clickCell(1, 2);
    enter();
    enter();
    EXPECT_TRUE(box().isEnabled());
    enter();
    EXPECT_EQ(current(), u"1,5");
    EXPECT_EQ(box().Text(), u"90");
    EXPECT_FALSE(box().isEnabled());
    EXPECT_EQ(QApplication::focusWidget(), &grid());
}

TEST_F(LoansCellsTest, TakeOneKeyInTheBalanceAfterAClickWhichTheFormCommits) {
    clickCell(1, 5);
    EXPECT_TRUE(box().isEnabled());
    EXPECT_EQ(tools(), u"none");
    box().selectAll();
    rig.type(box(), u"12"_s);
    EXPECT_FALSE(box().isEnabled());
    EXPECT_EQ(box().Text(), u"1");
    EXPECT_EQ(grid().TextMatrix(1, 5), u"90");
    clickForm();
    EXPECT_EQ(grid().TextMatrix(1, 5), u"1");
}

TEST_F(LoansCellsTest, CloseTheBalanceByAClickInTheBox) {
    clickCell(1, 5);
    press(box());
    EXPECT_FALSE(box().isEnabled());
    clickCell(1, 6);
    EXPECT_TRUE(box().isEnabled());
    press(box());
    EXPECT_TRUE(box().isEnabled());
}

TEST_F(LoansCellsTest, OpenTheBoxAgainByEnterBehindTheBalance) {
    clickCell(1, 5);
    enter();
    EXPECT_EQ(current(), u"1,6");
    EXPECT_TRUE(box().isEnabled());
    EXPECT_EQ(QApplication::focusWidget(), &box());
}

TEST_F(LoansCellsTest, OpenTheBoxWhenTheCalculatorHandsBackAnEqualAmount) {
    clickCell(1, 3);
    calculate(u"100"_s);
    EXPECT_EQ(grid().TextMatrix(1, 3), u"100");
    EXPECT_TRUE(box().isEnabled());
    EXPECT_EQ(rig.mainWindow().focusWidget(), &box());
    enter();
    EXPECT_EQ(current(), u"1,4");
}

TEST_F(LoansCellsTest, WalkOnFromTheCalculatorToTheAmountBehindAndOnToTheBalance) {
    for (const int col : {3, 4}) {
        clickCell(1, col);
        calculateAndWalkOn(u"7"_s);
        EXPECT_EQ(grid().TextMatrix(1, col), u"7");
        EXPECT_EQ(current(), u"1,%1"_s.arg(col + 1));
        EXPECT_EQ(box().isEnabled(), col == 3);
    }
}

TEST_F(LoansCellsTest, OfferTheCalculatorForTheBalanceInAMenuOfTheCellAndOfTheBoxOverIt) {
    const auto balance = [this](int row) { return grid().TextMatrix(row, 5); };
    askForMenu(*grid().viewport(), grid().cellRect(2, 5).center() - grid().viewport()->pos());
    EXPECT_EQ(tools(), u"none"); // only the menu is there
    pickFromMenu(u"用计算器填余额…"_s);
    EXPECT_EQ(tools(), forms::Calculator);
    expectEditorOver(2, 5);
    expectUnderEditor(forms::Calculator);
    EXPECT_EQ(shared().calcTarget, 2);
    EXPECT_FALSE(box().isEnabled());
    calculateAndWalkOn(u"800-795"_s);
    EXPECT_EQ(balance(2), u"5");
    EXPECT_EQ(current(), u"2,6");
    EXPECT_TRUE(box().isEnabled());

    clickCell(1, 5);
    askForMenu(box(), box().rect().center());
    pickFromMenu(u"用计算器填余额…"_s);
    rig.type(*rig.loaded(forms::Calculator), u"12"_s);
    clickCell(1, 1); // hands back as everywhere
    EXPECT_EQ(balance(1), u"12");
}

TEST_F(LoansCellsTest, OfferTheMenuToTheKeyboardWhereEnterHasReachedTheBalance) {
    clickCell(1, 4);
    calculateAndWalkOn(u"20"_s);
    ASSERT_EQ(current(), u"1,5");
    ASSERT_EQ(rig.mainWindow().focusWidget(), &grid());
    askForMenu(grid(), {}, QContextMenuEvent::Keyboard);
    ASSERT_TRUE(menu());
    ASSERT_TRUE(menu()->activeAction());
    rig.press(*menu(), Qt::Key_Return);
    calculateAndWalkOn(u"70"_s);
    EXPECT_EQ(row(1), u"户1|2024-5-1|100|20|70|甲|乙|备1");
}

TEST_F(LoansCellsTest, OfferNoMenuBesideTheBalanceAndNoToolTip) {
    askForMenu(*grid().viewport(), grid().cellRect(1, 4).center() - grid().viewport()->pos());
    EXPECT_FALSE(menu());
    EXPECT_EQ(grid().hints.tipOf(1, 4), u"");
    EXPECT_TRUE(grid().hints.tipOf(1, 5).contains(u"用计算器填余额…"_s));
}

TEST_F(LoansCellsTest, WorkNothingOutBetweenTheAmounts) {
    clickCell(1, 3);
    calculate(u"500"_s);
    enter();
    write(u"20"_s);
    enter();
    EXPECT_EQ(grid().TextMatrix(1, 5), u"90");
}

TEST_F(LoansCellsTest, KeepTheTextOfTheBoxWhenARowIsAdded) {
    clickCell(1, 6);
    write(u"丙"_s);
    press(add());
    EXPECT_EQ(box().Text(), u"丙");
    EXPECT_FALSE(box().Visible());
    EXPECT_EQ(current(), u"4,6");
    EXPECT_EQ(row(4), blankRow());
    EXPECT_EQ(grid().TextMatrix(1, 6), u"甲");
}

} // namespace
} // namespace qinghe::testing
