#include "controls/grid_rim.h"

#include "controls/style_roles.h"

#include <QEvent>
#include <QPainter>
#include <QStyleOption>

namespace qinghe {

GridRim::GridRim(QWidget* grid) : QWidget(grid) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    grid->installEventFilter(this);
}

bool GridRim::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
        update();
    return false;
}

void GridRim::cover() {
    setGeometry(parentWidget()->rect());
    raise();
}

void GridRim::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    option.state.setFlag(QStyle::State_HasFocus, parentWidget()->hasFocus());
    style()->drawPrimitive(static_cast<QStyle::PrimitiveElement>(PE_GridEdge), &option, &painter, parentWidget());
}

} // namespace qinghe
