#include "look/grid_painter.h"

#include "controls/ms_flex_grid.h"
#include "look/cell_type.h"
#include "look/colours.h"
#include "look/drawing.h"
#include "look/field_painter.h"
#include "look/fonts.h"

#include <QHeaderView>
#include <QPainter>
#include <QPainterPath>
#include <QScrollBar>
#include <QStyleOption>

#include <algorithm>

namespace qinghe {
namespace {

constexpr QColor UprightLine = colour::fromRgb(0xE6EEDF), CaptionMark = colour::fromRgb(0xC5DBB3);
constexpr double Corner = 4;

QColor paperWhite() {
    return colour::faded(colour::White, 92);
}

bool isCurrentRow(const MSFlexGrid& grid, int row) {
    return grid.marksCurrent() && row == grid.Row();
}

/// A report takes no clicks and is there to be read.
bool isReadable(const MSFlexGrid& grid) {
    return grid.isEnabled() || grid.role() == Role::Report;
}

/// The ground of a data row: the current one is marked, every second one is tinted.
QColor bandOf(const MSFlexGrid& grid, int row) {
    if (isCurrentRow(grid, row))
        return colour::CurrentRow;
    return row % 2 == 0 ? colour::LeafMist : QColor();
}

int rowPixels() {
    return pixelEdge(MSFlexGrid::DefaultRowHeight);
}

/// The line below a row; none where the grid's own edge runs.
void paintRowLine(QPainter& painter, const QRect& row, const QWidget& part, const MSFlexGrid& grid) {
    if (part.mapTo(&grid, row.bottomLeft()).y() < grid.height() - 1)
        paintRule(painter, row.left(), row.right() + 1, row.bottom(), colour::Line);
}

/// Rules for rows that are not there yet.
void paintRules(QPainter& painter, const QRect& room) {
    for (int y = room.top() + rowPixels(); y <= room.bottom(); y += rowPixels())
        paintRule(painter, room.left(), room.right() + 1, y - 1, colour::PaperRule);
}

/// Written on the paper's own lines, the first of them left free.
void paintGroundWords(QPainter& painter, const QRect& room, const MSFlexGrid& grid) {
    QRect line(room.left(), room.top() + rowPixels(), room.width(), rowPixels());
    for (const QString& words : grid.ground.shown().split(u'\n', Qt::SkipEmptyParts)) {
        paintLine(painter, line, Qt::AlignHCenter, words, sans(type::Body), colour::Ink3);
        line.translate(0, rowPixels());
    }
}

void paintCaption(const QStyleOptionHeader& option, QPainter& painter, const MSFlexGrid& grid) {
    const int col = option.section + 1;
    paintUpright(painter, option.rect.right(), option.rect.top() + 4, option.rect.bottom() - 3, CaptionMark);
    paintLine(painter, cellTextRoom(option.rect, grid, col), grid.isAmountColumn(col) ? Qt::AlignRight : Qt::AlignLeft,
              option.text, sans(std::min(cellMargins(grid, col).points, type::Caption), true),
              isReadable(grid) ? colour::LeafDark : colour::Ink2);
}

void paintMarker(const QStyleOptionHeader& option, QPainter& painter, const QWidget& header, const MSFlexGrid& grid) {
    const QRect cell = option.rect;
    paintRowLine(painter, cell, header, grid);
    paintUpright(painter, cell.right(), cell.top(), cell.bottom(), UprightLine);
    if (!isCurrentRow(grid, option.section + 1))
        return;
    const QPointF tip(cell.center().x() + 2.5, cell.top() + cell.height() / 2.0);
    const QPointF triangle[] = {tip, tip + QPointF(-5.5, -4.5), tip + QPointF(-5.5, 4.5)};
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour::LeafDeep);
    painter.drawPolygon(triangle, 3);
    painter.restore();
}

CellType typeOf(const QStyleOptionViewItem& option, const MSFlexGrid& grid) {
    const int col = option.index.column() + 1;
    return cellType(option.text, cellMargins(grid, col).points, cellTextRoom(option.rect, grid, col).width());
}

bool isSideways(const QWidget& header) {
    const auto* view = qobject_cast<const QHeaderView*>(&header);
    return !view || view->orientation() == Qt::Horizontal;
}

} // namespace

const MSFlexGrid* gridOf(const QWidget* part) {
    for (; part; part = part->parentWidget())
        if (const auto* grid = qobject_cast<const MSFlexGrid*>(part))
            return grid;
    return nullptr;
}

void fillGridPart(QPainter& painter, const QRect& part, const QWidget& widget, const MSFlexGrid& grid,
                  const QColor& colour) {
    const QRect whole = grid.rect().translated(-widget.mapTo(&grid, QPoint()));
    const bool touches = (part.left() <= whole.left() || part.right() >= whole.right()) &&
                         (part.top() <= whole.top() || part.bottom() >= whole.bottom());
    if (!touches)
        return painter.fillRect(part, colour);
    QPainterPath round;
    round.addRoundedRect(whole, Corner, Corner);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRect(part, Qt::IntersectClip);
    painter.fillPath(round, colour);
    painter.restore();
}

QRect cellTextRoom(const QRect& cell, const MSFlexGrid& grid, int col) {
    const CellMargins margins = cellMargins(grid, col);
    return cell.adjusted(margins.left, 0, -margins.right, 0);
}

void paintLedgerPaper(const QStyleOption& option, QPainter& painter, const MSFlexGrid& grid) {
    const QRect room = option.rect;
    const QWidget& viewport = *grid.viewport();
    fillGridPart(painter, room, viewport, grid, paperWhite());
    int foot = room.top();
    for (int row = std::max(0, grid.rowAt(0)); row < grid.Rows() - 1 && foot <= room.bottom(); ++row) {
        const QRect band(room.left(), grid.rowViewportPosition(row), room.width(), grid.rowHeight(row));
        if (const QColor colour = bandOf(grid, row + 1); colour.isValid())
            painter.fillRect(band, colour);
        paintRowLine(painter, band, viewport, grid);
        foot = band.bottom() + 1;
    }
    const QRect rest(room.left(), foot, room.width(), room.bottom() - foot + 1);
    paintRules(painter, rest);
    paintGroundWords(painter, rest, grid);
}

void paintCell(const QStyleOptionViewItem& option, QPainter& painter, const MSFlexGrid& grid) {
    const int row = option.index.row() + 1, col = option.index.column() + 1;
    const QRect cell = option.rect;
    paintUpright(painter, cell.right(), cell.top(), cell.bottom(), UprightLine);
    const bool current = isCurrentRow(grid, row) && col == grid.Col(), refused = !grid.objectionTo(row, col).isEmpty();
    if (current || refused)
        paintPanel(painter, cell, 0, refused ? colour::AmberPale : colour::LeafSel,
                   refused ? colour::Amber : colour::LeafDeep, current ? 1.6 : 1);
    paintLine(painter, cellTextRoom(cell, grid, col), grid.isAmountColumn(col) ? Qt::AlignRight : Qt::AlignLeft,
              option.text, typeOf(option, grid).font, isReadable(grid) ? colour::Ink : colour::Ink2);
}

CellFit cellFit(const QStyleOptionViewItem& option, const MSFlexGrid& grid) {
    return typeOf(option, grid).fit;
}

void paintGridEdge(QPainter& painter, const QRect& grid, bool hasKeyboard) {
    paintPanel(painter, grid, Corner, Qt::NoBrush, hasKeyboard ? colour::LeafDeep : colour::GridEdge,
               hasKeyboard ? 1.8 : 1);
}

void paintHeader(const QStyleOptionHeader& option, QPainter& painter, const QWidget& widget, const MSFlexGrid& grid) {
    const bool captions = isSideways(widget);
    fillGridPart(painter, option.rect, widget, grid, captions ? colour::LeafPale : colour::MarkerColumn);
    if (!captions)
        return paintMarker(option, painter, widget, grid);
    if (qobject_cast<const QHeaderView*>(&widget))
        paintCaption(option, painter, grid);
    else
        paintUpright(painter, option.rect.right(), option.rect.top() + 4, option.rect.bottom() - 3, CaptionMark);
    paintRule(painter, option.rect.left(), option.rect.right() + 1, option.rect.bottom(), colour::CaptionBase);
}

void paintHeaderRest(const QStyleOption& option, QPainter& painter, const QWidget& widget, const MSFlexGrid& grid) {
    const bool captions = isSideways(widget);
    fillGridPart(painter, option.rect, widget, grid, captions ? colour::LeafPale : paperWhite());
    if (captions)
        paintRule(painter, option.rect.left(), option.rect.right() + 1, option.rect.bottom(), colour::CaptionBase);
    else
        paintRules(painter, option.rect);
}

} // namespace qinghe
