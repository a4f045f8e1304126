#include "controls/frame.h"

namespace qinghe {

Frame::Frame(QWidget* parent, const QString& name, const QString& caption) : WithClicks(parent, name) {
    setTitle(caption);
}

void Frame::mouseDoubleClickEvent(QMouseEvent* event) {
    // Not a second click: a double click on a cell ends here when the editor over it is disabled.
    m_press.forget();
    event->accept();
}

} // namespace qinghe
