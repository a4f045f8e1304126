#pragma once

#include "controls/style_roles.h"

#include <QFont>

namespace qinghe {

/// The type in which a cell's text is set, in the cell and in the box over it.
struct CellType {
    QFont font;
    CellFit fit = CellFit::Whole; ///< even so; what is cut ends in "…"
};

/// Words have the usual size and are cut where they do not fit. An amount or a date is told by all of its digits: it is
/// set narrower, and then smaller, as far as it can be read.
CellType cellType(const QString& text, double points, int room);

} // namespace qinghe
