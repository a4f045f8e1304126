#pragma once

#include "store/recordset.h"

#include <span>

namespace qinghe {

/// A scratch table holds a ledger once more, with months instead of days, so that a report or a chart can group it by
/// month. It is as old as its last filling.
struct ScratchColumn {
    QStringView from; ///< the ledger
    QStringView to;   ///< the scratch table
};

/// Adds a record a record of the ledger from the current one on: the month of its day, its amount, its number and the
/// columns named, unchanged. The ledger has the columns 时间 and 金额; it stands at its end then.
void fillScratchLedger(Recordset& ledger, Recordset& scratch, std::span<const ScratchColumn> more = {});

} // namespace qinghe
