#pragma once

#include "ledger/income_rig.h"

namespace qinghe::testing {

/// The month's reports over the page of income and expense. The clock stands on 2024-10-15 unless a test moves it.
class MonthTest : public IncomeTest {
protected:
    MonthTest() { setMonth(10); }

    void setMonth(int month) { rig.clock->time = QDateTime(QDate(2024, month, 15), QTime(12, 0)); }
    /// Stores one record, in income unless another table is named.
    void record(const QString& date, const QString& item, const QString& person, const QString& amount,
                const GridList& side = Income) {
        rig.sql(u"insert into %1 values('1','%2',%3,%4,%5,'现金','',1)"_s.arg(side.table.toString(), date, item, person,
                                                                              amount));
    }
    /// A month of two items and two people, with other months beside it.
    void storeHousehold(const GridList& side = Income) {
        record(u"2024-10-01"_s, u"'工资'"_s, u"'甲'"_s, u"8000"_s, side);
        record(u"2024-10-31"_s, u"'利息'"_s, u"'甲'"_s, u"0.5"_s, side);
        record(u"2024-10-20"_s, u"'工资'"_s, u"'乙'"_s, u"1234.5"_s, side);
        record(u"2024-09-30"_s, u"'工资'"_s, u"'甲'"_s, u"7"_s, side);
        record(u"2023-10-01"_s, u"'工资'"_s, u"'甲'"_s, u"9"_s, side);
    }
    void showItems() { choose(income::ByItem); }
    void showPeople() { choose(income::ByPerson); }
    void showEntry() { choose(income::Records); }
    Adodc& adodc3() { return *rig.mainWindow().Adodc3; }
};

} // namespace qinghe::testing
