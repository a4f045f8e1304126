#pragma once

#include "store/dialect.h"
#include "store/result_set.h"

namespace qinghe {

/// A query brought together with its table: the SQL that gives its rows, and what these rows are.
///
/// Rows come in the order in which they were written; groups and distinct values in the order of their text, NULL
/// before
/// "". The rows of a writable shape are preceded by the identity of the stored row.
struct Selection {
    ResultShape shape;
    QByteArray sql;
    std::vector<QString> bound; ///< the texts that stand for its places
};

/// `columns` are those of the query's table. Throws RuntimeError (QueryFailure) for a column that the table does not
/// have, a comparison that does not fit its kind, a text that is no date (one without its year is of `thisYear`), and
/// for selections that mean nothing (a column beside a sum without a group, distinct on more than one column).
Selection selectionOf(const Query& query, const TableColumns& columns, const ThisYear& thisYear = {});

} // namespace qinghe
