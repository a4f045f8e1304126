#pragma once

#include <QString>

namespace qinghe {

/// The name of the data file, which lies beside the program.
inline constexpr QStringView DataFileName = u"data.dll";

/// The file in which the old pages of a data file lie while a unit of work is open.
inline QString journalOf(const QString& dataFile) {
    using namespace Qt::StringLiterals;
    return dataFile + u"-journal"_s;
}

} // namespace qinghe
