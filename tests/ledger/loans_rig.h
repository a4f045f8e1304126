#pragma once

#include "ledger/ledger_lists.h"
#include "support/page_rig.h"

namespace qinghe::testing {

/// The page of loans; the list at hand is the lent one, the other is opened by name.
class LoansTest : public PageTest {
protected:
    LoansTest() : PageTest(Lent) {}

    void clickLabel() { press(rig.onMain<Label>(QStringLiteral("Label1"))); }
    void clickImage() { press(rig.onMain<Image>(QStringLiteral("Image1"))); }
    void chooseBorrowed() { choose(QStringLiteral("Option1")); }
    void chooseLent() { choose(QStringLiteral("Option2")); }
    QString total() { return rig.onMain<Label>(QStringLiteral("Label11")).Caption(); }

    /// Stores one loan with these amounts, as SQL writes them.
    void storeLoan(const GridList& which, const QString& amounts) {
        rig.sql(QStringLiteral("insert into %1 values('户','2024-05-03',%2,'甲','乙','',1)")
                    .arg(QString::fromUtf16(which.table), amounts));
    }
};

} // namespace qinghe::testing
