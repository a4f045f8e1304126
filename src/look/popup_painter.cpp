#include "look/popup_painter.h"

#include "look/colours.h"
#include "look/drawing.h"
#include "look/glyphs.h"

#include <QFontMetrics>
#include <QPainter>
#include <QStyleOption>

namespace qinghe {
namespace {

constexpr int LineHeight = 26, Side = 12, Head = 22, SeparatorHeight = 7;

bool isSeparator(const QStyleOptionMenuItem& option) {
    return option.menuItemType == QStyleOptionMenuItem::Separator;
}

/// A menu's text without the mark of its short cut.
QString wordsOf(const QStyleOptionMenuItem& option) {
    QString words = option.text.section(u'\t', 0, 0);
    words.remove(u'&');
    return words;
}

QString keysOf(const QStyleOptionMenuItem& option) {
    return option.text.section(u'\t', 1, 1);
}

} // namespace

void paintListLine(const QStyleOptionViewItem& option, QPainter& painter) {
    const bool chosen = option.state & (QStyle::State_Selected | QStyle::State_MouseOver);
    painter.fillRect(option.rect, chosen ? colour::LeafSel : colour::White);
    paintLine(painter, option.rect.adjusted(6, 0, -4, 0), Qt::AlignLeft, option.text, option.font, colour::Ink);
}

void paintMenuLine(const QStyleOptionMenuItem& option, QPainter& painter) {
    const QRect line = option.rect;
    if (isSeparator(option))
        return paintRule(painter, line.left() + 6, line.right() - 5, line.center().y(), colour::Line);
    const bool enabled = option.state & QStyle::State_Enabled;
    if (enabled && option.state & QStyle::State_Selected)
        paintPanel(painter, line.adjusted(3, 1, -3, -1), 3, colour::LeafSel, {}, 0);
    const QColor ink = enabled ? colour::Ink : colour::Off;
    if (option.checkType != QStyleOptionMenuItem::NotCheckable && option.checked)
        paintGlyph(painter, Glyph::Accept, QRectF(line.left() + 5, line.center().y() - 6, 13, 13), colour::LeafDeep);
    paintLine(painter, line.adjusted(Head, 0, -Side, 0), Qt::AlignLeft, wordsOf(option), option.font, ink);
    paintLine(painter, line.adjusted(Side, 0, -Side, 0), Qt::AlignRight, keysOf(option), option.font, ink);
}

QSize menuLineSize(const QStyleOptionMenuItem& option) {
    if (isSeparator(option))
        return {2 * Side, SeparatorHeight};
    const QFontMetrics metrics(option.font);
    const QString keys = keysOf(option);
    const int width =
        metrics.horizontalAdvance(wordsOf(option)) + (keys.isEmpty() ? 0 : metrics.horizontalAdvance(keys) + 2 * Side);
    return {width + Head + 2 * Side, LineHeight};
}

void paintPopup(const QStyleOption& option, QPainter& painter) {
    paintPanel(painter, option.rect, 0, colour::White, colour::Ctl);
}

} // namespace qinghe
