#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace qinghe {

/// What the store understands of queries. A source is a table name or one SELECT over one table:
///
///     select [distinct] * | item {, item} from <table> [where <comparison>] [group by <column> {, <column>}]
///     item:       <column> [as <name>] | sum(<column>) as <name>
///     comparison: <operand> <operator> <literal> | <operand> between <literal> and <literal>
///     operand:    <column> | left(<column>, <number>)
///     operator:   = < > <= >= <>   (blanks between the two characters are allowed)
///     literal:    'text' | #date#
///
/// Keywords read in any case, blanks may stand between all words and around the whole; names are letters, digits and
/// "_". A quote inside a text can not be written. Nothing else passes, so a text of the user that is joined into a
/// query can break it but make it do nothing more.
///
/// Only the grammar is judged here; whether tables, columns and kinds fit is the business of Selection.
struct Literal {
    bool isDate = false;
    QString text; ///< without the marks; a date without the blanks around it
};

struct Comparison {
    QString column;
    int leading = 0;                    ///< the n of left(column, n); 0: the whole column
    QString sign = {};                  ///< "=", "<", ">", "<=", ">=", "<>" or "between"
    std::vector<Literal> literals = {}; ///< two for "between", else one
};

struct SelectItem {
    QString column;
    QString name = {}; ///< what the result calls it
    bool isSum = false;
};

struct Query {
    QString table;
    bool distinct = false;
    std::vector<SelectItem> items; ///< empty: all columns
    std::optional<Comparison> where;
    std::vector<QString> groupBy;
};

/// Throws RuntimeError (QueryFailure) that names the place where the text stops being a query.
Query parsedQuery(const QString& source);
/// One comparison alone, as a search takes it. Throws likewise.
Comparison parsedComparison(const QString& criterion);

} // namespace qinghe
