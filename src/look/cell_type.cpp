#include "look/cell_type.h"

#include "look/fonts.h"

#include <QFontMetricsF>

#include <algorithm>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr double SmallestPoints = 5.5, SmallestEasyPoints = 8, PointStep = 0.25;
constexpr int Narrowest = 80, NarrowingStep = 5; // percent of the usual width

bool isFigure(QChar character) {
    return character.isDigit() || QStringView(u" .,+-:/年月日元E").contains(character);
}

bool isFigures(const QString& text) {
    return std::ranges::any_of(text, [](QChar c) { return c.isDigit(); }) && std::ranges::all_of(text, isFigure);
}

/// With the pixel that a text box wants beside its text. A text of more characters than pixels is not measured: it may
/// be as long as a book.
bool fits(const QString& text, const QFont& font, int room) {
    return text.size() <= room && qRound(QFontMetricsF(font).horizontalAdvance(text)) + 1 <= room;
}

} // namespace

CellType cellType(const QString& text, double points, int room) {
    const QFont usual = sans(points);
    if (fits(text, usual, room))
        return {usual};
    if (!isFigures(text))
        return {usual, CellFit::Cut};
    QFont font = usual;
    for (int width = 100 - NarrowingStep; width >= Narrowest; width -= NarrowingStep) {
        font.setStretch(width);
        if (fits(text, font, room))
            return {font};
    }
    for (double size = points - PointStep; size >= SmallestPoints; size -= PointStep) {
        font = sans(size);
        font.setStretch(Narrowest);
        if (fits(text, font, room))
            return {font, size < SmallestEasyPoints ? CellFit::Tiny : CellFit::Whole};
    }
    return {usual, CellFit::Cut};
}

} // namespace qinghe
