#pragma once

#include "ledger/ledger_lists.h"
#include "support/page_rig.h"

namespace qinghe::testing {

/// The page of loans; the list at hand is the lent one, the other is opened by name.
class LoansTest : public PageTest {
protected:
    LoansTest() : PageTest(Lent) {}

    void clickLabel() { press(rig.at(pages::Loans)); }
    void clickImage() { press(rig.at(loans::Picture)); }
    void chooseBorrowed() { choose(loans::Borrowed); }
    void chooseLent() { choose(loans::Lent); }
    QString total() { return rig.at(loans::Total).Caption(); }

    /// Stores one loan with these amounts, as SQL writes them.
    void storeLoan(const GridList& which, const QString& amounts) {
        rig.sql(u"insert into %1 values('户','2024-05-03',%2,'甲','乙','',1)"_s.arg(which.table.toString(), amounts));
    }
};

} // namespace qinghe::testing
