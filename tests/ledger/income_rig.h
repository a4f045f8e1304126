#pragma once

#include "ledger/ledger_lists.h"
#include "support/page_rig.h"

namespace qinghe::testing {

/// The page of income, on which both sides of the ledger can be opened.
class IncomeTest : public PageTest {
protected:
    IncomeTest() : PageTest(Income) {}

    using PageTest::open;
    /// Opens the page by its label: 0 income, 1 expense.
    void open(int side) { open(side == 0 ? Income : Expense); }

    MSFlexGrid& ms2() { return grid(); }
    TextBox& tx2() { return box(); }
    QString total() { return rig.at(income::Total).Caption(); }

    /// Fills columns 1 to 7 of a row, save for those with no text; an amount goes in by the calculator.
    void fillRow(int row, const QStringList& texts);
};

} // namespace qinghe::testing
