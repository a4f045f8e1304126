#pragma once

#include <QColor>
#include <QPointF>
#include <QStringView>

class QPainter;

namespace qinghe {

/// How words stand in a picture. They are drawn as outlines, so they have the same size at any density.
struct Lettering {
    enum Family { Sans, Serif };
    Family family; ///< the serif is bold by itself
    double pixels; ///< of an em
    bool bold;
    QColor colour;
};

/// Both give `middle` as the height of the middle of a Chinese character.
void paintFrom(QPainter& painter, const Lettering& lettering, QPointF leftMiddle, QStringView words);
void paintCentred(QPainter& painter, const Lettering& lettering, QPointF middle, QStringView words);

} // namespace qinghe
