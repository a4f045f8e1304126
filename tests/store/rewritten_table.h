#pragma once

#include "store/store_fixture.h"

namespace qinghe {

/// Empties `srb` and writes `rows` rows that all bear `mark`, the way a page saves its grid. One unit of work,
/// committed.
void rewriteTable(Store& store, Adodc& control, const QString& mark, int rows);

/// The mark that all rows of `srb` bear; fails the test unless there are `rows` of them, in order and with the same
/// mark.
QString markOfTable(Adodc& control, int rows);

} // namespace qinghe
