#pragma once

#include <QStringList>

#include <limits>
#include <vector>

namespace qinghe {

/// What the labels of a chart are.
enum class ChartLabels {
    Words,
    Months, ///< keys of months, "2024-5-" or "2024-10"
};

/// What a chart shows: a row is a place on the axis with its label, a column is a series of one value a row.
struct ChartMatrix {
    static constexpr double NoValue = std::numeric_limits<double>::quiet_NaN();

    QStringList rows;
    QStringList columns;
    std::vector<std::vector<double>> values; ///< by column, then by row; NoValue where there is none
    QStringList years = {};                  ///< of the rows, where they are months
    bool isSample = false;

    int rowCount() const { return static_cast<int>(rows.size()); }
    int columnCount() const { return static_cast<int>(values.size()); }
};

/// Stands in a chart before its first data: rows R1 to R5, columns C1 to C4.
ChartMatrix sampleMatrix();

} // namespace qinghe
