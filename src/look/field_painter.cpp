#include "look/field_painter.h"

#include "controls/cell_editor.h"
#include "look/cell_type.h"
#include "look/colours.h"
#include "look/drawing.h"
#include "look/fonts.h"
#include "look/glyphs.h"

#include <QAbstractTextDocumentLayout>
#include <QComboBox>
#include <QFontMetrics>
#include <QLineEdit>
#include <QPainter>
#include <QPlainTextEdit>
#include <QStyleOption>
#include <QTextBlock>
#include <QTextLayout>

namespace qinghe {
namespace {

/// What a one-line text box adds at each side of its text.
constexpr int BoxMargin = 2;
constexpr int FieldMargin = 6;
constexpr double NarrowTwips = 900;
constexpr int ReturnSide = 8; ///< of the sign in a box that differs from its cell

bool hasRole(const QWidget* widget, Role role) {
    const Placed* placed = Placed::of(widget);
    return placed && placed->role() == role;
}

bool isEditor(const QWidget* widget) {
    return hasRole(widget, Role::CellEditor);
}

/// The calculator's display when it shows no more than the end of its text; else nullptr.
const QLineEdit* cutDisplay(const QWidget* widget) {
    const auto* box = qobject_cast<const QLineEdit*>(widget);
    return box && hasRole(widget, Role::CalcDisplay) && !showsWhole(*box) ? box : nullptr;
}

constexpr QChar Ellipsis(0x2026);
constexpr int CutGap = 3;
constexpr int CursorRoom = 2; ///< what a one-line text box adds to the width of a text that it scrolls

int ellipsisWidth(const QFont& font) {
    return QFontMetrics(font).horizontalAdvance(Ellipsis);
}

/// What a display that is cut leaves free at its left: room for the sign, and so much that a whole character follows.
/// Half an 8 would read as a 3.
int roomOfCut(const QLineEdit& display, int width) {
    const QFontMetrics metrics(display.font());
    const QString text = display.text();
    const int room = width - 2 * FieldMargin - CursorRoom, most = room - ellipsisWidth(display.font()) - CutGap;
    qsizetype from = text.size();
    while (from > 0 && metrics.horizontalAdvance(text.mid(from - 1)) <= most)
        --from;
    return room - metrics.horizontalAdvance(text.mid(from));
}

/// The sign that a text began further left.
void paintCut(const QStyleOption& option, QPainter& painter, const QLineEdit& box) {
    const QRect room(option.rect.left() + FieldMargin, option.rect.top() + 1, ellipsisWidth(box.font()),
                     option.rect.height() - 2);
    paintLine(painter, room, Qt::AlignLeft, Ellipsis, box.font(), colour::Ink2);
}

/// The grid beneath an editor: the sibling that its middle lies on.
const MSFlexGrid* gridUnder(const QWidget& editor) {
    const QWidget* parent = editor.parentWidget();
    if (!parent)
        return nullptr;
    for (const MSFlexGrid* grid : parent->findChildren<MSFlexGrid*>(Qt::FindDirectChildrenOnly))
        if (grid->geometry().contains(editor.geometry().center()))
            return grid;
    return nullptr;
}

/// The sign that only Enter brings the text into its cell stands where the text does not.
QRect returnSign(const QRect& box, bool textOnTheRight) {
    const int middle = box.top() + box.height() / 2;
    return {textOnTheRight ? box.left() + 3 : box.right() - ReturnSide - 2, middle - ReturnSide / 2, ReturnSide,
            ReturnSide};
}

void paintReturnSign(QPainter& painter, const QRectF& place) {
    const double foot = place.top() + place.height() * 0.68, left = place.left() + 0.5;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour::Amber, 1.3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QPointF hook[] = {{place.right() - 0.5, place.top() + 1}, {place.right() - 0.5, foot}, {left, foot}};
    const QPointF head[] = {{left + 2.6, foot - 2.6}, {left, foot}, {left + 2.6, foot + 2.6}};
    painter.drawPolyline(hook, 3);
    painter.drawPolyline(head, 3);
    painter.restore();
}

bool isOnTheRight(const QWidget& editor) {
    const auto* line = qobject_cast<const QLineEdit*>(&editor);
    return line && line->alignment() & Qt::AlignRight;
}

bool differs(const QWidget* widget) {
    const auto* editor = qobject_cast<const CellEditor*>(widget);
    return editor && editor->differsFromCell();
}

void paintEditor(const QStyleOption& option, QPainter& painter, const QWidget& widget) {
    const auto* editor = qobject_cast<const CellEditor*>(&widget);
    const bool usable = option.state & QStyle::State_Enabled, unwritten = differs(&widget),
               refused = editor && !editor->objection().isEmpty();
    const QColor fill = refused ? colour::AmberPale : usable ? colour::White : colour::EditorOff;
    paintPanel(painter, option.rect, 0, fill, unwritten || refused ? colour::Amber : colour::LeafDeep,
               usable ? 2 : 1.5);
    if (unwritten)
        paintReturnSign(painter, returnSign(option.rect, isOnTheRight(widget)));
}

void paintBox(const QStyleOption& option, QPainter& painter, bool showsFocus = true) {
    if (!(option.state & QStyle::State_Enabled))
        paintPanel(painter, option.rect, 3, colour::OffBg, colour::OffLine);
    else if (showsFocus && option.state & QStyle::State_HasFocus)
        paintPanel(painter, option.rect, 3, colour::White, colour::LeafDeep, 1.8);
    else
        paintPanel(painter, option.rect, 3, colour::White, colour::Ctl);
}

} // namespace

CellMargins cellMargins(const MSFlexGrid& grid, int col) {
    // A grid that has lost columns may be painted once more with them, before its view hears of it.
    if (col < grid.Cols() && grid.ColWidth(col) < NarrowTwips)
        return {2, 4 - RightSlack, type::Small};
    return {4, (grid.isAmountColumn(col) ? 10 : 4) - RightSlack, type::Body};
}

void fitEditor(QLineEdit& editor) {
    const MSFlexGrid* grid = gridUnder(editor);
    if (!grid)
        return;
    const CellMargins margins = cellMargins(*grid, grid->Col());
    const QFont font = cellType(editor.text(), margins.points, editor.width() - margins.left - margins.right).font;
    if (editor.font() != font)
        editor.setFont(font);
    const Qt::Alignment side = grid->isAmountColumn(grid->Col()) ? Qt::AlignRight : Qt::AlignLeft;
    if (!(editor.alignment() & side))
        editor.setAlignment(side | Qt::AlignVCenter);
}

void paintField(const QStyleOption& option, QPainter& painter, const QWidget* widget) {
    if (widget && qobject_cast<const QComboBox*>(widget->parentWidget()))
        return; // the list paints the box
    // A calculator's display cannot be gone to: its window has the keyboard.
    isEditor(widget) ? paintEditor(option, painter, *widget)
                     : paintBox(option, painter, !hasRole(widget, Role::CalcDisplay));
    if (const QLineEdit* display = cutDisplay(widget))
        paintCut(option, painter, *display);
}

bool showsWhole(const QLineEdit& box) {
    const Placed* placed = Placed::of(&box);
    const QFont font = placed ? fontFor(placed->role()) : box.font();
    return QFontMetrics(font).horizontalAdvance(box.text()) <= box.width() - 2 * FieldMargin - CursorRoom;
}

QRect fieldText(const QRect& field, const QWidget* widget) {
    if (widget && qobject_cast<const QComboBox*>(widget->parentWidget()))
        return field;
    if (!isEditor(widget)) {
        const QLineEdit* display = cutDisplay(widget);
        const int cut = display ? roomOfCut(*display, field.width()) : 0;
        return field.adjusted(FieldMargin + cut - BoxMargin, 1, BoxMargin - FieldMargin, -1);
    }
    const MSFlexGrid* grid = gridUnder(*widget);
    const CellMargins margins = grid ? cellMargins(*grid, grid->Col()) : CellMargins{4, 4, type::Body};
    const int sign = differs(widget) ? ReturnSide : 0;
    const int atLeft = isOnTheRight(*widget) ? sign : 0;
    return field.adjusted(margins.left - BoxMargin + atLeft, 0, BoxMargin - margins.right - (sign - atLeft), 0);
}

void paintWritingPaper(const QPlainTextEdit& text) {
    QWidget* paper = text.viewport();
    QPainter painter(paper);
    const double margin = text.document()->documentMargin();
    const auto rule = [&](double foot) {
        paintRule(painter, margin, paper->width() - margin, foot - 1, colour::PaperLine);
    };
    // The lines that are written, each where its text stands, and empty ones below them.
    const QTextCursor first = text.cursorForPosition(QPoint(0, 0));
    const QTextBlock firstBlock = first.block();
    int line = firstBlock.layout()->lineForTextPosition(first.positionInBlock()).lineNumber();
    double shift = text.cursorRect(first).top() - firstBlock.layout()->lineAt(line).y();
    double foot = 0, spacing = QFontMetricsF(text.font()).lineSpacing();
    for (QTextBlock block = firstBlock; block.isValid() && foot < paper->height(); block = block.next(), line = 0) {
        text.document()->documentLayout()->blockBoundingRect(block); // lays it out
        const QTextLayout* layout = block.layout();
        for (; line < layout->lineCount() && foot < paper->height(); ++line) {
            spacing = layout->lineAt(line).height();
            foot = shift + layout->lineAt(line).y() + spacing;
            rule(foot);
        }
        shift = foot;
    }
    for (foot += spacing; foot < paper->height() - margin / 2; foot += spacing)
        rule(foot);
}

void paintCombo(const QStyleOption& option, QPainter& painter) {
    paintBox(option, painter);
    const QRectF arrow(option.rect.right() - 17, option.rect.center().y() - 5, 12, 12);
    paintGlyph(painter, Glyph::Down, arrow, option.state & QStyle::State_Enabled ? colour::LeafDeep : colour::Off);
}

void paintComboWords(const QStyleOptionComboBox& option, QPainter& painter) {
    if (option.editable)
        return;
    const QRect room = option.rect.adjusted(FieldMargin, 0, -20, 0);
    paintLine(painter, room, Qt::AlignLeft, option.currentText, painter.font(),
              option.state & QStyle::State_Enabled ? colour::Ink : colour::Off);
}

} // namespace qinghe
