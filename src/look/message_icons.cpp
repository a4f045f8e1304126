#include "look/message_icons.h"

#include "look/colours.h"
#include "look/glyphs.h"

#include <QIconEngine>
#include <QPainter>
#include <QPixmap>

namespace qinghe {
namespace {

class Disc : public QIconEngine {
public:
    Disc(Glyph glyph, const QColor& colour, const QColor& ground)
        : m_glyph(glyph), m_colour(colour), m_ground(ground) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override {
        paintDisc(*painter, m_glyph, rect, m_colour, m_ground);
    }
    QIconEngine* clone() const override { return new Disc(*this); }
    /// `size` is in device pixels.
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }

private:
    Glyph m_glyph;
    QColor m_colour, m_ground;
};

} // namespace

QIcon messageIcon(QStyle::StandardPixmap standard) {
    switch (standard) {
    case QStyle::SP_MessageBoxInformation:
        return QIcon(new Disc(Glyph::Info, colour::LeafDeep, colour::LeafPale));
    case QStyle::SP_MessageBoxQuestion:
        return QIcon(new Disc(Glyph::Question, colour::LeafDeep, colour::LeafPale));
    case QStyle::SP_MessageBoxWarning:
    case QStyle::SP_MessageBoxCritical:
        return QIcon(new Disc(Glyph::Warning, colour::Amber, colour::AmberDisc));
    default:
        return {};
    }
}

} // namespace qinghe
