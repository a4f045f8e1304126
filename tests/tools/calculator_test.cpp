#include "tools/tool_rig.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWindow>

// The calculator's window: its keys by the pointer and by the keyboard, its messages, its colours.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

struct Key {
    Name<CommandButton> name;
    QStringView caption;
    double left, top; ///< twips
};

constexpr Key Keys[]{
    {calculator::Digit[1], u"1", 240, 840},        {calculator::Digit[2], u"2", 960, 840},
    {calculator::Digit[3], u"3", 1680, 840},       {calculator::Digit[4], u"4", 240, 1440},
    {calculator::Digit[5], u"5", 960, 1440},       {calculator::Digit[6], u"6", 1680, 1440},
    {calculator::Digit[7], u"7", 240, 2040},       {calculator::Digit[8], u"8", 960, 2040},
    {calculator::Digit[9], u"9", 1680, 2040},      {calculator::Digit[0], u"0", 240, 2640},
    {calculator::Digit[10], u".", 960, 2640},      {calculator::Equals, u"=", 1680, 2640},
    {calculator::Operation[0], u"+", 2400, 840},   {calculator::Operation[1], u"-", 2400, 1440},
    {calculator::Operation[2], u"*", 2400, 2040},  {calculator::Operation[3], u"/", 2400, 2640},
    {calculator::Operation[4], u"x^y", 3000, 840}, {calculator::Operation[5], u"sqrt", 3000, 1560},
    {calculator::Clear, u"清零", 3000, 2640},
};

class CalculatorTest : public ToolTest {
protected:
    CalculatorTest() { openCalculator(); }

    Form& calculator() { return *rig.loaded(forms::Calculator); }
    CommandButton& key(const Name<CommandButton>& name) { return rig.at(name); }
    QString display() { return rig.at(calculator::Display).Text(); }
    /// Clicks keys given by their captions, blanks between.
    void clickKeys(const QString& captions) {
        for (const QString& caption : captions.split(' '_L1))
            for (const Key& entry : Keys)
                if (caption == QStringView(entry.caption))
                    rig.click(key(entry.name));
    }
    void expectDisplay(const QString& captions, const QString& shown) {
        rig.click(key(calculator::Clear));
        clickKeys(captions);
        EXPECT_EQ(display(), shown) << captions.toStdString();
    }
    void expectError(int number) {
        ASSERT_EQ(rig.messages->errors.size(), 1u);
        EXPECT_EQ(rig.messages->errors.front().first, number);
        EXPECT_EQ(rig.exitCode(), 1);
    }
};

TEST_F(CalculatorTest, HasItsKeysInTheirPlaces) {
    EXPECT_EQ(calculator().Caption(), u"数值输入-计算器");
    for (const Key& entry : Keys) {
        EXPECT_EQ(key(entry.name).text(), QStringView(entry.caption));
        EXPECT_EQ(key(entry.name).Left(), entry.left);
        EXPECT_EQ(key(entry.name).Top(), entry.top);
    }
    const TextBox& shown = rig.at(calculator::Display);
    EXPECT_EQ(shown.Left(), 240);
    EXPECT_EQ(shown.Top(), 240);
    EXPECT_EQ(shown.Width(), 3255);
    EXPECT_TRUE(shown.isReadOnly());
}

TEST_F(CalculatorTest, HasOneMainButtonBelowTheKeysThatSaysWhatItDoes) {
    CommandButton& fill = key(calculator::Fill);
    EXPECT_EQ(fill.text(), u"填入（回车）");
    EXPECT_EQ(fill.role(), Role::Primary);
    EXPECT_TRUE(calculator().rect().contains(fill.geometry()));
    for (const Key& entry : Keys) {
        EXPECT_NE(key(entry.name).role(), Role::Primary);
        EXPECT_LT(key(entry.name).geometry().bottom(), fill.geometry().top());
    }
}

TEST_F(CalculatorTest, StartsWithZero) {
    EXPECT_EQ(display(), u"0");
}

TEST_F(CalculatorTest, ComputesByClicks) {
    expectDisplay(u"1 + 2"_s, u"1+2"_s);
    expectDisplay(u"1 + 2 +"_s, u"3+"_s);
    expectDisplay(u"1 + 2 ="_s, u"3"_s);
    expectDisplay(u"1 2 . 5 * 4 ="_s, u" 50"_s);
    expectDisplay(u"9 sqrt -"_s, u"3+"_s); // with the minus pending
    expectDisplay(u"9 sqrt - 1 ="_s, u"2"_s);
    expectDisplay(u"2 x^y 3 ="_s, u"8"_s);
    expectDisplay(u"2 x^y 3 = ="_s, u"512"_s);
    expectDisplay(u"1 / 2 ="_s, u"0.5"_s);
    expectDisplay(u"1 . 2 . 3"_s, u"1.2.3"_s);
}

TEST_F(CalculatorTest, ChainsInSinglePrecisionAndAnswersInDouble) {
    expectDisplay(u"1 / 3 +"_s, u".3333333+"_s);
    expectDisplay(u"1 / 3 ="_s, u"0.333333333333333"_s);
}

TEST_F(CalculatorTest, PutsAZeroBeforeZeroAtEachEquals) {
    clickKeys(u"="_s);
    EXPECT_EQ(display(), u"00");
    clickKeys(u"="_s);
    EXPECT_EQ(display(), u"000");
}

TEST_F(CalculatorTest, StartsAnewAfterClear) {
    for (const QString& before : {u"1 + 2 +"_s, u"1 + 2 ="_s, u"9 sqrt -"_s, u"2 x^y 3 = ="_s, u"= ="_s}) {
        clickKeys(before);
        clickKeys(u"清零"_s);
        EXPECT_EQ(display(), u"0");
        clickKeys(u"5 + 1 ="_s);
        EXPECT_EQ(display(), u"6") << before.toStdString();
        clickKeys(u"清零"_s);
    }
}

TEST_F(CalculatorTest, RefusesToDivideByZeroInAChainWithAMessage) {
    rig.messages->whileShown = [this](const ShownMessage&) { EXPECT_EQ(display(), u"7/0"); };
    clickKeys(u"7 / 0 +"_s);
    ASSERT_EQ(rig.messages->shown.size(), 1u);
    EXPECT_EQ(rig.lastMessage(), (ShownMessage{u"被除数不能等于零!"_s, 64, u"温馨提示"_s}));
    EXPECT_EQ(display(), u"0");
    clickKeys(u"4"_s); // no operator is pending
    EXPECT_EQ(display(), u"4");
    EXPECT_FALSE(rig.ended());
}

TEST_F(CalculatorTest, EndsTheProgramWithTheDivisionErrorOnEquals) {
    clickKeys(u"7 / 0 ="_s);
    expectError(11);
    EXPECT_TRUE(rig.messages->shown.empty());
}

TEST_F(CalculatorTest, EndsTheProgramOnTheRootOfANegativeNumber) {
    clickKeys(u"1 - 3 = sqrt ="_s);
    expectError(5);
}

TEST_F(CalculatorTest, ForgetsEverythingWhenItIsUnloaded) {
    clickKeys(u"1 2 +"_s);
    rig.clickCell(ms2(), 1, 1);
    EXPECT_FALSE(rig.loaded(forms::Calculator));
    openCalculator();
    EXPECT_EQ(display(), u"0");
}

TEST_F(CalculatorTest, KeepsWhatItHoldsWhenItIsShownAgain) {
    clickKeys(u"1 2 +"_s);
    openCalculator();
    EXPECT_EQ(display(), u"12+");
}

TEST_F(CalculatorTest, HasTheKeyboardWhenItOpensAndKeepsItThroughClicks) {
    rig.settle();
    EXPECT_EQ(QApplication::activeWindow(), &calculator());
    QWindow* window = calculator().windowHandle();
    QTest::mouseClick(window, Qt::LeftButton, {}, rig.at(calculator::Display).geometry().center());
    QTest::keyClick(window, Qt::Key_5);
    EXPECT_EQ(display(), u"5");
    for (const auto& clicked : {calculator::Operation[0], calculator::Digit[1], calculator::Equals}) // 5+1=
        QTest::mouseClick(window, Qt::LeftButton, {}, key(clicked).geometry().center());
    QTest::keyClick(window, Qt::Key_Return);
    EXPECT_EQ(ms2().TextMatrix(1, 5), u"6"); // Enter confirms, whatever was clicked last
}

TEST_F(CalculatorTest, ShowsTheEndOfALongExpressionBehindAnEllipsisAndAllOfItAsToolTip) {
    auto& shown = rig.at(calculator::Display);
    const auto headOf = [&shown] { return shown.grab().toImage().copy(5, 3, 14, shown.height() - 6); };
    const auto darkAt = [](const QImage& image, int from, int to) {
        for (int y = from; y < to; ++y)
            for (int x = 0; x < image.width(); ++x)
                if (qGray(image.pixel(x, y)) < 128)
                    return true;
        return false;
    };
    rig.type(calculator(), u"12345678+1"_s);
    EXPECT_EQ(shown.toolTip(), u"");
    EXPECT_FALSE(darkAt(headOf(), 0, headOf().height()));
    const QString expression = u"12345678901234567890+12345678901234567890"_s;
    rig.click(key(calculator::Clear));
    rig.type(calculator(), expression);
    EXPECT_EQ(shown.Text(), expression);
    EXPECT_EQ(shown.toolTip(), expression);
    // Dots on the line and nothing above them.
    EXPECT_TRUE(darkAt(headOf(), headOf().height() / 2, headOf().height()));
    EXPECT_FALSE(darkAt(headOf(), 0, headOf().height() / 3));
    rig.click(key(calculator::Clear));
    EXPECT_EQ(shown.toolTip(), u"");
}

TEST_F(CalculatorTest, TakesTheKeyboardAgainWhenItIsShownAgain) {
    rig.settle();
    rig.mainWindow().activateWindow(); // as a click into the main window does
    rig.settle();
    ASSERT_EQ(QApplication::activeWindow(), &rig.mainWindow());
    openCalculator();
    rig.settle();
    EXPECT_EQ(QApplication::activeWindow(), &calculator());
}

TEST_F(CalculatorTest, ComputesByTheKeyboard) {
    rig.type(calculator(), u"1+2*3"_s);
    EXPECT_EQ(display(), u"3*3");
    rig.type(calculator(), u"/"_s);
    EXPECT_EQ(display(), u"9/");
    rig.type(calculator(), u"4-0.5"_s);
    EXPECT_EQ(display(), u"2.25-0.5");
}

TEST_F(CalculatorTest, TakesEveryDigitFromTheKeyboard) {
    rig.type(calculator(), u"1234567890."_s);
    EXPECT_EQ(display(), u"1234567890.");
}

TEST_F(CalculatorTest, TakesNothingFromOtherKeys) {
    rig.type(calculator(), u"12"_s);
    rig.press(calculator(), Qt::Key_Backspace);
    rig.press(calculator(), Qt::Key_Delete);
    rig.press(calculator(), Qt::Key_Space);
    rig.press(calculator(), Qt::Key_Tab);
    rig.press(calculator(), Qt::Key_Left);
    rig.type(calculator(), u"a=元１"_s);
    EXPECT_EQ(display(), u"12");
    EXPECT_TRUE(isOpen(forms::Calculator));
}

TEST_F(CalculatorTest, IgnoresTheRepeatsOfAHeldEnter) {
    rig.type(calculator(), u"5"_s);
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s, true);
    QCoreApplication::sendEvent(&calculator(), &held);
    EXPECT_TRUE(isOpen(forms::Calculator));
    EXPECT_EQ(ms2().TextMatrix(1, 5), u"12.5");
}

TEST_F(CalculatorTest, ColoursTheKeyUnderThePointerAndTakesTheColourBackOnTheBareForm) {
    for (const Key& entry : Keys) {
        rig.hover(key(entry.name));
        EXPECT_EQ(key(entry.name).BackColor(), 0xE0E0E0u);
        EXPECT_EQ(key(entry.name).cursor().shape(), Qt::PointingHandCursor);
    }
    rig.hover(calculator());
    for (const Key& entry : Keys)
        EXPECT_EQ(key(entry.name).BackColor(), 0xFFFFFFu);
}

TEST_F(CalculatorTest, TakesTheHoverColourAloneBack) {
    key(calculator::Equals).setBackColor(0x123456);
    rig.hover(calculator());
    EXPECT_EQ(key(calculator::Equals).BackColor(), 0x123456u);
}

} // namespace
} // namespace qinghe::testing
