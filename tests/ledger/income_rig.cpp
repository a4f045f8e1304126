#include "ledger/income_rig.h"

namespace qinghe::testing {

void IncomeTest::fillRow(int row, const QStringList& texts) {
    for (int col = 1; col <= 7; ++col) {
        const QString& text = texts.at(col - 1);
        if (text.isEmpty())
            continue;
        if (col != list.amount) {
            fillCell(row, col, text);
            continue;
        }
        clickCell(row, col);
        calculate(text);
    }
}

} // namespace qinghe::testing
