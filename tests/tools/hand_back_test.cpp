#include "tools/tool_rig.h"

#include <QApplication>

// How the calculator's number reaches the cell: by every way out of it but a refusal.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

constexpr QPoint BareTitle(30, 3); ///< of the main window, beside all controls

class HandBackTest : public ToolTest {
protected:
    HandBackTest() { openCalculator(); }

    void type(const QString& text) { rig.type(*rig.loaded(forms::Calculator), text); }
    void press(Qt::Key key) { rig.press(*rig.loaded(forms::Calculator), key); }
    void clickKey(const Name<CommandButton>& key) { rig.click(rig.at(key)); }
    /// The button in the title bar.
    void closeWindow() { rig.loaded(forms::Calculator)->close(); }

    void pressEnter() { press(Qt::Key_Return); }
    QString amount() { return ms2().TextMatrix(1, 5); }

    /// The calculator is gone, and box and cell hold the text.
    void expectHandedBack(const QString& text) {
        EXPECT_FALSE(rig.loaded(forms::Calculator));
        EXPECT_EQ(tx2().Text(), text);
        EXPECT_EQ(amount(), text);
    }
    void expectNothingHandedBack() { expectHandedBack(u"12.5"_s); }
    /// The calculator is gone, the cell holds the text, and the box lies over the next cell, ready to be typed into.
    void expectWalkedOn(const QString& text) {
        EXPECT_FALSE(rig.loaded(forms::Calculator));
        EXPECT_EQ(amount(), text);
        EXPECT_EQ(ms2().Col(), 6);
        EXPECT_EQ(tx2().Text(), u"现金");
        EXPECT_TRUE(tx2().isEnabled());
        EXPECT_EQ(rig.mainWindow().focusWidget(), &tx2());
    }
};

TEST_F(HandBackTest, GivesTheNumberByTheWindowsCloseButton) {
    clickKey(calculator::Digit[8]);
    clickKey(calculator::Digit[0]);
    closeWindow();
    expectHandedBack(u"80"_s);
    EXPECT_FALSE(tx2().isEnabled()); // the amount column stays closed to keys
}

TEST_F(HandBackTest, GivesTheNumberByEitherEnterAndByItsButtonWhichWalkOn) {
    const std::function<void()> ways[]{[this] { pressEnter(); }, [this] { press(Qt::Key_Enter); },
                                       [this] { clickKey(calculator::Fill); }};
    for (const auto& way : ways) {
        openCalculator();
        type(u"80.5"_s);
        way();
        expectWalkedOn(u"80.5"_s);
    }
}

TEST_F(HandBackTest, WalksOnFromAGlanceByEnterAndLeavesTheAmount) {
    pressEnter();
    expectWalkedOn(u"12.5"_s);
}

TEST_F(HandBackTest, ComputesWhatIsPendingBeforeEnterGivesIt) {
    type(u"80+20"_s);
    pressEnter();
    expectWalkedOn(u"100"_s);
}

TEST_F(HandBackTest, ComputesNothingASecondTimeOnEnter) {
    type(u"2"_s);
    clickKey(calculator::Operation[4]);
    type(u"3"_s);
    clickKey(calculator::Equals);
    pressEnter();
    expectWalkedOn(u"8"_s); // a further "=" would give 512
}

TEST_F(HandBackTest, ComputesWhatIsPendingAlsoBeforeTheCloseButtonGivesIt) {
    type(u"80+20"_s);
    closeWindow();
    expectHandedBack(u"100"_s);
}

TEST_F(HandBackTest, GivesTheResultWhereItsDisplayIsNoNumber) {
    type(u"2-5"_s);
    clickKey(calculator::Equals);
    EXPECT_EQ(rig.at(calculator::Display).Text(), u"0-3");
    closeWindow();
    expectHandedBack(u"-3"_s);
    openCalculator();
    type(u".5*1"_s);
    pressEnter();
    expectWalkedOn(u" .5"_s);
    rig.click(rig.at(income::Save));
    EXPECT_EQ(rig.sql(u"select 金额 from srb"_s), QStringList{u"0.5"_s});
}

TEST_F(HandBackTest, GivesNothingThatIsNoNumber) {
    for (const QString& keys : {u"12+"_s, u"1.2.3"_s}) {
        type(keys);
        closeWindow();
        expectNothingHandedBack();
        openCalculator();
        type(keys);
        press(Qt::Key_Return);
        expectNothingHandedBack();
        openCalculator();
    }
}

TEST_F(HandBackTest, GivesNothingIntoAReport) {
    type(u"80"_s);
    rig.click(rig.at(income::ByPerson)); // leaves the calculator open
    const QString report = rig.rowText(ms2(), 1);
    ms2().setRow(1);
    closeWindow();
    EXPECT_FALSE(rig.loaded(forms::Calculator));
    EXPECT_EQ(rig.rowText(ms2(), 1), report);
    EXPECT_EQ(tx2().Text(), u"");
    rig.settle();
    EXPECT_FALSE(ms2().hasFocus());
}

TEST_F(HandBackTest, GivesNothingWhereTheRowHasGone) {
    press(Qt::Key_Escape);
    ms2().setRows(3);
    rig.clickCell(ms2(), 2, 5);
    type(u"80"_s);
    ms2().setRows(2);
    closeWindow();
    EXPECT_FALSE(rig.loaded(forms::Calculator));
    EXPECT_EQ(tx2().Text(), u"");
    EXPECT_EQ(ms2().TextMatrix(1, 5), u"12.5");
}

TEST_F(HandBackTest, GivesNothingWhereTheColumnHasGone) {
    type(u"80"_s);
    ms2().setCols(5);
    closeWindow();
    EXPECT_FALSE(rig.loaded(forms::Calculator));
    EXPECT_EQ(tx2().Text(), u"12.5");
    EXPECT_FALSE(rig.rowText(ms2(), 1).contains(u"80"_s));
}

TEST_F(HandBackTest, GivesNothingIntoAGridOutOfView) {
    type(u"80"_s);
    rig.at(income::Page).setShown(false);
    closeWindow();
    expectNothingHandedBack();
}

TEST_F(HandBackTest, FillsTheCellThatItWasOpenedForWhereverTheGridStandsNow) {
    ms2().setRows(3);
    type(u"80"_s);
    ms2().setRow(2);
    ms2().setCol(7);
    closeWindow();
    EXPECT_EQ(ms2().TextMatrix(1, 5), u"80");
    EXPECT_EQ(ms2().TextMatrix(2, 7), u"");
}

TEST_F(HandBackTest, GivesAProductWithItsBlankWhichTheSaveTakes) {
    type(u"4*25"_s);
    pressEnter();
    expectWalkedOn(u" 100"_s);
    rig.click(rig.at(income::Save));
    EXPECT_EQ(rig.sql(u"select 金额 from srb"_s), QStringList{u"100"_s});
}

TEST_F(HandBackTest, GivesZeroAfterClear) {
    type(u"5"_s);
    clickKey(calculator::Clear);
    closeWindow();
    expectHandedBack(u"0"_s);
}

TEST_F(HandBackTest, GivesNothingFromAnUntouchedCalculator) {
    closeWindow();
    expectNothingHandedBack();
    openCalculator();
    rig.click(rig.at(income::Page));
    expectNothingHandedBack();
}

TEST_F(HandBackTest, GivesNothingAfterKeysThatAreNone) {
    press(Qt::Key_Backspace);
    type(u"a"_s);
    closeWindow();
    expectNothingHandedBack();
}

TEST_F(HandBackTest, GivesTheNumberWhateverElseIsClicked) {
    const std::function<void()> elsewhere[]{
        [this] { rig.clickCell(ms2(), 1, 3); },
        [this] { rig.clickCell(ms2(), 1, 2); },
        [this] { rig.click(rig.at(income::Page)); },
        [this] { QTest::mouseClick(&rig.mainWindow(), Qt::LeftButton, {}, BareTitle); },
        [this] { rig.click(rig.at(income::Add)); },
        [this] { rig.click(rig.at(title::Minimise)); },
    };
    for (int number = 80; const auto& click : elsewhere) {
        openCalculator();
        type(QString::number(++number));
        click();
        EXPECT_FALSE(rig.loaded(forms::Calculator));
        EXPECT_EQ(amount(), QString::number(number));
    }
}

TEST_F(HandBackTest, GivesTheNumberToTheSaveBeforeItLooksForGaps) {
    ms2().setTextMatrix(1, 5, {});
    type(u"80"_s);
    rig.click(rig.at(income::Save));
    EXPECT_EQ(rig.lastMessage().text, u"保存成功");
    EXPECT_EQ(rig.sql(u"select 金额 from srb"_s), QStringList{u"80"_s});
}

TEST_F(HandBackTest, GivesTheNumberToTheAmountThatIsLeftForAnotherOneAndHasDoneWithIt) {
    ms2().setRows(3);
    type(u"60+20"_s);
    rig.clickCell(ms2(), 2, 5);
    EXPECT_EQ(amount(), u"80");
    EXPECT_EQ(tx2().Text(), u"");
    EXPECT_EQ(rig.at(calculator::Display).Text(), u"80"); // moved with what it holds
    rig.clickCell(ms2(), 1, 5);                           // that was a glance at the second amount
    EXPECT_EQ(ms2().TextMatrix(2, 5), u"");
    rig.clickCell(ms2(), 2, 5);
    type(u"5"_s);
    EXPECT_EQ(rig.at(calculator::Display).Text(), u"5");
    pressEnter();
    EXPECT_EQ(ms2().TextMatrix(2, 5), u"5");
    EXPECT_EQ(amount(), u"80");
}

TEST_F(HandBackTest, TakesAReckoningWithoutANumberAlongToAnotherAmount) {
    ms2().setRows(3);
    type(u"7/0"_s);
    rig.clickCell(ms2(), 2, 5);
    EXPECT_EQ(amount(), u"12.5");
    EXPECT_EQ(rig.at(calculator::Display).Text(), u"7/0");
    EXPECT_FALSE(rig.ended());
}

TEST_F(HandBackTest, GivesNothingByARefusal) {
    const std::function<void()> refusals[]{
        [this] { press(Qt::Key_Escape); },
        [this] {
            rig.messages->answers = {Answer::Cancel};
            rig.click(rig.at(income::Remove));
        },
        [this] { rig.click(rig.at(pages::Desktop)); }, // the last one: the page is out of view now
    };
    for (const auto& refuse : refusals) {
        openCalculator();
        type(u"80"_s);
        refuse();
        EXPECT_FALSE(rig.loaded(forms::Calculator));
        EXPECT_EQ(amount(), u"12.5");
    }
}

TEST_F(HandBackTest, GivesNothingIntoAListThatHasBeenFilledAnew) {
    rig.sql(u"insert into jrb values('现金','2024-05-03',100,20,80,'甲','乙','',1)"_s);
    rig.click(rig.at(loans::Picture));
    auto& loanList = rig.at(loans::Grid);
    rig.clickCell(loanList, 1, 3);
    type(u"7"_s);
    rig.click(rig.at(loans::Picture)); // leaves the calculator open
    closeWindow();
    EXPECT_EQ(loanList.TextMatrix(1, 3), u"100");
}

TEST_F(HandBackTest, GivesNothingWhenTheLastComputationFails) {
    type(u"7/0"_s);
    press(Qt::Key_Return);
    ASSERT_EQ(rig.messages->errors.size(), 1u);
    EXPECT_EQ(rig.messages->errors.front().first, 11);
    EXPECT_EQ(ms2().TextMatrix(1, 5), u"12.5");
    EXPECT_EQ(rig.exitCode(), 1);
}

TEST_F(HandBackTest, LeavesTheKeyboardWithTheGridWhileTheBoxIsClosed) {
    type(u"80"_s);
    closeWindow();
    rig.settle();
    EXPECT_EQ(rig.mainWindow().focusWidget(), &ms2());
}

TEST_F(HandBackTest, GivesTheKeyboardToABoxThatItsChangeOpens) {
    // The loan page's way: every change of the box, also to an equal text, opens or closes it by its column.
    tx2().Change = [this] { tx2().setUsable(true); };
    type(u"12.5"_s);
    closeWindow();
    rig.settle();
    EXPECT_TRUE(tx2().isEnabled());
    EXPECT_EQ(rig.mainWindow().focusWidget(), &tx2());
}

TEST_F(HandBackTest, GoesToTheFieldThatAskedLast) {
    TextBox box(&rig.mainWindow(), u"other"_s);
    MSFlexGrid grid(&rig.mainWindow(), u"list"_s);
    grid.show();
    handlers::enter([&] { shared().openCalculator(AmountField::Budget, FieldTarget(&box, &grid), {0, 0}); });
    EXPECT_EQ(shared().calcTarget, 4);
    type(u"80"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(box.Text(), u"80");
    EXPECT_EQ(grid.TextMatrix(1, 1), u"80");
    EXPECT_EQ(ms2().TextMatrix(1, 5), u"12.5");
}

TEST_F(HandBackTest, FillsTheCellAmongManyThatIsCurrent) {
    press(Qt::Key_Escape);
    rig.click(rig.at(income::Add));
    rig.clickCell(ms2(), 2, 5);
    type(u"7"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(ms2().TextMatrix(1, 5), u"12.5");
    EXPECT_EQ(ms2().TextMatrix(2, 5), u"7");
}

} // namespace
} // namespace qinghe::testing
