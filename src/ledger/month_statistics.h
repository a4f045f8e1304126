#pragma once

#include "core/main_window.h"

namespace qinghe {

/// The two reports of the current month that the page of income and expense shows in its grid: by item, and by person
/// and item. They read the statistics table `sztjlsb` alone, which is as old as the last opening of the page.
///
/// The month's key has no leading zero while the table holds the first seven characters of a date, so that from January
/// to September a report normally finds nothing. Who changes the key changes which rows a household sees counted.
class MonthStatistics {
public:
    /// ledgerSide: 1 income, 0 expense.
    MonthStatistics(MainWindow& window, MSFlexGrid& grid, Label& total, const Int16& ledgerSide);

    void showItems();
    void showPeople();

private:
    struct Report;
    using Reports = std::array<Report, 2>; ///< by side
    /// Asks for the month's sums and tells their total under the table, lays the grid out for them, and gives them.
    Recordset& begin(const Reports& reports);

    MainWindow& m_window;
    MSFlexGrid& ms2;
    Label& Label10;
    const Int16& m_side;
};

} // namespace qinghe
