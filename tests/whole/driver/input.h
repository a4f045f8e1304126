#pragma once

#include <QPoint>
#include <QString>
#include <QWidget>

#include <functional>
#include <vector>

/// A user's hands. Each function gives the steps of one gesture; every step is to be done from the event loop, so that
/// what follows a press reaches whatever the press has opened, as it does on a real desktop.
namespace driver {

using Steps = std::vector<std::function<void()>>;

/// Moves the pointer there, presses and releases the left button `times` times. Throws Refusal when the press would not
/// reach the widget.
Steps click(QWidget& widget, const QPoint& point, int times);
Steps move(QWidget& widget, const QPoint& point);
/// Presses at one point of the widget, moves the pointer over the screen by `way`, releases.
Steps drag(QWidget& widget, const QPoint& point, const QPoint& way);

/// One key in the window that has the keyboard, such as Return, Escape, Tab, Backspace.
Steps key(const QString& name);
/// A key without others that went down some time ago, in any window, and is still held: it comes again a few times.
Steps hold(const QString& name);
/// Plain characters as keys, others as an input method commits them.
Steps type(const QString& text);

} // namespace driver
