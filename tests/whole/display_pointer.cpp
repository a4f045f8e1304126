#include "display_pointer.h"

#include <QProcess>
#include <QStringList>

#include <stdexcept>

namespace whole::display_pointer {

namespace {

void perform(const QStringList& gesture) {
    if (QProcess::execute(QStringLiteral("xdotool"), gesture) != 0)
        throw std::runtime_error("the pointer of the display cannot be moved");
}

QStringList moveTo(QPoint place) {
    return {"mousemove", QString::number(place.x()), QString::number(place.y())};
}

} // namespace

void click(QPoint place, Button button) {
    perform(moveTo(place) << "click" << QString::number(static_cast<int>(button)));
}

void doubleClick(QPoint place) {
    perform(moveTo(place) << "click"
                          << "--repeat"
                          << "2"
                          << "--delay"
                          << "50"
                          << "1");
}

void drag(QPoint from, QPoint step, int steps) {
    QStringList gesture = moveTo(from) << "mousedown"
                                       << "1";
    for (int i = 1; i <= steps; ++i)
        gesture += moveTo(from + i * step);
    perform(gesture << "mouseup"
                    << "1");
}

} // namespace whole::display_pointer
