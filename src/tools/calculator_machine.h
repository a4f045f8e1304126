#pragma once

#include <QString>

#include <optional>

namespace qinghe {

/// The arithmetic behind the calculator's keys. It knows no window: the calculator passes each key on and then shows
/// display(). Keys work in two ways that differ on purpose: an operator pressed on a complete expression computes in
/// single precision and refuses to divide by zero, "=" computes in double precision and lets the error happen.
///
/// A result is kept as its text (".5", at most 7 or 15 digits) and read back from it, like everything typed.
/// Keys throw RuntimeError: DivisionByZero, InvalidCall (a root or power that has no result), Overflow.
class CalculatorMachine {
public:
    enum Operator { None, Plus, Minus, Times, Divide, Power, Root };
    enum class Outcome {
        Done,
        DivisionRefused, ///< everything was reset; the caller says why before it shows the display
    };

    /// What the machine remembers between keys, besides the display.
    struct State {
        qsizetype firstLength = 0; ///< length of displayText as far as it is the first operand
        QString displayText;       ///< the expression up to the second operand
        Operator pendingOperator = None;
        QString firstOperand;
        QString secondOperand;
        bool operator==(const State&) const = default;
    };

    static constexpr int PointKey = 10;

    /// A digit 0 to 9, or PointKey. Points are not counted.
    void pressKey(int key);
    /// The operator keys in their order on the keypad: 0 "+", 1 "-", 2 "*", 3 "/", 4 "x^y", 5 "sqrt".
    [[nodiscard]] Outcome pressOperator(int key);
    /// The operator stays pending, so that "=" again repeats it.
    void pressEquals();
    void pressClear();

    const QString& display() const { return m_display; }
    const State& state() const { return m_state; }
    /// Whether any key was pressed since the machine was made.
    bool touched() const { return m_touched; }
    /// The number to hand over, as a column takes it: a reckoning that has all its operands and no "=" yet is answered
    /// first. It is the display where that is a number, else the answer without the display's zero before it ("-3" for
    /// "0-3", " .5" for "0 .5"). Nothing where neither is one: "12+" lacks an operand, "1.2.3" is none.
    std::optional<QString> handOver();

private:
    void keyPressed(bool equals = false);
    void reset();
    void chain(QStringView mark);
    void takeRoot(QStringView mark);
    void answer();
    bool unanswered() const;

    State m_state;
    QString m_display{u'0'};
    QString m_answer; ///< the display as "=" left it, less the zero that it puts before small numbers
    bool m_touched = false;
    bool m_answered = false; ///< the last key was "="
};

} // namespace qinghe
