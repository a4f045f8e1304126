#include "controls/scroll_pane.h"

#include <QScrollBar>

namespace qinghe {

ScrollPane::ScrollPane(QWidget* parent) : QScrollArea(parent), Placed(this) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    viewport()->setAutoFillBackground(false);
}

void ScrollPane::hold(QWidget* control) {
    setWidget(control);
    control->setAutoFillBackground(false); // what lies behind the pane shows through
}

double ScrollPane::barWidth() const {
    return verticalScrollBar()->sizeHint().width() * TwipsPerPixel;
}

} // namespace qinghe
