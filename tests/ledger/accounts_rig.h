#pragma once

#include "ledger/ledger_lists.h"
#include "support/page_rig.h"

namespace qinghe::testing {

/// The page of savings accounts.
class AccountsTest : public PageTest {
protected:
    AccountsTest() : PageTest(Accounts) {}

    /// Stores one account: its name, eight amounts as SQL writes them (starting amount to balance), no remark.
    void storeAccount(const QString& amounts, const QString& name = u"户"_s) {
        rig.sql(
            u"insert into zhb(账户名称,起始金额,收入,支出,借入,借出,转入,转出,余额,备注信息,区别) values('%1',%2,'',1)"_s
                .arg(name, amounts));
    }
    QString balance(int row = 1) { return grid().TextMatrix(row, BalanceColumn); }
    /// The remark stands behind all others.
    int remarkColumn() { return lastColumn(); }
    /// Gives every empty cell before the remark a nought: a save refuses gaps.
    void fillGaps(int row) {
        for (int col = 1; col < remarkColumn(); ++col)
            if (grid().TextMatrix(row, col).isEmpty())
                grid().setTextMatrix(row, col, u"0"_s);
    }

    static constexpr int BalanceColumn = 9;
};

} // namespace qinghe::testing
