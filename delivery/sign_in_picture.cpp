#include "delivery/lettering.h"
#include "delivery/pictures.h"
#include "delivery/strokes.h"
#include "look/app_icon.h"
#include "look/colours.h"
#include "look/glyphs.h"

#include <QPainter>

namespace qinghe {
namespace {

constexpr QRectF window(0, 0, 355, 280);
constexpr QRectF card(12, 90, 331, 178);

/// The morning field of the skin 青禾, moved so that its sun stands behind the name, under a thin veil.
void paintMorning(QPainter& painter) {
    painter.save();
    painter.setClipRect(window);
    painter.translate(-380, 0);
    paintMorningField(painter);
    painter.restore();
    painter.fillRect(window, colour::faded(colour::White, 30));
}

void paintName(QPainter& painter) {
    paintAppIcon(painter, QRectF(26, 20, 52, 52));
    paintFrom(painter, {Lettering::Sans, 22.7, true, colour::LeafBlack}, {88, 37}, u"青禾家庭记账本");
    paintFrom(painter, {Lettering::Sans, 13.3, false, colour::Ink2}, {88, 62.5}, u"一粥一饭，都记在心上");
}

void paintField(QPainter& painter, Glyph glyph, double middle, QStringView word) {
    paintGlyph(painter, glyph, QRectF(24, middle - 8, 16, 16), colour::LeafDeep);
    paintFrom(painter, {Lettering::Sans, 13.3, false, colour::Ink}, {43, middle}, word);
}

} // namespace

void paintSignIn(QPainter& painter) {
    paintMorning(painter);
    paintName(painter);
    paintShadow(painter, card, 8);
    painter.setBrush(rgb(0xFCFDFB));
    painter.setPen(Qt::NoPen);
    painter.drawRoundedRect(card, 8, 8);
    paintField(painter, Glyph::Person, 114, u"用户名");
    paintField(painter, Glyph::Lock, 156.5, u"密　码");
}

} // namespace qinghe
