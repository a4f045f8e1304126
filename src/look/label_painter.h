#pragma once

#include <QString>

class QPainter;
class QStyleOption;

namespace qinghe {

class Label;

/// A caption without the blanks that begin it, and how far to the right of the label's edge they put its middle.
struct PageCaption {
    QString word;
    double centre; ///< pixels from the label's left edge
};
/// Leading blanks of a page label count 120 twips each, and its word's middle stands 240 twips behind them, so that the
/// row of words keeps its pitch whatever the font.
PageCaption pageCaption(const QString& caption);

/// What a label shows, by its role.
void paintWords(const QStyleOption& option, QPainter& painter, const Label& label);

} // namespace qinghe
