#pragma once

#include "ledger/income_rig.h"

namespace qinghe::testing {

/// A program in whose main window the page of the categories can be opened and worked on.
class CategoriesTest : public ::testing::Test {
protected:
    CategoriesTest() { rig.signIn(); }

    enum Side { Income, Expense };

    /// Stores rows beforehand, "major|minor|code" each; NULL stands for no value.
    void store(const QStringList& rows, Side side = Income);
    /// What the table holds, in the order of writing.
    QStringList stored(Side side = Income);
    /// Opens the page as a user does, by the settings, and chooses the side.
    void open(Side side = Income);
    void openWith(const QStringList& rows, Side side = Income);

    MSFlexGrid& ms3() { return rig.onMain<MSFlexGrid>(QStringLiteral("ms3")); }
    MSFlexGrid& ms4() { return rig.onMain<MSFlexGrid>(QStringLiteral("ms4")); }
    TextBox& tx3() { return rig.onMain<TextBox>(QStringLiteral("tx3")); }
    TextBox& tx4() { return rig.onMain<TextBox>(QStringLiteral("tx4")); }
    OptionButton& option(Side side) {
        return rig.onMain<OptionButton>(side == Income ? QStringLiteral("Option3") : QStringLiteral("Option4"));
    }
    CommandButton& command(int number) { return rig.onMain<CommandButton>(QStringLiteral("Command%1").arg(number)); }
    Frame& frame3() { return rig.frame(QStringLiteral("Frame3")); }
    Adodc& adodc1() { return *rig.mainWindow().Adodc1; }
    Adodc& adodc2() { return *rig.mainWindow().Adodc2; }
    Shared& shared() { return rig.program->shared(); }

    void choose(Side side);
    void press(int number); ///< a command button
    void clickMajor(int row);
    void clickMinor(int row, int col = 1);
    void clickLabel(const QString& label);
    /// A press of the mouse on the bare form, so many pixels from its top.
    void pressBareForm(int y);
    /// Writes into an open box over what stands there.
    void write(TextBox& box, const QString& text);
    /// Both end with Enter.
    void fillMajor(int row, const QString& text);
    void fillMinor(int row, const QString& minor, const QString& code);

    /// The rows of the grids, cells joined with "|".
    QStringList majors() { return rowsOf(ms3()); }
    QStringList minors() { return rowsOf(ms4()); }
    QString current(const MSFlexGrid& grid) { return QStringLiteral("%1,%2").arg(grid.Row()).arg(grid.Col()); }
    bool minorsUsable();

    static void expectOver(const TextBox& box, MSFlexGrid& grid, int row, int col);
    /// The program has ended with this run-time error.
    void expectEndedBy(int error);

    ProgramRig rig;

private:
    static QStringList rowsOf(const MSFlexGrid& grid);
};

} // namespace qinghe::testing
