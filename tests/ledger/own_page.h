#pragma once

#include "ledger/grid_page.h"
#include "ledger/income_rig.h"

namespace qinghe::testing {

/// A page of a test's own, on the frame and the table of another page and under names of its own.
class OwnPage : public GridPage {
public:
    OwnPage(MainWindow& form, const Traits& differences, QString table)
        : GridPage(form, differences), m_table(std::move(table)) {}

    /// Brings the page up with the whole table.
    void open(int pageCode);
    /// Brings the page up with so many blank rows.
    void openBlank(int pageCode, int rows);

    QString table() const override { return m_table; }

private:
    QString m_table;
};

class OwnPageTest : public ::testing::Test {
protected:
    OwnPageTest() { rig.signIn(); }

    static constexpr int LoanPage = 1, BudgetPage = 5;

    /// Traits under the names that the accessors below know.
    static GridPage::Traits traitsOn(const char16_t* frame, std::span<const GridPage::Column> columns);

    MSFlexGrid& grid() { return rig.onMain<MSFlexGrid>(QStringLiteral("ownGrid")); }
    TextBox& box() { return rig.onMain<TextBox>(QStringLiteral("ownBox")); }
    CommandButton& add() { return rig.onMain<CommandButton>(QStringLiteral("ownAdd")); }
    CommandButton& remove() { return rig.onMain<CommandButton>(QStringLiteral("ownRemove")); }
    CommandButton& save() { return rig.onMain<CommandButton>(QStringLiteral("ownSave")); }
    Adodc& adodc1() { return *rig.mainWindow().Adodc1; }
    Workbench& bench() { return rig.program->bench(); }

    void clickCell(int row, int col) { rig.clickCell(grid(), row, col); }
    void enter() { rig.press(box(), Qt::Key_Return); }
    /// Writes into the open editor over what stands there.
    void write(const QString& text);
    bool isOpen(const QString& tool);
    QStringList rows();
    QString current() { return QStringLiteral("%1,%2").arg(grid().Row()).arg(grid().Col()); }

    ProgramRig rig;
};

} // namespace qinghe::testing
