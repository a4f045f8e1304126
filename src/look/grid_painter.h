#pragma once

#include "controls/style_roles.h"

#include <QRect>

class QColor;
class QPainter;
class QStyleOption;
class QStyleOptionHeader;
class QStyleOptionViewItem;
class QWidget;

namespace qinghe {

class MSFlexGrid;

/// The grid's parts. The paper is the whole ground of the data cells: bands, lines, the current row, and rules below
/// the last row; a cell adds its column's line, its mark and its text.
void paintLedgerPaper(const QStyleOption& option, QPainter& painter, const MSFlexGrid& grid);
void paintCell(const QStyleOptionViewItem& option, QPainter& painter, const MSFlexGrid& grid);
void paintGridEdge(QPainter& painter, const QRect& grid, bool hasKeyboard);

/// Fills a part of the grid that `widget` paints; where the part lies in a corner of the grid, the corner is cut round.
void fillGridPart(QPainter& painter, const QRect& part, const QWidget& widget, const MSFlexGrid& grid,
                  const QColor& colour);

/// A caption, a cell of the marker column, or the corner between them. `widget` is the header or the corner.
void paintHeader(const QStyleOptionHeader& option, QPainter& painter, const QWidget& widget, const MSFlexGrid& grid);
/// The rest of a header behind its last section.
void paintHeaderRest(const QStyleOption& option, QPainter& painter, const QWidget& widget, const MSFlexGrid& grid);

/// The grid to which a header, a corner, a viewport or a scroll bar belongs, or nullptr.
const MSFlexGrid* gridOf(const QWidget* part);

CellFit cellFit(const QStyleOptionViewItem& option, const MSFlexGrid& grid);

/// The room that the text of a cell has.
QRect cellTextRoom(const QRect& cell, const MSFlexGrid& grid, int col);

} // namespace qinghe
