#pragma once

#include "qt_printing.h"
#include "support/program_rig.h"

#include <gtest/gtest.h>

namespace qinghe::testing {

/// A program in whose main window the income page, or the expense page, can be opened and worked on.
class IncomeTest : public ::testing::Test {
protected:
    IncomeTest() { rig.signIn(); }

    /// Stores rows beforehand: number n, the n-th day from 2024-5-1 on, 项目n, 人n, n yuan and a half, 账户n, 备注n.
    void store(int rows, const QString& table = QStringLiteral("srb"));
    /// Opens the page by its label: 0 income, 1 expense.
    void open(int side = 0);
    /// Opens the income page on so many stored rows.
    void openWith(int rows);

    MSFlexGrid& ms2() { return rig.onMain<MSFlexGrid>(QStringLiteral("ms2")); }
    TextBox& tx2() { return rig.onMain<TextBox>(QStringLiteral("tx2")); }
    CommandButton& add() { return rig.onMain<CommandButton>(QStringLiteral("Command4")); }
    CommandButton& remove() { return rig.onMain<CommandButton>(QStringLiteral("Command5")); }
    CommandButton& save() { return rig.onMain<CommandButton>(QStringLiteral("Command6")); }
    QString total() { return rig.onMain<Label>(QStringLiteral("Label10")).Caption(); }
    Adodc& adodc1() { return *rig.mainWindow().Adodc1; }
    Workbench& bench() { return rig.program->bench(); }

    void clickCell(int row, int col) { rig.clickCell(ms2(), row, col); }
    /// Puts a text into a cell as a user does, by click, typing and Enter. Not for column 5, which takes no keys.
    void fillCell(int row, int col, const QString& text);
    /// Fills columns 1 to 7 of a row; an amount goes in by the calculator.
    void fillRow(int row, const QStringList& texts);
    void enter() { rig.press(tx2(), Qt::Key_Return); }
    void escape() { rig.press(tx2(), Qt::Key_Escape); }

    QStringList rows();
    QString current() { return QStringLiteral("%1,%2").arg(ms2().Row()).arg(ms2().Col()); }
    /// Which of the two tools are open: "Form1", "Form9", both or none.
    QString tools();

    /// The editor lies exactly over a cell, in twips and in pixels.
    void expectEditorOver(int row, int col);

    ProgramRig rig;
};

inline const ShownMessage AddRefused{QStringLiteral("当前有一条空记录"), 64, QStringLiteral("温馨提示")};
inline const ShownMessage DeleteAsked{QStringLiteral("是否需要删除?"), 65, QStringLiteral("温馨提示")};
inline const ShownMessage SaveRefused{QStringLiteral("为了保存信息的完整性，\r\n除备注信息外记录内容不能为空！"), 64,
                                      QStringLiteral("输入提示")};
inline const ShownMessage SaveDone{QStringLiteral("保存成功"), 64, QStringLiteral("保存提示")};

} // namespace qinghe::testing
