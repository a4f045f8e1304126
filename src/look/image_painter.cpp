#include "look/image_painter.h"

#include "controls/controls.h"
#include "look/colours.h"
#include "look/glyphs.h"
#include "look/pictures.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyleOption>

namespace qinghe {
namespace {

constexpr double TitleIcon = 18;

void paintIcon(const QStyleOption& option, QPainter& painter, const Image& image) {
    QRectF room = option.rect;
    if (image.glyph() != Glyph::AppIcon) {
        room = QRectF(0, 0, TitleIcon, TitleIcon);
        room.moveCenter(QRectF(option.rect).center());
    }
    paintGlyph(painter, image.glyph(), room, image.isEnabled() ? colour::TitleGlyph : colour::Off);
}

/// A picture that lies in a frame has slightly round corners.
void paintFilling(const QStyleOption& option, QPainter& painter, const Image& image) {
    if (image.picture().isNull())
        return;
    const QPixmap pixmap = scaledPicture(image.picture(), option.rect.size(), painter.device()->devicePixelRatioF());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    QBrush brush(pixmap);
    painter.setBrush(brush);
    painter.setBrushOrigin(option.rect.topLeft());
    painter.drawRoundedRect(option.rect, 4, 4);
    painter.restore();
}

} // namespace

void paintImage(const QStyleOption& option, QPainter& painter, const Image& image) {
    if (image.role() == Role::GlyphDisc)
        paintDisc(painter, image.glyph(), option.rect, colour::LeafDeep, colour::LeafPale);
    else if (image.role() == Role::Glyph)
        paintIcon(option, painter, image);
    else
        paintFilling(option, painter, image);
}

} // namespace qinghe
