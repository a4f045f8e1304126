#include "tools/calculator_machine.h"

#include "runtime/number_text.h"
#include "runtime/runtime_error.h"
#include "runtime/shown_value.h"

#include <cmath>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

/// What an operator key writes behind the first operand. The columns differ: what follows a root is not chained.
struct Marks {
    QStringView plain;
    QStringView chained;   ///< behind the result of a chained calculation
    QStringView afterRoot; ///< behind a root that was pending
};

constexpr Marks OperatorMarks[] = {
    {u"+", u"+", u"+"}, {u"-", u"-", u"+"}, {u"*", u"*", u"*"},
    {u"/", u"/", u"+"}, {u"^", u"^", u"^"}, {u"sqr", u"sqrt", u"sqr"},
};

/// A number as the runtime lets it pass: what has no value or is too large is an error.
template<typename Number>
Number checked(Number value) {
    if (std::isnan(value))
        throw RuntimeError(RuntimeError::InvalidCall, u"计算器：这个乘方没有结果。"_s);
    if (std::isinf(value))
        throw RuntimeError(RuntimeError::Overflow, u"溢出：计算器的结果太大。"_s);
    return value;
}

float single(double value) {
    return checked(static_cast<float>(value));
}

double quotient(double first, double second) {
    if (second == 0)
        throw RuntimeError(RuntimeError::DivisionByZero, u"除数为零：%1 不能除以 0。"_s.arg(numberText(first)));
    return first / second;
}

double calculated(CalculatorMachine::Operator operation, double first, double second) {
    switch (operation) {
    case CalculatorMachine::Plus:
        return checked(first + second);
    case CalculatorMachine::Minus:
        return checked(first - second);
    case CalculatorMachine::Times:
        return checked(first * second);
    case CalculatorMachine::Divide:
        return checked(quotient(first, second));
    case CalculatorMachine::Power:
        return checked(std::pow(first, second));
    default:
        return 0; // a second operand typed behind "sqr" leaves nothing to compute
    }
}

double squareRoot(const QString& operand) {
    const double value = leadingNumber(operand);
    if (value < 0)
        throw RuntimeError(RuntimeError::InvalidCall, u"计算器：%1 没有平方根。"_s.arg(shownValue(operand)));
    return std::sqrt(value);
}

} // namespace

void CalculatorMachine::keyPressed(bool equals) {
    m_touched = true;
    m_answered = equals;
}

void CalculatorMachine::reset() {
    m_state = {};
    m_display = u"0"_s;
}

void CalculatorMachine::pressClear() {
    keyPressed();
    reset();
}

void CalculatorMachine::pressKey(int key) {
    keyPressed();
    const QString typed = key == PointKey ? u"."_s : QString::number(key);
    if (m_state.displayText.size() == m_state.firstLength) {
        m_state.displayText += typed;
        m_state.firstOperand = m_state.displayText;
        m_state.firstLength = m_state.displayText.size();
        m_display = m_state.firstOperand;
    } else {
        m_state.secondOperand += typed;
        m_display = m_state.displayText + m_state.secondOperand;
    }
}

CalculatorMachine::Outcome CalculatorMachine::pressOperator(int key) {
    keyPressed();
    const Marks& marks = OperatorMarks[key];
    if (!m_state.firstOperand.isEmpty() && !m_state.secondOperand.isEmpty()) {
        if (m_state.pendingOperator == Divide && leadingNumber(m_state.secondOperand) == 0) {
            reset();
            return Outcome::DivisionRefused;
        }
        chain(marks.chained);
    } else if (m_state.pendingOperator == Root) {
        takeRoot(marks.afterRoot);
    } else {
        m_state.displayText += marks.plain;
    }
    m_display = m_state.displayText;
    m_state.pendingOperator = static_cast<Operator>(key + 1);
    return Outcome::Done;
}

void CalculatorMachine::chain(QStringView mark) {
    const double result =
        calculated(m_state.pendingOperator, leadingNumber(m_state.firstOperand), leadingNumber(m_state.secondOperand));
    m_state.firstOperand = pointNumberText(single(result));
    m_state.secondOperand.clear();
    m_state.firstLength = 0;
    m_state.displayText = m_state.firstOperand + mark.toString();
}

/// Leaves firstLength alone: where root and mark are as long as what was typed, digits go on to the first operand.
void CalculatorMachine::takeRoot(QStringView mark) {
    m_state.firstOperand = pointNumberText(single(squareRoot(m_state.firstOperand)));
    m_state.displayText = m_state.firstOperand + mark.toString();
}

void CalculatorMachine::pressEquals() {
    keyPressed(true);
    if (m_state.pendingOperator != None)
        answer();
    m_answer = m_display;
    if (leadingNumber(m_display) < 1) // ".5" becomes "0.5"; "0" and "-3" become "00" and "0-3", which is meant
        m_display.prepend(u'0');
}

/// Whether "=" has anything to do since it was last pressed. A root works on the one operand that it has; before
/// another operator a first operand may be missing, which counts as 0.
bool CalculatorMachine::unanswered() const {
    if (m_answered || m_state.pendingOperator == None)
        return false;
    return m_state.pendingOperator == Root ? !m_state.firstOperand.isEmpty() : !m_state.secondOperand.isEmpty();
}

std::optional<QString> CalculatorMachine::handOver() {
    if (unanswered())
        pressEquals();
    if (isNumeric(m_display))
        return m_display;
    return m_answered && isNumeric(m_answer) ? std::optional(m_answer) : std::nullopt;
}

void CalculatorMachine::answer() {
    const Operator operation = m_state.pendingOperator;
    const double result = operation == Root ? squareRoot(m_state.firstOperand)
                                            : calculated(operation, leadingNumber(m_state.firstOperand),
                                                         leadingNumber(m_state.secondOperand));
    m_state.firstOperand = pointNumberText(result);
    m_state.displayText = m_state.firstOperand;
    m_display = operation == Times ? spacedNumberText(result) : m_state.displayText;
    if (operation == Power)
        return; // a further "=" raises to the same power again
    m_state.secondOperand.clear();
    m_state.firstLength = 0;
}

} // namespace qinghe
