#pragma once

#include "core/shared.h"
#include "tools/calculator_machine.h"

#include <array>

namespace qinghe {

/// `Form9`: a keypad that hangs under an amount cell. Its number goes into the box that asked and into the
/// grid cell over which it was opened when the window is closed by its own button or confirmed with Enter, and any key
/// was pressed; Esc closes it without, and so does an unload from code. What is no number goes nowhere, and neither
/// does a number whose cell has gone or stands in a grid that takes none at present.
class Calculator : public FieldTool {
    Q_OBJECT

public:
    explicit Calculator(Shared& shared);

    void serve(const FieldTarget& field) override;

    void Form9_Command1_Click(int index); ///< a digit, or 10 for the point
    void Form9_Command2_Click(int index); ///< an operator
    void Form9_Command3_Click();          ///< =
    void Form9_Command4_Click();          ///< 清零

protected:
    void keyPressEvent(QKeyEvent*) override;

private:
    CommandButton* key(const QString& name, const QString& caption, double left, double top, double width,
                       double height);
    void makeKeys();
    void showDisplay();
    void handBack();
    bool typed(QChar character);

    Shared& m_shared;
    CalculatorMachine m_machine;
    FieldTarget m_field;
    TextBox* Text1;
    std::array<CommandButton*, 11> Command1{}; // digits and the point
    std::array<CommandButton*, 6> Command2{};  // + - * / x^y sqrt
    CommandButton* Command3 = nullptr;         // =
    CommandButton* Command4 = nullptr;         // 清零
    std::vector<CommandButton*> m_keys;        ///< all of them
};

} // namespace qinghe
