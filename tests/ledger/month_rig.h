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
        rig.sql(QStringLiteral("insert into %1 values('1','%2',%3,%4,%5,'现金','',1)")
                    .arg(QString::fromUtf16(side.table), date, item, person, amount));
    }
    /// A month of two items and two people, with other months beside it.
    void storeHousehold(const GridList& side = Income) {
        record(QStringLiteral("2024-10-01"), QStringLiteral("'工资'"), QStringLiteral("'甲'"), QStringLiteral("8000"),
               side);
        record(QStringLiteral("2024-10-31"), QStringLiteral("'利息'"), QStringLiteral("'甲'"), QStringLiteral("0.5"),
               side);
        record(QStringLiteral("2024-10-20"), QStringLiteral("'工资'"), QStringLiteral("'乙'"), QStringLiteral("1234.5"),
               side);
        record(QStringLiteral("2024-09-30"), QStringLiteral("'工资'"), QStringLiteral("'甲'"), QStringLiteral("7"),
               side);
        record(QStringLiteral("2023-10-01"), QStringLiteral("'工资'"), QStringLiteral("'甲'"), QStringLiteral("9"),
               side);
    }
    void showItems() { choose(QStringLiteral("Option8")); }
    void showPeople() { choose(QStringLiteral("Option9")); }
    void showEntry() { choose(QStringLiteral("Option7")); }
    Adodc& adodc2() { return *rig.mainWindow().Adodc2; }
    Adodc& adodc3() { return *rig.mainWindow().Adodc3; }
};

} // namespace qinghe::testing
