#include "look/art.h"

#include "look/colours.h"
#include "look/path_text.h"

#include <QPainter>

#include <array>

namespace qinghe {
namespace {

/// Drawn 100 high, foot at the origin.
struct Blade {
    QPainterPath path;
    QColor colour;
};

const std::array<Blade, 3>& blades() {
    static const std::array<Blade, 3> Drawn{{
        {pathOf("M3 0 Q-16 -34 -52 -50 Q-26 -22 -7 0 Z"), colour::fromRgb(0x8CC866)},
        {pathOf("M-4 0 Q18 -48 62 -70 Q32 -34 7 0 Z"), colour::fromRgb(0x6AAA40)},
        {pathOf("M-6 0 Q-7 -56 3 -100 Q9 -50 6 0 Z"), colour::fromRgb(0x68A83E)},
    }};
    return Drawn;
}

} // namespace

void paintSeedling(QPainter& painter, const QPointF& foot, double height) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(foot);
    painter.scale(height / 100, height / 100);
    for (const Blade& blade : blades())
        painter.fillPath(blade.path, blade.colour);
    painter.restore();
}

void paintSeedlings(QPainter& painter, const SeedlingRow& row) {
    painter.save();
    painter.setOpacity(painter.opacity() * row.opacity);
    constexpr int Swing = 6;
    int n = 0;
    for (double x = row.left; x < row.right; x += row.pitch, ++n) {
        const double grown = row.low + (row.high - row.low) * (n % Swing) / (Swing - 1);
        paintSeedling(painter, QPointF(x, row.foot), grown);
        // Every seventh has a neighbour, or the row would look planted with a ruler.
        if (n % 7 == 4)
            paintSeedling(painter, QPointF(x + row.pitch * 0.6, row.foot), row.low + (row.high - grown));
    }
    painter.restore();
}

} // namespace qinghe
