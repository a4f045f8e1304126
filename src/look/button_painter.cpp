#include "look/button_painter.h"

#include "controls/buttons.h"
#include "look/colours.h"
#include "look/drawing.h"
#include "look/fonts.h"
#include "look/glyphs.h"

#include <QFontMetrics>
#include <QPainter>
#include <QRegularExpression>
#include <QStyleOption>

#include <algorithm>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr int IconSide = 14, IconGap = 2;
constexpr int MarkSide = 16, MarkGap = 6;
constexpr int LowButton = 22, KeyMargin = 2; // pixels, all of them

bool enabled(const QStyleOption& option) {
    return option.state & QStyle::State_Enabled;
}
bool focused(const QStyleOption& option) {
    return option.state & QStyle::State_HasFocus;
}
bool checked(const QStyleOption& option) {
    return option.state & QStyle::State_On;
}

/// A button may be one of Qt's own (message boxes, the file chooser): those have no icon and the role Plain.
Role roleOf(const QWidget* widget) {
    const Placed* placed = Placed::of(widget);
    return placed ? placed->role() : Role::Plain;
}

bool isPrimary(const QStyleOptionButton& option, const QWidget* widget) {
    return roleOf(widget) == Role::Primary || option.features & QStyleOptionButton::DefaultButton;
}

QColor buttonFill(const QStyleOptionButton& option, const QWidget* widget) {
    if (!enabled(option))
        return colour::OffBg;
    if (option.state & QStyle::State_Sunken)
        return colour::Pressed;
    if (const Placed* placed = Placed::of(widget))
        return colourOf(placed->BackColor());
    return option.state & QStyle::State_MouseOver ? colour::Hovered : colour::White;
}

void paintButtonBody(const QStyleOptionButton& option, QPainter& painter, const QWidget* widget) {
    const bool primary = isPrimary(option, widget) && enabled(option);
    const QColor edge = !enabled(option) ? colour::OffLine : primary ? colour::LeafDeep : colour::Ctl;
    paintPanel(painter, option.rect, 4, buttonFill(option, widget), edge, primary ? 1.6 : 1);
    if (focused(option) && enabled(option)) {
        const double inset =
            option.rect.height() < LowButton ? 1.5 : 3; // a low one has no room for it round the caption
        paintPanel(painter, QRectF(option.rect).adjusted(inset, inset, -inset, -inset), 2.5, Qt::NoBrush, colour::Leaf,
                   1.5);
    }
}

/// Our captions are plain text. Qt's own buttons mark a short cut in theirs: "是(&Y)" is shown as "是".
QString shownCaption(const QStyleOptionButton& option, const QWidget* widget) {
    if (Placed::of(widget))
        return option.text;
    static const QRegularExpression ShortCut(u"\\(&.\\)|&"_s);
    return QString(option.text).remove(ShortCut);
}

QColor captionColour(const QStyleOptionButton& option, const QWidget* widget) {
    if (!enabled(option))
        return colour::Off;
    const bool leaf = isPrimary(option, widget) || roleOf(widget) == Role::CalcOperator;
    return leaf ? colour::LeafDark : colour::Ink;
}

/// Keys have large captions; a word that is too wide for its key has not.
QFont captionFont(Role role, const QString& caption, int width) {
    const QFont font = fontFor(role);
    const bool tooWide = QFontMetrics(font).horizontalAdvance(caption) > width - 2 * KeyMargin;
    return role == Role::CalcOperator && tooWide ? fontFor(Role::Plain) : font;
}

void paintButtonCaption(const QStyleOptionButton& option, QPainter& painter, const QWidget* widget) {
    const Placed* placed = Placed::of(widget);
    const Glyph glyph = placed ? placed->glyph() : Glyph::None;
    const QColor iconColour = enabled(option) ? colour::LeafDeep : colour::Off;
    // The arrows of the picker have captions for those who cannot see them; on view they are arrows alone.
    if (roleOf(widget) == Role::PickerArrow || option.text.isEmpty())
        return paintGlyph(painter, glyph, QRectF(option.rect).marginsRemoved({8, 6, 8, 6}), iconColour);
    const QString caption = shownCaption(option, widget);
    const QFont font = captionFont(roleOf(widget), caption, option.rect.width());
    const int words = QFontMetrics(font).horizontalAdvance(caption);
    const int icon = glyph == Glyph::None ? 0 : IconSide + IconGap;
    const int left = option.rect.left() + std::max(2, (option.rect.width() - words - icon) / 2);
    paintGlyph(painter, glyph, QRectF(left, option.rect.center().y() - IconSide / 2 + 1, IconSide, IconSide),
               iconColour);
    const QRect room(left + icon, option.rect.top(), option.rect.right() - left - icon + 1, option.rect.height());
    paintLine(painter, room, Qt::AlignLeft, caption, font, captionColour(option, widget));
}

QRectF markRect(const QStyleOptionButton& option) {
    const int top = option.rect.top() + (option.rect.height() - MarkSide) / 2;
    return QRectF(option.rect.left(), top, MarkSide, MarkSide);
}

QColor markColour(const QStyleOptionButton& option) {
    if (!enabled(option))
        return colour::fromRgb(0xB9C4B5);
    return checked(option) ? colour::LeafDeep : colour::Ctl;
}

void paintDot(const QStyleOptionButton& option, QPainter& painter, const QRectF& mark) {
    paintPanel(painter, mark, MarkSide / 2.0, enabled(option) ? colour::White : colour::OffBg, markColour(option), 1.4);
    if (!checked(option))
        return;
    const double inset = 1.4 + 3.4 - 0.8;
    paintPanel(painter, mark.adjusted(inset, inset, -inset, -inset), MarkSide / 2.0 - inset, markColour(option), {}, 0);
}

void paintTickBox(const QStyleOptionButton& option, QPainter& painter, const QRectF& mark) {
    const QColor fill = checked(option) ? markColour(option) : enabled(option) ? colour::White : colour::OffBg;
    paintPanel(painter, mark, 3, fill, markColour(option), 1.4);
    if (!checked(option))
        return;
    const QPointF tick[] = {mark.topLeft() + QPointF(3.8, 8.3), mark.topLeft() + QPointF(6.8, 11.3),
                            mark.topLeft() + QPointF(12.2, 5)};
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour::White, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(tick, 3);
    painter.restore();
}

/// The caption beside a mark. The ring of the focus, shown to those who use the
/// keyboard, lies round the caption: the mark touches the control's own edge,
/// and a ring round it would be cut.
void paintMarkCaption(const QStyleOptionButton& option, QPainter& painter, const QRectF& mark) {
    const QFont font = fontFor(Role::Plain);
    const QRect room = option.rect.adjusted(MarkSide + MarkGap, 0, 0, 0);
    paintLine(painter, room, Qt::AlignLeft, option.text, font, enabled(option) ? colour::Ink : colour::Off);
    if (!focused(option) || !(option.state & QStyle::State_KeyboardFocusChange))
        return;
    const QColor ring = colour::faded(colour::Leaf, 75);
    if (option.text.isEmpty())
        return paintPanel(painter, mark.adjusted(-0.5, -0.5, 0.5, 0.5), 3.5, Qt::NoBrush, ring, 2);
    const int words = std::min(QFontMetrics(font).horizontalAdvance(option.text), room.width() - 3);
    const double half = std::min(option.rect.height() / 2.0, 11.0),
                 middle = option.rect.top() + option.rect.height() / 2.0;
    paintPanel(painter, QRectF(room.left() - 3, middle - half, words + 6, 2 * half), 3, Qt::NoBrush, ring, 1.2);
}

} // namespace

void paintButton(const QStyleOptionButton& option, QPainter& painter, const QWidget* widget) {
    paintButtonBody(option, painter, widget);
    paintButtonCaption(option, painter, widget);
    const auto* button = qobject_cast<const CommandButton*>(widget);
    if (button && button->isMarked() && enabled(option))
        paintPanel(painter, QRectF(option.rect.right() - 10, option.rect.top() + 4, 7, 7), 3.5, colour::Amber, {}, 0);
}

void paintOption(const QStyleOptionButton& option, QPainter& painter) {
    const QRectF mark = markRect(option);
    paintDot(option, painter, mark);
    paintMarkCaption(option, painter, mark);
}

void paintTick(const QStyleOptionButton& option, QPainter& painter) {
    const QRectF mark = markRect(option);
    paintTickBox(option, painter, mark);
    paintMarkCaption(option, painter, mark);
}

} // namespace qinghe
