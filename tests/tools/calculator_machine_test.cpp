#include "qt_printing.h"
#include "runtime/runtime_error.h"
#include "tools/calculator_machine.h"

#include <gtest/gtest.h>

namespace qinghe {
namespace {

using Machine = CalculatorMachine;
using Outcome = Machine::Outcome;

/// Presses keys written as 0 to 9 . + - * / ^ r (root) = c (clear); gives the outcome of the last operator.
Outcome press(Machine& machine, QStringView keys) {
    const QStringView operators = u"+-*/^r";
    Outcome outcome = Outcome::Done;
    for (const QChar key : keys) {
        if (key == u'=')
            machine.pressEquals();
        else if (key == u'c')
            machine.pressClear();
        else if (operators.contains(key))
            outcome = machine.pressOperator(static_cast<int>(operators.indexOf(key)));
        else
            machine.pressKey(key == u'.' ? Machine::PointKey : key.digitValue());
    }
    return outcome;
}

QString shownAfter(QStringView keys) {
    Machine machine;
    press(machine, keys);
    return machine.display();
}

Machine::State stateAfter(QStringView keys) {
    Machine machine;
    press(machine, keys);
    return machine.state();
}

struct Shown {
    QStringView keys;
    QStringView display;
};

template<std::size_t N>
void expectShown(const Shown (&table)[N]) {
    for (const auto& [keys, display] : table)
        EXPECT_EQ(shownAfter(keys), display) << keys;
}

void expectError(QStringView keys, int number) {
    try {
        shownAfter(keys);
        ADD_FAILURE() << keys << " raised nothing";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), number) << keys;
        EXPECT_FALSE(error.text().isEmpty());
    }
}

TEST(CalculatorMachine, StartsWithZeroOnTheDisplayAndNothingRemembered) {
    const Machine machine;
    EXPECT_EQ(machine.display(), u"0");
    EXPECT_EQ(machine.state(), Machine::State());
    EXPECT_EQ(machine.state().pendingOperator, Machine::None);
}

TEST(CalculatorMachine, CollectsTheFirstOperandFromDigitsAndPoints) {
    expectShown({{u"0", u"0"}, {u"00", u"00"}, {u"1234567890", u"1234567890"}, {u".5", u".5"}, {u"1.2.3", u"1.2.3"}});
    const Machine::State expected{3, u"1.2"_qs, Machine::None, u"1.2"_qs, {}};
    EXPECT_EQ(stateAfter(u"1.2"), expected);
}

TEST(CalculatorMachine, CollectsTheSecondOperandBehindAnOperator) {
    expectShown({{u"12+", u"12+"}, {u"12+3", u"12+3"}, {u"12+3.", u"12+3."}, {u"1-2.3.4", u"1-2.3.4"}});
    const Machine::State expected{2, u"12+"_qs, Machine::Plus, u"12"_qs, u"34"_qs};
    EXPECT_EQ(stateAfter(u"12+34"), expected);
}

TEST(CalculatorMachine, WritesThePlainMarkOfEachOperator) {
    expectShown({{u"2+", u"2+"}, {u"2-", u"2-"}, {u"2*", u"2*"}, {u"2/", u"2/"}, {u"2^", u"2^"}, {u"2r", u"2sqr"}});
}

TEST(CalculatorMachine, WritesTheChainedMarkOfEachOperatorBehindAResult) {
    expectShown({{u"1+2+", u"3+"},
                 {u"1+2-", u"3-"},
                 {u"1+2*", u"3*"},
                 {u"1+2/", u"3/"},
                 {u"1+2^", u"3^"},
                 {u"1+2r", u"3sqrt"}});
}

TEST(CalculatorMachine, WritesTheOddMarkOfEachOperatorBehindAPendingRoot) {
    expectShown(
        {{u"9r+", u"3+"}, {u"9r-", u"3+"}, {u"9r*", u"3*"}, {u"9r/", u"3+"}, {u"9r^", u"3^"}, {u"9rr", u"3sqr"}});
}

TEST(CalculatorMachine, RemembersEveryOperatorPressedUnderItsNumber) {
    const QStringView operators = u"+-*/^r";
    for (int key = 0; key < operators.size(); ++key) {
        const QChar mark = operators[key];
        for (const QString& before : {u"2"_qs, u"1+2"_qs, u"9r"_qs})
            EXPECT_EQ(stateAfter(before + mark).pendingOperator, key + 1) << before + mark;
    }
}

TEST(CalculatorMachine, AddsAMarkForEachOperatorPressedInARow) {
    expectShown({{u"1+-", u"1+-"}, {u"1+-*/^", u"1+-*/^"}, {u"1+-2=", u"0-1"}, {u"+", u"+"}, {u"++", u"++"}});
}

TEST(CalculatorMachine, ChainsEveryOperator) {
    expectShown({{u"1+2+", u"3+"},
                 {u"1-2+", u"-1+"},
                 {u"3*4+", u"12+"},
                 {u"9/2+", u"4.5+"},
                 {u"2^10+", u"1024+"},
                 {u"1/2+", u".5+"},
                 {u"1+2+3+4+", u"10+"},
                 {u"2*3-4/", u"2/"},
                 {u"5.+2.+", u"7+"},
                 {u"1.2.3+1+", u"2.2+"}});
}

TEST(CalculatorMachine, LeavesTheResultAsFirstOperandOfTheChain) {
    const Machine::State expected{0, u"3*"_qs, Machine::Times, u"3"_qs, {}};
    EXPECT_EQ(stateAfter(u"1+2*"), expected);
    expectShown({{u"1+2*4", u"3*4"}, {u"1+2*4=", u" 12"}});
}

TEST(CalculatorMachine, ChainsInSinglePrecisionAndAnswersInDouble) {
    expectShown({{u"1+2+", u"3+"},
                 {u"1+2=", u"3"},
                 {u"1/3+", u".3333333+"},
                 {u"1/3=", u"0.333333333333333"},
                 {u"1234567+.89+", u"1234568+"},
                 {u"1234567+.89=", u"1234567.89"},
                 {u"12345678+0+", u"1.234568E+07+"},
                 {u"12345678+0=", u"12345678"},
                 {u"2r+", u"1.414214+"},
                 {u"2r=", u"1.4142135623731"}});
}

TEST(CalculatorMachine, ReadsAResultBackFromItsText) {
    expectShown({{u"1/3+0=", u"0.3333333"}, {u".1+.2+0=", u"0.3"}, {u"2r+0=", u"1.414214"}});
}

TEST(CalculatorMachine, RefusesToDivideByZeroInAChainAndStartsAnew) {
    for (const QStringView second : {u"0", u"00", u".", u"0.0"}) {
        Machine machine;
        EXPECT_EQ(press(machine, u"7/%1+"_qs.arg(second)), Outcome::DivisionRefused) << second;
        EXPECT_EQ(machine.display(), u"0");
        EXPECT_EQ(machine.state(), Machine::State());
    }
    expectShown({{u"7/0+5", u"5"}, {u"7/0+=", u"00"}});
}

TEST(CalculatorMachine, RefusesNothingButADivisionByZero) {
    for (const QStringView keys : {u"7/2+", u"7*0+", u"7+0/", u"7/+", u"0/7+", u"7r0/"}) {
        Machine machine;
        EXPECT_EQ(press(machine, keys), Outcome::Done) << keys;
        EXPECT_NE(machine.display(), u"0");
    }
}

TEST(CalculatorMachine, RaisesTheDivisionErrorOnEquals) {
    for (const QStringView keys : {u"7/0=", u"0/0=", u"7/=", u"7/.=", u"6/2=="})
        expectError(keys, RuntimeError::DivisionByZero);
}

TEST(CalculatorMachine, AnswersEveryOperator) {
    expectShown({{u"12+30=", u"42"},
                 {u"5-2=", u"3"},
                 {u"3*4=", u" 12"},
                 {u"9/2=", u"4.5"},
                 {u"2^10=", u"1024"},
                 {u"9r=", u"3"},
                 {u"1.5+1=", u"2.5"}});
}

TEST(CalculatorMachine, KeepsTheResultAndTheOperatorAfterEquals) {
    const Machine::State sum{0, u"3"_qs, Machine::Plus, u"3"_qs, {}};
    EXPECT_EQ(stateAfter(u"1+2="), sum);
    const Machine::State difference{0, u"-3"_qs, Machine::Minus, u"-3"_qs, {}};
    EXPECT_EQ(stateAfter(u"1-4="), difference);
    const Machine::State product{0, u"12"_qs, Machine::Times, u"12"_qs, {}};
    EXPECT_EQ(stateAfter(u"3*4="), product);
    const Machine::State quotient{0, u".5"_qs, Machine::Divide, u".5"_qs, {}};
    EXPECT_EQ(stateAfter(u"1/2="), quotient);
    const Machine::State root{0, u"3"_qs, Machine::Root, u"3"_qs, {}};
    EXPECT_EQ(stateAfter(u"9r="), root);
}

TEST(CalculatorMachine, KeepsTheExponentAndTheFirstLengthAfterEquals) {
    const Machine::State expected{1, u"8"_qs, Machine::Power, u"8"_qs, u"3"_qs};
    EXPECT_EQ(stateAfter(u"2^3="), expected);
    expectShown({{u"2^3=", u"8"}, {u"2^3==", u"512"}, {u"2^3=+", u"512+"}, {u"2^3=5", u"85"}, {u"2^3=5=", u"614125"}});
}

TEST(CalculatorMachine, RepeatsTheOperatorWithAnEmptySecondOperand) {
    expectShown(
        {{u"1+2==", u"3"}, {u"5-2==", u"3"}, {u"3*4==", u"0 0"}, {u"16r==", u"2"}, {u"1+=", u"1"}, {u"2^=", u"1"}});
}

TEST(CalculatorMachine, PutsABlankBeforeAProductThatIsNotNegative) {
    expectShown({{u"3*4=", u" 12"}, {u"1-4=*3=", u"0-9"}, {u".5*.5=", u"0 .25"}, {u"0*5=", u"0 0"}});
    EXPECT_EQ(stateAfter(u"3*4=").displayText, u"12");
}

TEST(CalculatorMachine, PutsAZeroBeforeADisplayBelowOneOnEquals) {
    expectShown({{u"1/2=", u"0.5"},
                 {u"1-1=", u"00"},
                 {u"1-4=", u"0-3"},
                 {u".5=", u"0.5"},
                 {u"2-1=", u"1"},
                 {u"1.=", u"1."},
                 {u"12=", u"12"}});
    EXPECT_EQ(stateAfter(u"1/2=").displayText, u".5");
}

TEST(CalculatorMachine, AddsAZeroForEachEqualsWithNothingPending) {
    expectShown({{u"=", u"00"}, {u"==", u"000"}, {u"===", u"0000"}});
    EXPECT_EQ(stateAfter(u"=="), Machine::State());
    expectShown({{u"==5", u"5"}});
}

TEST(CalculatorMachine, TakesDigitsAfterAnAnswerForTheSecondOperand) {
    expectShown({{u"1+2=5", u"35"}, {u"1+2=5=", u"8"}, {u"1+2=*4=", u" 12"}, {u"1+2=*4", u"3*4"}});
}

TEST(CalculatorMachine, TakesARootWhenTheNextOperatorComes) {
    const Machine::State expected{1, u"3+"_qs, Machine::Minus, u"3"_qs, {}};
    EXPECT_EQ(stateAfter(u"9r-"), expected);
    expectShown({{u"9r-1=", u"2"}, {u".25r+", u".5+"}, {u"16rr+", u"2+"}, {u"16r=+", u"2+"}, {u"r+", u"0+"}});
}

TEST(CalculatorMachine, GoesOnWithTheFirstOperandWhereRootAndMarkAreAsLongAsIt) {
    const Machine::State expected{3, u"4+5"_qs, Machine::Plus, u"4+5"_qs, {}};
    EXPECT_EQ(stateAfter(u"16r+5"), expected);
    expectShown({{u"16r+5=", u"4"}});
}

TEST(CalculatorMachine, ComputesNothingWithASecondOperandBehindARoot) {
    expectShown({{u"9r5", u"9sqr5"}, {u"9r5=", u"3"}, {u"9r5+", u"0+"}});
}

TEST(CalculatorMachine, CountsAnOperandThatIsNoNumberAsZero) {
    expectShown({{u"+5=", u"5"}, {u".+5=", u"5"}, {u"5+.=", u"5"}, {u"+=", u"00"}});
}

TEST(CalculatorMachine, RaisesAnErrorForTheRootOfANegativeNumber) {
    for (const QStringView keys : {u"1-4=r=", u"1-4=r+", u"1-4r="})
        expectError(keys, RuntimeError::InvalidCall);
}

TEST(CalculatorMachine, RaisesAnErrorForAPowerThatHasNoResult) {
    expectError(u"1-4=^.5=", RuntimeError::InvalidCall);
    expectError(u"1-4=^.5+", RuntimeError::InvalidCall);
    expectShown({{u"0^0=", u"1"}, {u"1-3=^3=", u"0-8"}});
}

TEST(CalculatorMachine, OverflowsBeyondASingleInAChainAndBeyondADoubleOnEquals) {
    expectShown({{u"10^38+", u"1E+38+"}, {u"10^39=", u"1E+39"}, {u"10^308=", u"1E+308"}});
    for (const QStringView keys : {u"10^39+", u"10^309=", u"10^400+", u"10^200=*1=*10^200=*10^200="})
        expectError(keys, RuntimeError::Overflow);
}

TEST(CalculatorMachine, StartsAnewWithZeroAfterClear) {
    for (const QStringView keys : {u"", u"1+2+", u"1+2=", u"7/0+", u"9r-", u"2^3==", u"===", u"1.2.3*4"}) {
        Machine machine;
        press(machine, keys);
        press(machine, u"c");
        EXPECT_EQ(machine.display(), u"0") << keys;
        EXPECT_EQ(machine.state(), Machine::State()) << keys;
        press(machine, u"1+2=");
        EXPECT_EQ(machine.display(), u"3") << keys;
    }
}

TEST(CalculatorMachine, TellsWhetherAnyKeyWasPressed) {
    EXPECT_FALSE(Machine().touched());
    for (const QStringView keys : {u"0", u".", u"+", u"r", u"=", u"c", u"7/0+"}) {
        Machine machine;
        press(machine, keys);
        EXPECT_TRUE(machine.touched()) << keys;
    }
}

void expectHandedOver(std::initializer_list<Shown> table) {
    for (const auto& [keys, number] : table) {
        Machine machine;
        press(machine, keys);
        EXPECT_EQ(machine.handOver(), number) << keys;
    }
}

TEST(CalculatorMachine, HandsOverTheDisplayWhereItIsANumber) {
    expectHandedOver({{u"", u"0"},
                      {u"12", u"12"},
                      {u".5", u".5"},
                      {u"12.", u"12."},
                      {u"1+2=", u"3"},
                      {u"3*4=", u" 12"},
                      {u"1/2=", u"0.5"},
                      {u"1-1=", u"00"},
                      {u"=", u"00"},
                      {u"10^38=", u"1E+38"},
                      {u"7/0+", u"0"},
                      {u"5c", u"0"}});
}

TEST(CalculatorMachine, HandsOverTheAnswerWhereItsDisplayIsNoNumber) {
    expectHandedOver({{u".5*1=", u" .5"}, {u"2-5=", u"-3"}, {u"2-5==", u"-3"}, {u"1-4=*3=", u"-9"}, {u"0*5=", u" 0"}});
}

TEST(CalculatorMachine, AnswersFirstWhatHasAllItsOperands) {
    expectHandedOver({{u"80+20", u"100"},
                      {u"2-5", u"-3"},
                      {u".5*1", u" .5"},
                      {u"1+2+4", u"7"},
                      {u"9r", u"3"},
                      {u"1+2=5", u"8"},
                      {u"2^3", u"8"},
                      {u"+5", u"5"}});
}

TEST(CalculatorMachine, AnswersNothingASecondTimeForTheHandOver) {
    expectHandedOver({{u"2^3=", u"8"}, {u"6/2=", u"3"}, {u"16r=", u"4"}});
}

TEST(CalculatorMachine, HandsNothingOverThatIsNoNumber) {
    for (const QStringView keys : {u"12+", u"12*", u"7/", u"1+2+", u"1+2=*", u"9r-", u"r", u"+", u"1.2.3", u".",
                                   u"1.2.3=", u"2-5=+", u"16r+5"}) {
        Machine machine;
        press(machine, keys);
        EXPECT_EQ(machine.handOver(), std::nullopt) << keys;
    }
}

TEST(CalculatorMachine, RaisesTheErrorsOfEqualsAtTheHandOver) {
    for (const QStringView keys : {u"7/0", u"0/0"}) {
        Machine machine;
        press(machine, keys);
        EXPECT_THROW(machine.handOver(), RuntimeError) << keys;
    }
}

} // namespace
} // namespace qinghe
