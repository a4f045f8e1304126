#include "look/label_painter.h"

#include "controls/controls.h"
#include "look/colours.h"
#include "look/drawing.h"
#include "look/fonts.h"
#include "look/glyphs.h"
#include "look/running_text.h"

#include <QPainter>
#include <QStyleOption>

namespace qinghe {
namespace {

constexpr quint32 RedFore = 0x0000FF, TodayBack = 0xFF0000;
constexpr double BlankTwips = 120, HalfWordTwips = 240;

/// The label's own colour, or the role's where none was given.
QColor wordsColour(const QStyleOption& option, const Label& label, const QColor& usual) {
    if (!(option.state & QStyle::State_Enabled))
        return colour::Off;
    return label.ForeColor() == 0 ? usual : colourOf(label.ForeColor());
}

/// The white tab and the red bar of the page in view.
void paintTab(QPainter& painter, double centre, double top) {
    paintPanel(painter, QRectF(centre - 24, top, 48, 32), 6, colour::White, colour::PanelLine);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour::Red);
    painter.drawRoundedRect(QRectF(centre - 12, top + 26.8, 24, 2.4), 1.2, 1.2);
    painter.restore();
}

/// The key that clicks the label, at the shoulder of its word.
void paintKeyHint(QPainter& painter, const QRect& room, double centre, const QString& key) {
    const QRectF cap(std::min(centre + 17, room.right() - 13.0), room.top() + 1, 13, 13);
    paintPanel(painter, cap, 3, colour::White, colour::LeafDeep);
    paintLine(painter, cap.toRect(), Qt::AlignHCenter, key, sans(type::Small, true), colour::LeafDark);
}

void paintPageLabel(const QStyleOption& option, QPainter& painter, const Label& label) {
    const PageCaption caption = pageCaption(label.Caption());
    const int centre = qRound(caption.centre);
    const bool chosen = label.role() == Role::ChosenLabel;
    if (chosen)
        paintTab(painter, centre, option.rect.top());
    const QRect room(centre - 60, option.rect.top(), 120, chosen ? 26 : option.rect.height() - 2);
    paintLine(painter, room, Qt::AlignHCenter, caption.word, fontFor(label.role()), colourOf(label.ForeColor()));
    if (!label.keyHint().isEmpty())
        paintKeyHint(painter, option.rect, centre, label.keyHint());
}

void paintSignInButton(const QStyleOption& option, QPainter& painter, const Label& label) {
    const bool red = label.ForeColor() == RedFore;
    QLinearGradient leaf(option.rect.topLeft(), option.rect.bottomLeft());
    leaf.setColorAt(0, colour::fromRgb(0xD9EFC2));
    leaf.setColorAt(1, colour::fromRgb(0xBFE19B));
    paintPanel(painter, option.rect, 4, red ? QBrush(colour::White) : QBrush(leaf), colour::LeafDeep, 1.4);
    paintLine(painter, option.rect, Qt::AlignHCenter, label.Caption().trimmed(),
              sans(red ? type::Page : type::Heading, true), colourOf(label.ForeColor()));
}

void paintWeekRow(const QStyleOption& option, QPainter& painter, const Label& label) {
    const QString days = QString(label.Caption()).remove(u' ');
    const QRect row = option.rect;
    for (int i = 0; i < days.size(); ++i) {
        const QRect column(row.left() + row.width() * i / 7, row.top(), row.width() / 7, row.height() - 1);
        paintLine(painter, column, Qt::AlignHCenter, days.mid(i, 1), fontFor(Role::WeekRow), colour::PineWords);
    }
    paintRule(painter, row.left(), row.right() + 1, row.bottom(), colour::PineLine);
}

void paintDayCell(const QStyleOption& option, QPainter& painter, const Label& label) {
    QFont font = fontFor(Role::DayCell);
    if (label.BackColor() == TodayBack) {
        const QRectF field = QRectF(option.rect).adjusted(3, 1.5, -3, -1.5);
        paintPanel(painter, field, 4, colour::Today, colour::TodayEdge, 1.2);
        font.setBold(true);
    }
    if (label.role() == Role::WalkedDay)
        paintKeyboardRing(painter, option.rect);
    paintLine(painter, option.rect, Qt::AlignHCenter, label.Caption().trimmed(), font, colourOf(label.ForeColor()));
}

void paintCaution(const QStyleOption& option, QPainter& painter, const Label& label) {
    paintPanel(painter, option.rect, 5, colour::AmberPale, colour::fromRgb(0xE6CC9A));
    const QRect head(option.rect.left() + 10, option.rect.top() + 8, option.rect.width() - 20, 18);
    paintGlyph(painter, Glyph::Warning, QRectF(head.left(), head.top() + 2, 15, 15), colour::Amber);
    paintLine(painter, head.adjusted(20, 0, 0, 0), Qt::AlignLeft, label.Caption(), fontFor(Role::Caution),
              colour::AmberText);
}

void paintLink(const QStyleOption& option, QPainter& painter, const Label& label) {
    QFont font = fontFor(Role::Link);
    font.setUnderline(true);
    paintLine(painter, option.rect.adjusted(0, 0, RightSlack, 0), Qt::AlignRight, label.Caption(), font,
              wordsColour(option, label, colour::LeafLink));
}

/// The figures' font, smaller where a figure has more digits than the room has for them: none is ever cut.
QFont figureFontIn(const QString& figure, double width) {
    QFont font = figureFont();
    // Hinted digits do not shrink evenly.
    for (double size = font.pointSizeF(); size > 1 && qRound(QFontMetricsF(font).horizontalAdvance(figure)) > width;
         size -= 0.25)
        font.setPointSizeF(size);
    return font;
}

void paintFigure(const QStyleOption& option, QPainter& painter, const Label& label) {
    const QRectF room = option.rect;
    const QFont font = figureFontIn(label.Caption(), room.width());
    const QFontMetricsF metrics(font);
    const double x = room.right() - qRound(metrics.horizontalAdvance(label.Caption()));
    const double y = room.top() + (room.height() - metrics.height()) / 2 + metrics.ascent();
    painter.setFont(font);
    painter.setPen(wordsColour(option, label, colour::Ink));
    drawFigure(painter, QPointF(x, qRound(y)), label.Caption());
}

/// Any other label: one line, or running text where the words need more and have the room.
void paintPlain(const QStyleOption& option, QPainter& painter, const Label& label) {
    const QFont font = fontFor(label.role());
    const QColor colour = wordsColour(option, label, label.role() == Role::Help ? colour::Ink2 : colour::Ink);
    const QString words = label.Caption();
    const bool tooLong = QFontMetrics(font).horizontalAdvance(words) > option.rect.width() || words.contains(u'\n');
    if (label.role() == Role::PlanList)
        paintRunning(painter, option.rect, words, font, colour);
    else if (tooLong && option.rect.height() >= 2 * linePitch(font))
        paintRunning(painter, option.rect, words, font, colour, Qt::AlignVCenter);
    else
        paintLine(painter, option.rect, label.alignment(), words, font, colour);
}

} // namespace

PageCaption pageCaption(const QString& caption) {
    qsizetype blanks = 0;
    while (blanks < caption.size() && caption[blanks] == u' ')
        ++blanks;
    return {caption.trimmed(), (static_cast<double>(blanks) * BlankTwips + HalfWordTwips) / TwipsPerPixel};
}

void paintWords(const QStyleOption& option, QPainter& painter, const Label& label) {
    switch (label.role()) {
    case Role::PageLabel:
    case Role::ChosenLabel:
        return paintPageLabel(option, painter, label);
    case Role::SignInButton:
        return paintSignInButton(option, painter, label);
    case Role::WeekRow:
        return paintWeekRow(option, painter, label);
    case Role::DayCell:
    case Role::WalkedDay:
        return paintDayCell(option, painter, label);
    case Role::Caution:
        return paintCaution(option, painter, label);
    case Role::Well:
        return paintPanel(painter, option.rect, 4, colour::Well, colour::WellEdge);
    case Role::Hairline:
        return option.rect.width() > option.rect.height()
                   ? paintRule(painter, option.rect.left(), option.rect.right() + 1, option.rect.center().y(),
                               colour::Line)
                   : paintUpright(painter, option.rect.center().x(), option.rect.top(), option.rect.bottom() + 1,
                                  colour::Line);
    case Role::Link:
        return paintLink(option, painter, label);
    case Role::Figure:
        return paintFigure(option, painter, label);
    case Role::MonthTitle:
        return paintLine(painter, option.rect, Qt::AlignHCenter, label.Caption(), fontFor(Role::MonthTitle),
                         colour::White);
    case Role::ProductName:
        return paintLine(painter, option.rect, Qt::AlignLeft, label.Caption(), fontFor(Role::ProductName),
                         wordsColour(option, label, colour::LeafBlack));
    case Role::Total:
        return paintLine(painter, option.rect, Qt::AlignLeft, label.Caption(), fontFor(Role::Total),
                         wordsColour(option, label, colour::LeafDark));
    default:
        return paintPlain(option, painter, label);
    }
}

} // namespace qinghe
