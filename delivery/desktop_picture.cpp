#include "delivery/lettering.h"
#include "delivery/pictures.h"
#include "delivery/strokes.h"
#include "look/colours.h"
#include "look/glyphs.h"

#include <QPainter>

#include <algorithm>

namespace qinghe {
namespace {

// All places here are those of the page; the picture lies on it at 4,16.
constexpr QRectF ground(4, 16, 761, 389);
constexpr QRectF lastMonth(28, 24, 240, 348), thisMonth(276, 24, 240, 348), plans(524, 24, 217, 348);
constexpr double radius = 8;
constexpr double heading = 32;

void paintGround(QPainter& painter) {
    painter.fillRect(ground, downwards({{16, rgb(0xF4FBEE)},
                                        {110, rgb(0xEFF8E5)},
                                        {190, rgb(0xECF6E0)},
                                        {290, rgb(0xE3F1D2)},
                                        {360, rgb(0xDAEDC4)}}));
    painter.fillPath(hills({{4, 361}, {120, 361}, {280, 364}, {400, 369}, {520, 350}, {660, 364}, {765, 362}}, 406),
                     downwards({{350, rgb(0xCBE6B0)}, {406, rgb(0xC8E4AB)}}));
    painter.fillPath(hills({{4, 386}, {198, 374}, {400, 391}, {585, 376}, {765, 384}}, 406),
                     downwards({{374, rgb(0xBBDD9A)}, {406, rgb(0xB8DB98)}}));
}

void paintFoot(QPainter& painter) {
    Scatter scatter(3);
    for (double x = 9; x < ground.right() - 4; x += scatter() < 0.3 ? 31 : 20.6) {
        paintSeedling(painter, {x, ground.bottom()}, scatter.between(13, 21), youngRice());
    }
}

struct CardColours {
    QColor body, heading, edge, words;
};

/// The edge stands within the card's rectangle.
void paintCard(QPainter& painter, const QRectF& card, const CardColours& colours) {
    paintShadow(painter, card, radius);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colours.body);
    painter.drawRoundedRect(card, radius, radius);
    painter.save();
    painter.setClipRect(QRectF(card.topLeft(), QSizeF(card.width(), heading)));
    painter.setBrush(colours.heading);
    painter.drawRoundedRect(card, radius, radius);
    painter.restore();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(colours.edge, 1));
    painter.drawRoundedRect(card.adjusted(0.5, 0.5, -0.5, -0.5), radius - 0.5, radius - 0.5);
}

void paintHeading(QPainter& painter, QPointF leftTop, const QColor& colour, QStringView words) {
    paintFrom(painter, {Lettering::Sans, 16, true, colour}, leftTop + QPointF(0, heading / 2), words);
}

struct Row {
    double middle;
    Glyph glyph;
    const char16_t* word;
    bool loan;
};
constexpr Row rows[] = {{90, Glyph::Income, u"收入", false},
                        {154, Glyph::Expense, u"支出", false},
                        {218, Glyph::Budget, u"预算", false},
                        {282, Glyph::Borrowed, u"借入", true},
                        {338, Glyph::Lent, u"借出", true}};
constexpr double hairlines[] = {122, 186, 250, 310};

void paintRows(QPainter& painter, const QRectF& card) {
    for (const Row& row : rows) {
        const QPointF middle(card.left() + 32, row.middle);
        painter.setPen(Qt::NoPen);
        painter.setBrush(row.loan ? colour::BrownRowPale : colour::LeafPale);
        painter.drawEllipse(middle, 16, 16);
        paintGlyph(painter, row.glyph, QRectF(middle - QPointF(10, 10), QSizeF(20, 20)),
                   row.loan ? colour::BrownRow : colour::LeafDeep);
        paintFrom(painter, {Lettering::Sans, 14.67, false, colour::Ink}, {card.left() + 57, row.middle}, row.word);
    }
    for (const double y : hairlines) {
        painter.fillRect(QRectF(card.left() + 16, y, 212, 1), rgb(0xE0EAD8));
    }
}

void paintMonth(QPainter& painter, const QRectF& card, const CardColours& colours, const BladeColours& seedlings,
                QStringView words) {
    paintCard(painter, card, colours);
    paintHeading(painter, card.topLeft() + QPointF(16.5, 0), colours.words, words);
    for (int i = 0; i < 3; ++i) {
        paintSeedling(painter, {card.right() - 49 + 15 * i, card.top() + heading}, 15 + 2 * i, seedlings);
    }
    paintRows(painter, card);
}

/// The small field with a sun below the heading of the plans.
void paintMorningStrip(QPainter& painter) {
    const QRectF strip(plans.left() + 1, 56, plans.width() - 2, 48);
    painter.save();
    painter.setClipRect(strip);
    painter.fillRect(strip, downwards({{56, rgb(0xFFFDF5)}, {104, rgb(0xFFF5DE)}}));
    painter.setPen(Qt::NoPen);
    painter.setBrush(rgb(0xFFDB92));
    painter.drawEllipse(QPointF(690, 92), 15, 15);
    painter.fillPath(hills({{524, 96}, {590, 86}, {684, 96.5}, {741, 87}}, 104), rgb(0xD8E8B7));
    painter.fillPath(hills({{524, 98}, {620, 101}, {741, 98}}, 104), rgb(0xC4DE99));
    for (int i = 0; i < 11; ++i) {
        paintSeedling(painter, {536 + 19.6 * i, 104}, 8.5 + 1.6 * (i * 2 % 3), youngRice(0.9));
    }
    painter.restore();
    painter.fillRect(QRectF(strip.left(), 104, strip.width(), 1), rgb(0xE0D3A6));
}

void paintPlans(QPainter& painter) {
    paintCard(painter, plans, {rgb(0xFFFDF5), colour::BrownPale, rgb(0xE0D3A6), colour::Brown});
    paintGlyph(painter, Glyph::Calendar, QRectF(plans.left() + 16, plans.top() + 6, 20, 20), colour::BrownRow);
    paintHeading(painter, plans.topLeft() + QPointF(44, 0), colour::Brown, u"今日日程");
    paintMorningStrip(painter);
}

} // namespace

void paintDesktop(QPainter& painter) {
    painter.translate(-ground.topLeft());
    paintGround(painter);
    paintFoot(painter);
    paintMonth(painter, lastMonth, {colour::White, rgb(0xDCEBCF), rgb(0xC6DCB4), colour::LeafDark}, youngRice(0.8),
               u"上月");
    paintMonth(painter, thisMonth, {colour::White, colour::LeafDeep, colour::LeafDeep, colour::White},
               {rgb(0x8CC866), rgb(0xA6DB7C), rgb(0x97D06F)}, u"本月");
    paintPlans(painter);
}

} // namespace qinghe
