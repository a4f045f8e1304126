#include "look/glyphs.h"

#include "look/app_icon.h"
#include "look/path_text.h"

#include <QPainter>

#include <array>

namespace qinghe {
namespace {

/// `lines` have the full stroke of 2, `fine` ones 1.5: they stand close together.
struct Drawing {
    Glyph glyph;
    const char* lines;
    const char* fine;
};

constexpr const char* CoinMark = "M5.8 9.2 L8 12 L10.2 9.2 M8 12 V15 M6.2 12.4 H9.8";

constexpr Drawing Drawings[] = {
    {Glyph::Borrow,
     "M2.5 13.6 C5 12.2 7.2 12.4 9.8 14.4 H13 C15 14.4 15 17 13 17 H9.5 "
     "M14.4 16.4 L19.6 13.6 C21.6 12.8 22.6 14.8 21 16 L16.2 19.6 C13 21.8 8 21.4 2.5 19.8",
     "O15.5 7 5 M13.7 4.8 L15.5 7 L17.3 4.8 M15.5 7 V9.6 M14 7.4 H17"},
    {Glyph::Info, "O12 12 9 M12 11.4 V16.4 M12 7.8 L12.01 7.8", ""},
    {Glyph::Tools, "R3.8 3.8 6.6 6.6 1.6 R13.6 3.8 6.6 6.6 1.6 R3.8 13.6 6.6 6.6 1.6 O16.9 16.9 3.3", ""},
    {Glyph::Minimise, "M4.5 16 H19.5", ""},
    {Glyph::Close, "M5.5 5.5 L18.5 18.5 M18.5 5.5 L5.5 18.5", ""},
    {Glyph::Add, "M12 4.5 V19.5 M4.5 12 H19.5", ""},
    {Glyph::Remove, "M4 6.8 H20 M9 6.4 V4 H15 V6.4 M6 7.2 L6.9 20.2 H17.1 L18 7.2", "M10 11 V16.4 M14 11 V16.4"},
    {Glyph::Accept, "M4.5 12.8 L9.6 18 L19.8 6.8", ""},
    {Glyph::Search, "O10.5 10.5 6.5 M15.4 15.4 L20.5 20.5", ""},
    {Glyph::List, "M9 6 H20 M9 12 H20 M9 18 H20 M4.4 6 L4.41 6 M4.4 12 L4.41 12 M4.4 18 L4.41 18", ""},
    {Glyph::Back, "M15 5 L8 12 L15 19", ""},
    {Glyph::Forward, "M9 5 L16 12 L9 19", ""},
    {Glyph::Income, "R3 9.6 18 11 2.6 M12 1.6 V6.6 M9.4 4.4 L12 7 L14.6 4.4",
     "M21 13.2 H17.2 C15 13.2 15 17 17.2 17 H21"},
    {Glyph::Expense, "M2.8 10 H21.2 M5 10 L6.6 20.2 H17.4 L19 10 M7.8 9.6 L10.4 4 M16.2 9.6 L13.6 4",
     "M10 13.6 V16.8 M14 13.6 V16.8"},
    {Glyph::Budget, "R4.6 4.4 14.8 16.8 2.2 M9 3.2 H15 V5.8 H9 Z",
     "M8.2 11 L9.6 12.4 L12 9.8 M14 11.4 H15.8 M8.4 16.4 H15.6"},
    {Glyph::Borrowed, "O8 12 6 M22 12 H17 M19.6 9.4 L17 12 L19.6 14.6", CoinMark},
    {Glyph::Lent, "O8 12 6 M16.6 12 H22 M19.4 9.4 L22 12 L19.4 14.6", CoinMark},
    {Glyph::Calendar, "R3.6 5 16.8 15.6 2.2 M3.6 10 H20.4 M8 2.8 V6.4 M16 2.8 V6.4",
     "M7.8 13.6 L7.81 13.6 M12 13.6 L12.01 13.6 M16.2 13.6 L16.21 13.6 M7.8 17 L7.81 17 M12 17 L12.01 17"},
    {Glyph::Music, "O6.6 18 2.6 O17.2 16 2.6 M9.2 18 V6.4 L19.8 4.2 V16", "M9.2 10 L19.8 7.8"},
    {Glyph::Mute, "M3.6 9.4 H7.2 L12 5.4 V18.6 L7.2 14.6 H3.6 Z M16 9.6 L20.8 14.4 M20.8 9.6 L16 14.4", ""},
    {Glyph::Bell,
     "M12 3 V4.6 M4.8 17.4 C7 15.4 7 13.4 7 10.8 C7 7 9 4.8 12 4.8 C15 4.8 17 7 17 10.8 "
     "C17 13.4 17 15.4 19.2 17.4 Z M10.2 20.6 C11.2 21.5 12.8 21.5 13.8 20.6",
     ""},
    {Glyph::Backup,
     "E10.8 5.8 6.8 2.9 M4 5.8 V17.8 C4 19.6 6.6 20.7 10.6 20.7 M4 11.8 C4 13.6 6.6 14.7 10.6 14.7 "
     "M17.6 5.8 V9.6 M17.2 21 V13.4 M14.2 16.2 L17.2 13.2 L20.2 16.2",
     ""},
    {Glyph::Restore,
     "M4.6 8.4 C6 5.6 8.8 4 12 4 C16.4 4 20 7.6 20 12 C20 16.4 16.4 20 12 20 C8.4 20 5.3 17.6 4.3 14.4 "
     "M4 3.8 V8.6 H8.8 M12 7.8 V12.4 L15.2 14.4",
     ""},
    {Glyph::Question,
     "O12 12 9 M9.4 9.7 C9.4 8 10.5 7 12 7 C13.6 7 14.7 8 14.7 9.5 C14.7 11.5 12 11.6 12 13.6 "
     "M12 16.9 L12.01 16.9",
     ""},
    {Glyph::Warning, "M12 3.6 L21.2 20 H2.8 Z M12 10 V14.2 M12 17 L12.01 17", ""},
    {Glyph::Person, "O12 7.6 4 M4.2 20.6 C4.8 16.4 7.8 14.4 12 14.4 C16.2 14.4 19.2 16.4 19.8 20.6", ""},
    {Glyph::Lock, "R4.6 10.4 14.8 10.2 2.2 M8 10.2 V7.4 C8 2.2 16 2.2 16 7.4 V10.2 M12 14.4 V16.4", ""},
    {Glyph::Down, "M5.5 9 L12 15.5 L18.5 9", ""},
};

struct Paths {
    QPainterPath lines, fine;
};

/// Read once, on the icon's first use.
const Paths& pathsOf(Glyph glyph) {
    static std::array<Paths, static_cast<std::size_t>(Glyph::AppIcon) + 1> kept;
    Paths& paths = kept.at(static_cast<std::size_t>(glyph));
    if (paths.lines.isEmpty())
        for (const Drawing& drawing : Drawings)
            if (drawing.glyph == glyph)
                paths = {pathOf(drawing.lines), pathOf(drawing.fine)};
    return paths;
}

QRectF squareIn(const QRectF& room) {
    const double side = qMin(room.width(), room.height());
    QRectF square(0, 0, side, side);
    square.moveCenter(room.center());
    return square;
}

} // namespace

void paintGlyph(QPainter& painter, Glyph glyph, const QRectF& room, const QColor& colour) {
    const QRectF square = squareIn(room);
    if (glyph == Glyph::None || square.isEmpty())
        return;
    if (glyph == Glyph::AppIcon)
        return paintAppIcon(painter, square);
    const Paths& paths = pathsOf(glyph);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(square.topLeft());
    painter.scale(square.width() / 24, square.width() / 24);
    painter.setBrush(Qt::NoBrush);
    QPen pen(colour, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    painter.strokePath(paths.lines, pen);
    pen.setWidthF(1.5);
    painter.strokePath(paths.fine, pen);
    painter.restore();
}

void paintDisc(QPainter& painter, Glyph glyph, const QRectF& room, const QColor& colour, const QColor& ground) {
    const QRectF disc = squareIn(room);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground);
    painter.drawEllipse(disc);
    painter.restore();
    const double margin = disc.width() / 4;
    paintGlyph(painter, glyph, disc.adjusted(margin, margin, -margin, -margin), colour);
}

} // namespace qinghe
