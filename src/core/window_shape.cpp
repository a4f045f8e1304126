#include "core/window_shape.h"

namespace qinghe {

QPolygon mainWindowPolygon(int w, int h) {
    return QPolygon({{0, 5},
                     {1, 4},
                     {1, 3},
                     {2, 2},
                     {3, 1},
                     {4, 1},
                     {5, 0},
                     {w - 5, 0},
                     {w - 4, 1},
                     {w - 3, 1},
                     {w - 2, 2},
                     {w - 1, 3},
                     {w - 1, 4},
                     {w, 5},
                     {w, h},
                     {0, h}});
}

void shapeMainWindow(Form& form) {
    form.setShape(mainWindowPolygon(pixelEdge(form.Width()), pixelEdge(form.Height())));
}

} // namespace qinghe
