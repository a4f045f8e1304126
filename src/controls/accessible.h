#pragma once

#include <QAccessible>

class QWidget;

/// How the controls tell what they are to a screen reader. Qt asks for this only while one is there; until then it
/// costs nothing but the names, which are kept with the widgets (QWidget::accessibleName).
///
/// A control is called by that name, where one was given, else by its own words; a tool tip is its description. What
/// only decorates is not told. Qt's own ways serve buttons, boxes and bars; labels, lists, grids and containers have
/// their own here, since they are more, or other, than what Qt makes of them.
namespace qinghe::accessible {

/// From here on the controls are told in their own ways; harmless when it was done before.
void install();

/// The words that a container, or what it holds, is known by: its own name, else the frame's caption.
QString nameOf(const QWidget& widget);

/// Tells what happens to a widget, or to a part of it that is no widget itself; nobody is told while nobody listens.
void tell(QWidget& widget, QAccessible::Event what, int part = -1);

/// Hears in the screen reader's stead what is told from then on; for tests. nullptr: nobody does.
using Ear = void (*)(QAccessibleEvent& event);
void setEar(Ear ear);

} // namespace qinghe::accessible
