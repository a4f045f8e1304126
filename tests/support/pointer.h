#pragma once

#include <QTest>
#include <QWheelEvent>
#include <QWidget>
#include <QWindow>

/// The mouse as the window system brings it: into the window, where Qt finds the control under the pointer by itself.
namespace qinghe::testing::pointer {

inline QPoint inWindow(const QWidget& widget, QPoint at) {
    return widget.mapTo(widget.window(), at);
}

inline void press(QWidget& widget, QPoint at) {
    QTest::mousePress(widget.window()->windowHandle(), Qt::LeftButton, {}, inWindow(widget, at));
}
inline void press(QWidget& widget) {
    press(widget, widget.rect().center());
}

inline void move(QWidget& widget, QPoint at) {
    QTest::mouseMove(widget.window()->windowHandle(), inWindow(widget, at));
}
inline void move(QWidget& widget) {
    move(widget, widget.rect().center());
}

/// A move that was under way while the window moved: told at a place inside the window that is no longer the pointer's.
inline void moveUnderWay(QWidget& window, QPoint told, QPoint onScreen) {
    static int now = 1 << 20; // ms, the pointer's own clock
    qt_handleMouseEvent(window.windowHandle(), told, onScreen, Qt::LeftButton, Qt::NoButton, QEvent::MouseMove, {},
                        ++now);
    QCoreApplication::processEvents();
}

inline void release(QWidget& widget, QPoint at) {
    QTest::mouseRelease(widget.window()->windowHandle(), Qt::LeftButton, {}, inWindow(widget, at));
}
inline void release(QWidget& widget) {
    release(widget, widget.rect().center());
}

inline void click(QWidget& widget, QPoint at) {
    press(widget, at);
    release(widget, at);
}
inline void click(QWidget& widget) {
    click(widget, widget.rect().center());
}

inline void doubleClick(QWidget& widget, QPoint at) {
    QTest::mouseDClick(widget.window()->windowHandle(), Qt::LeftButton, {}, inWindow(widget, at));
}
inline void doubleClick(QWidget& widget) {
    doubleClick(widget, widget.rect().center());
}

/// Turns the wheel towards the user; negative notches away.
inline void wheel(QWidget& widget, QPoint at, int notches = 1) {
    const QPoint place = inWindow(widget, at);
    QWheelEvent event(place, widget.window()->mapToGlobal(place), {}, QPoint(0, -120 * notches), Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event); // else it stays with the widget under the pointer
    qApp->notify(widget.window()->windowHandle(), &event);
}

} // namespace qinghe::testing::pointer
