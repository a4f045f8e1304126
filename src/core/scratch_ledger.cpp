#include "core/scratch_ledger.h"

#include "runtime/months.h"
#include "store/stored_value.h"
#include "store/tables.h"

#include <utility>
#include <vector>

namespace qinghe {

void fillScratchLedger(Recordset& ledger, Recordset& scratch, std::span<const ScratchColumn> more) {
    const Field day = ledger.field(columns::Time), amount = ledger.field(columns::Amount);
    Field month = scratch.field(columns::Time), sum = scratch.field(columns::Amount);
    Field number = scratch.field(columns::RowNumber);
    std::vector<std::pair<Field, Field>> others;
    for (const ScratchColumn& column : more)
        others.emplace_back(ledger.field(column.from), scratch.field(column.to));
    for (int counter = 1; !ledger.eof(); ledger.moveNext(), ++counter) {
        scratch.addNew();
        month.setValue(months::ofDay(day.text()));
        sum.setStored(amount.asStored());
        number.setValue(counter);
        for (auto& [from, to] : others)
            to.setStored(from.asStored());
        scratch.update();
    }
}

} // namespace qinghe
