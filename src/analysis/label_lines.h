#pragma once

#include "analysis/ruler.h"

#include <QStringList>

namespace qinghe {

/// The words under a column.
struct LabelLines {
    QStringList lines;
    bool cut = false; ///< a rest had no room and stands for "…"
};

/// What is drawn of a label: all of it on one line.
QString drawnLabel(const QString& label);

/// What a month's key is called: without the "-" that it may end in ("2024-5-").
QString monthLabel(const QString& key);

/// What the year of a month's key is called.
QString yearLabel(const QString& key);

/// Lays a drawn label into a room: on one line where it fits, else on two even ones where two may be, the first not the
/// shorter. A line that is still too long ends in "…". No character is cut in two.
LabelLines breakLabel(const QString& words, double room, int mostLines, const Ruler& ruler);

} // namespace qinghe
