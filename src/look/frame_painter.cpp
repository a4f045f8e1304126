#include "look/frame_painter.h"

#include "controls/controls.h"
#include "controls/form.h"
#include "look/colours.h"
#include "look/drawing.h"
#include "look/fonts.h"
#include "look/ground_painter.h"

#include <QFontInfo>
#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOption>

#include <algorithm>

namespace qinghe {
namespace {

constexpr double PagesTopTwips = 1680, PagesRightTwips = 11775;
constexpr int TagHeight = 16, TagPadding = 7;

bool isPage(Role role) {
    return role == Role::PageFrame;
}

QFont tagFont(Role role) {
    return sans(type::Small, isPage(role));
}

/// White that lets the picture through, most at the foot, where the grass stands.
QBrush pageFill(const QRectF& panel, bool dark) {
    if (dark)
        return colour::faded(colour::White, 93);
    const double thinning = std::clamp(1 - 42 / std::max(1.0, panel.height()), 0.0, 1.0);
    QLinearGradient white(panel.topLeft(), panel.bottomLeft());
    white.setColorAt(0, colour::faded(colour::White, 91));
    white.setColorAt(thinning, colour::faded(colour::White, 89));
    white.setColorAt(thinning + (1 - thinning) * 0.8, colour::faded(colour::White, 77));
    white.setColorAt(1, colour::faded(colour::White, 70));
    return white;
}

void paintBody(QPainter& painter, const QRect& panel, Role role, bool dark) {
    if (isPage(role))
        paintPanel(painter, panel, 7, pageFill(panel, dark), colour::PanelLine);
    else if (role == Role::StripFrame)
        paintPanel(painter, panel, 5, colour::Strip, colour::WellEdge);
    else
        paintPanel(painter, panel, 5, colour::faded(colour::White, 75), colour::PanelLine);
}

/// A tag has round lower corners and hangs from the edge.
void paintTag(QPainter& painter, const QRect& tag, const QString& title, Role role) {
    const bool page = isPage(role);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRect(tag, Qt::IntersectClip);
    painter.setPen(Qt::NoPen);
    painter.setBrush(page ? colour::LeafDeep : colour::LeafTag);
    painter.drawRoundedRect(QRectF(tag).adjusted(0, -8, 0, 0), 4, 4);
    painter.restore();
    // Set by the characters' own box, 38 % of which lie below its middle: the lines of some fonts are higher than a
    // tag.
    const QFont font = tagFont(role);
    const double baseline = tag.top() + tag.height() / 2.0 + 0.38 * QFontInfo(font).pixelSize();
    painter.setFont(font);
    painter.setPen(page ? colour::White : colour::LeafDark);
    painter.drawText(QPointF(tag.left() + TagPadding, qRound(baseline)), title);
}

} // namespace

QRect panelOf(const Frame& frame) {
    const QRect whole = frame.rect();
    if (frame.role() == Role::StripFrame)
        return whole.adjusted(0, 2, 0, -4);
    if (!isPage(frame.role()))
        return whole;
    const QPoint origin = frame.mapTo(frame.window(), QPoint());
    QRect room(0, pixelEdge(PagesTopTwips), pixelEdge(PagesRightTwips), frame.window()->height());
    return whole.intersected(room.translated(-origin));
}

QRect tagOf(const Frame& frame) {
    if (frame.title().isEmpty())
        return {};
    const QRect panel = panelOf(frame);
    const int width = QFontMetrics(tagFont(frame.role())).horizontalAdvance(frame.title()) + 2 * TagPadding;
    // A strip is narrow: its first words stand close to the tag.
    const int left = isPage(frame.role()) ? 12 : frame.role() == Role::StripFrame ? 2 : 10;
    return {panel.left() + left, panel.top(), width, TagHeight};
}

void paintFrame(const QStyleOption& option, QPainter& painter, const QWidget* widget) {
    const auto* frame = qobject_cast<const Frame*>(widget);
    if (!frame)
        return paintBody(painter, option.rect, Role::InnerFrame, false);
    if (frame->role() == Role::BareFrame)
        return;
    paintBody(painter, panelOf(*frame), frame->role(), onDarkPicture(*frame));
    if (!frame->title().isEmpty())
        paintTag(painter, tagOf(*frame), frame->title(), frame->role());
}

} // namespace qinghe
