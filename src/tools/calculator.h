#pragma once

#include "core/shared.h"
#include "tools/calculator_machine.h"

#include <array>

namespace qinghe {

/// `Form9`: a keypad that hangs under an amount cell. Its number goes into the box that asked and into the grid cell
/// over which it was opened, once any key was pressed, whatever takes the user away: Enter, which then goes on as Enter
/// in the box does, 填入, the window's own button, or handBack. Esc closes it without, and so does an unload from code.
/// What is no number goes nowhere, and neither does a number whose cell has gone or is no longer open.
class Calculator : public FieldTool {
    Q_OBJECT

public:
    explicit Calculator(Shared& shared);

    /// Under the next cell it shows what it holds. A reckoning without a number, or without an answer, goes on there; a
    /// number that was handed back is done with: a digit begins another one.
    void handBack() override;

    void Form9_Command1_Click(int index); ///< a digit, or 10 for the point
    void Form9_Command2_Click(int index); ///< an operator
    void Form9_Command3_Click();          ///< =
    void Form9_Command4_Click();          ///< 清零

protected:
    void focusInEvent(QFocusEvent*) override;
    void keyPressEvent(QKeyEvent*) override;

private:
    CommandButton* key(const QString& name, const QString& caption, double left, double top, double width,
                       double height);
    void makeKeys();
    void showDisplay();
    bool holdsNews() const { return m_machine.touched() && !m_handedBack; }
    bool finish();
    void enter();
    bool typed(QChar character);

    Shared& m_shared;
    CalculatorMachine m_machine;
    bool m_handedBack = false; ///< what it holds went to its cell, and no key was pressed since
    TextBox* Text1;
    std::array<CommandButton*, 11> Command1{}; // digits and the point
    std::array<CommandButton*, 6> Command2{};  // + - * / x^y sqrt
    CommandButton* Command3 = nullptr;         // =
    CommandButton* Command4 = nullptr;         // 清零
    CommandButton* m_fill = nullptr;           ///< 填入（回车）
    std::vector<CommandButton*> m_keys;        ///< all of them
};

} // namespace qinghe
