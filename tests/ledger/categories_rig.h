#pragma once

#include "ledger/income_rig.h"

namespace qinghe::testing {

/// A program in whose main window the page of the categories can be opened and worked on.
class CategoriesTest : public ProgramTest {
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

    MSFlexGrid& ms3() { return rig.at(categories::Majors); }
    MSFlexGrid& ms4() { return rig.at(categories::Minors); }
    TextBox& tx3() { return rig.at(categories::MajorBox); }
    TextBox& tx4() { return rig.at(categories::MinorBox); }
    OptionButton& option(Side side) {
        return rig.onMain<OptionButton>(side == Income ? categories::Income : categories::Expense);
    }
    CommandButton& command(int number) { return rig.onMain<CommandButton>(u"Command%1"_s.arg(number)); }
    Frame& frame3() { return rig.at(categories::Page); }

    void choose(Side side);
    void press(int number); ///< a command button
    void clickMajor(int row);
    void clickMinor(int row, int col = 1);
    void clickLabel(const QString& label);
    /// A press of the mouse on the bare form, so many pixels from its top.
    void pressBareForm(int y);
    /// Both end with Enter.
    void fillMajor(int row, const QString& text);
    void fillMinor(int row, const QString& minor, const QString& code);

    /// The rows of the grids, cells joined with "|".
    QStringList majors() { return rowsOf(ms3()); }
    QStringList minors() { return rowsOf(ms4()); }
    QString current(const MSFlexGrid& grid) { return currentOf(grid); }
    bool minorsUsable();
};

} // namespace qinghe::testing
