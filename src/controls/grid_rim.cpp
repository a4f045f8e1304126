#include "controls/grid_rim.h"

#include "controls/style_roles.h"

#include <QPainter>
#include <QStyleOption>

namespace qinghe {

void GridRim::cover() {
    setGeometry(parentWidget()->rect());
    raise();
}

void GridRim::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    style()->drawPrimitive(static_cast<QStyle::PrimitiveElement>(PE_GridEdge), &option, &painter, parentWidget());
}

} // namespace qinghe
