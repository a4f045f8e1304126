#include "look/ground_painter.h"

#include "controls/form.h"
#include "look/app_icon.h"
#include "look/art.h"
#include "look/colours.h"
#include "look/drawing.h"
#include "look/pictures.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace qinghe {
namespace {

constexpr double ShelfTop = 71, ShelfFoot = 106;

QColor white(double percent) {
    return colour::faded(colour::White, percent);
}

/// Keeps words in the title band legible on any picture.
void paintVeil(QPainter& painter, const QRectF& window, bool dark) {
    const QRectF band(0, 0, window.width(), ShelfTop + 1);
    if (dark)
        return painter.fillRect(band, white(84));
    QLinearGradient down(0, 0, 0, band.height());
    down.setColorAt(0, white(43));
    down.setColorAt(1, white(27));
    painter.fillRect(band, down);
    QLinearGradient fromLeft(0, 0, 290, 0);
    fromLeft.setColorAt(0, white(59));
    fromLeft.setColorAt(1, white(0));
    painter.fillRect(QRectF(0, 0, 290, band.height()), fromLeft);
    QLinearGradient fromRight(window.width(), 0, 600, 0);
    fromRight.setColorAt(0, white(47));
    fromRight.setColorAt(1, white(0));
    painter.fillRect(QRectF(600, 0, window.width() - 600, band.height()), fromRight);
}

/// The shelf on which the page labels stand.
void paintShelf(QPainter& painter, const QRectF& window) {
    painter.fillRect(onPixels(painter, QRectF(0, ShelfTop, window.width(), ShelfFoot - ShelfTop)), white(84));
    paintRule(painter, 0, window.width(), ShelfTop - 1, white(84));
    paintRule(painter, 0, window.width(), ShelfFoot, colour::faded(colour::fromRgb(0x28501E), 16));
}

/// A hair round the window, which follows its cut corners; the main window's lower corners are square.
void paintEdge(QPainter& painter, const QRectF& window, double radius, bool squareFoot) {
    const QColor edge = colour::faded(colour::fromRgb(0x28501E), 35);
    const double pen = hair(painter);
    QPainterPath ring; // between the two outlines
    ring.addRect(window);
    ring.addRoundedRect(window.adjusted(pen, pen, -pen, squareFoot ? 2 * radius : -pen), radius, radius);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRect(window, Qt::IntersectClip);
    painter.fillPath(ring, edge);
    painter.restore();
    if (squareFoot)
        paintRule(painter, pen, window.width() - pen, window.height() - 1, edge);
}

/// The window as it was laid out. A window manager may have given it another size, which its controls do not follow.
QRect ownRoom(const Form& form) {
    return {QPoint(), pixelRect(form.Left(), form.Top(), form.Width(), form.Height()).size()};
}

/// A light field, down to the foot of a room.
void paintField(QPainter& painter, const QRect& painted, const QRect& room) {
    QLinearGradient field(room.topLeft(), room.bottomLeft());
    field.setColorAt(0, colour::DialogFrom);
    field.setColorAt(1, colour::DialogTo);
    painter.fillRect(painted, field);
}

/// The picture keeps to the controls; what the window has beyond them is bare field.
void paintPicture(QPainter& painter, const Form& form) {
    const QRect room = ownRoom(form);
    const bool bare = form.picture().isNull();
    if (bare || !room.contains(form.rect()))
        paintField(painter, form.rect(), room);
    if (!bare)
        painter.drawPixmap(0, 0, scaledPicture(form.picture(), room.size(), painter.device()->devicePixelRatioF()));
}

/// The program's icon, and the line between the borrowed list and the window images.
void paintTitleMarks(QPainter& painter) {
    paintAppIcon(painter, pixelRect(210, 135, 600, 600));
    paintUpright(painter, pixelEdge(9982), 14, 31, colour::faded(colour::fromRgb(0x28501E), 20));
}

void paintMain(QPainter& painter, const Form& form) {
    const QRectF window = ownRoom(form);
    paintPicture(painter, form);
    paintVeil(painter, window, onDarkPicture(form));
    paintShelf(painter, window);
    paintTitleMarks(painter);
    paintEdge(painter, window, 5, true);
}

/// The room below the lowest control.
double freeMargin(const Form& form) {
    int lowest = 0;
    for (const QObject* child : form.children())
        if (const auto* control = qobject_cast<const QWidget*>(child); control && !control->isHidden())
            lowest = std::max(lowest, control->geometry().bottom() + 1);
    return form.height() - lowest;
}

void paintDialog(QPainter& painter, const Form& form) {
    paintField(painter, form.rect(), form.rect());
    const double high = std::min(15.0, freeMargin(form) - 2);
    if (high >= 6)
        paintSeedlings(painter, {.left = 8,
                                 .right = form.width() - 4.0,
                                 .foot = static_cast<double>(form.height()),
                                 .low = std::min(10.0, high * 2 / 3),
                                 .high = high,
                                 .opacity = 0.55});
}

} // namespace

void paintGround(QPainter& painter, const Form& form) {
    switch (form.ground()) {
    case Ground::Main:
        return paintMain(painter, form);
    case Ground::SignIn:
        paintPicture(painter, form);
        return paintEdge(painter, ownRoom(form), 6, false);
    case Ground::Dialog:
        return paintDialog(painter, form);
    case Ground::Pine:
        return painter.fillRect(form.rect(), colour::Pine);
    case Ground::Calculator:
        return painter.fillRect(form.rect(), colour::CalculatorGround);
    }
}

bool onDarkPicture(const QWidget& control) {
    const auto* form = qobject_cast<const Form*>(control.window());
    if (!form || form->picture().isNull())
        return false;
    static qint64 key = 0;
    static bool dark = false;
    if (key != form->picture().cacheKey()) {
        key = form->picture().cacheKey();
        dark = isDark(form->picture());
    }
    return dark;
}

} // namespace qinghe
