#pragma once

#include "core/main_window.h"

namespace qinghe {

/// The two reports of the current month that the page of income and expense shows in its grid: by item, and by person
/// and item. They read the statistics table `sztjlsb` alone, which is as old as the last opening of the page.
///
/// The month's key has no leading zero while the table holds the first seven characters of a date, so that from January
/// to September a report normally finds nothing; this is meant.
class MonthStatistics {
public:
    /// ledgerSide: 1 income, 0 expense; with any other a report runs no query and shows what the last one found.
    MonthStatistics(MainWindow& window, MSFlexGrid& grid, Label& total, const Int16& ledgerSide);

    void showItems();
    void showPeople();

private:
    struct Report;
    bool hasSide() const { return m_side == 0 || m_side == 1; }
    /// The month's sums, and their total under the table.
    void query(const Report& report);
    void layOut(std::initializer_list<const char16_t*> captions);

    MainWindow& m_window;
    MSFlexGrid& ms2;
    Label& Label10;
    const Int16& m_side;
};

} // namespace qinghe
