#include "look/running_text.h"

#include "look/fonts.h"

#include <QColor>
#include <QFontMetricsF>
#include <QPainter>
#include <QTextLayout>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

/// The layout of a text, its lines placed; gives their number.
int layOut(QTextLayout& layout, double width, double pitch, double above) {
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    int count = 0;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine(), ++count) {
        line.setLineWidth(width);
        line.setPosition({0, count * pitch + above});
    }
    layout.endLayout();
    return count;
}

QString withLineSeparators(QString text) {
    text.replace("\r\n"_L1, QString(QChar::LineSeparator));
    text.replace(u'\r', QChar::LineSeparator);
    text.replace(u'\n', QChar::LineSeparator);
    // A break at the very end opens no line of its own.
    while (text.endsWith(QChar::LineSeparator))
        text.chop(1);
    return text;
}

/// The last line that has room, when more would follow.
void paintRest(QPainter& painter, const QTextLayout& layout, int index, const QPointF& origin, double width) {
    const QTextLine line = layout.lineAt(index);
    const QString rest = layout.text().mid(line.textStart()).replace(QChar::LineSeparator, u' ');
    painter.setFont(layout.font());
    painter.drawText(origin + line.position() + QPointF(0, line.ascent()),
                     QFontMetricsF(layout.font()).elidedText(rest, Qt::ElideRight, width));
}

} // namespace

double runningHeight(const QString& text, const QFont& font, double width) {
    QTextLayout layout(withLineSeparators(text), font);
    return layOut(layout, width, linePitch(font), 0) * linePitch(font);
}

void paintRunning(QPainter& painter, const QRectF& room, const QString& text, const QFont& font, const QColor& colour,
                  Qt::Alignment vertical) {
    const double pitch = linePitch(font);
    QTextLayout layout(withLineSeparators(text), font);
    const int lines = layOut(layout, room.width(), pitch, (pitch - QFontMetricsF(font).height()) / 2);
    const int fitting = std::min(lines, static_cast<int>(room.height() / pitch));
    const double top = vertical & Qt::AlignVCenter ? (room.height() - fitting * pitch) / 2 : 0;
    const QPointF origin = room.topLeft() + QPointF(0, qRound(top));
    painter.setPen(colour);
    for (int i = 0; i < fitting; ++i)
        if (i == fitting - 1 && lines > fitting)
            paintRest(painter, layout, i, origin, room.width());
        else
            layout.lineAt(i).draw(&painter, origin);
}

} // namespace qinghe
