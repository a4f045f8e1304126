#include "look/app_icon.h"

#include "look/colours.h"
#include "look/path_text.h"

#include <QPainter>
#include <QPixmap>

namespace qinghe {
namespace {

constexpr QColor Fold = colour::fromRgb(0xCFE8B4), Rule = colour::fromRgb(0xB9D3A6), Margin = colour::fromRgb(0xE59A8C);

struct LeafShape {
    const char* path;
    QColor colour;
};
constexpr LeafShape Leaves[] = {
    {"M33 52 C31 38 26 31 15 29 C17 40 24 46 33 52 Z", colour::fromRgb(0x7CBF4B)},
    {"M33 52 C36 38 40 29 53 24 C53 38 44 46 33 52 Z", colour::fromRgb(0x5FA33A)},
    {"M31.4 52 C27 36 29 22 36 12 C40 24 39 38 34.6 52 Z", colour::fromRgb(0x3F8A2B)},
};

void paintPage(QPainter& painter, const QPen& edge) {
    QLinearGradient white(0, 4, 0, 60);
    white.setColorAt(0, Qt::white);
    white.setColorAt(1, colour::fromRgb(0xEAF5DC));
    painter.setPen(edge);
    painter.setBrush(white);
    painter.drawPath(pathOf("M14 4 L44 4 L56 16 V54 Q56 60 50 60 H14 Q8 60 8 54 V10 Q8 4 14 4 Z"));
    painter.setBrush(Fold);
    painter.drawPath(pathOf("M44 4 V12 Q44 16 48 16 H56 Z"));
}

void paintPageRules(QPainter& painter) {
    painter.setPen(QPen(Rule, 2));
    painter.drawLine(QLineF(14, 44, 50, 44));
    painter.drawLine(QLineF(14, 52, 50, 52));
    painter.setPen(QPen(Margin, 1.6));
    painter.drawLine(QLineF(17, 10, 17, 55));
}

/// The leaves stand on y = `foot`; their tips stay where they are.
void paintLeaves(QPainter& painter, double foot) {
    constexpr double Tip = 12, Grown = 52;
    painter.translate(0, Tip);
    painter.scale(1, (foot - Tip) / (Grown - Tip));
    painter.translate(0, -Tip);
    painter.setPen(Qt::NoPen);
    for (const LeafShape& leaf : Leaves) {
        painter.setBrush(leaf.colour);
        painter.drawPath(pathOf(leaf.path));
    }
}

} // namespace

void paintAppIcon(QPainter& painter, const QRectF& room) {
    const double side = qMin(room.width(), room.height());
    const bool small = side * painter.deviceTransform().m11() < 28;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(room.center() - QPointF(side, side) / 2);
    painter.scale(side / 64, side / 64);
    paintPage(painter, QPen(colour::LeafDeep, small ? 4 : 2.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    if (!small)
        paintPageRules(painter);
    paintLeaves(painter, small ? 56 : 52);
    painter.restore();
}

QIcon appIcon() {
    QIcon icon;
    for (const int side : {16, 24, 32, 48, 64, 256}) {
        QPixmap pixmap(side, side);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paintAppIcon(painter, QRectF(0, 0, side, side));
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

} // namespace qinghe
