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

/// The name of a box that is called after its caption beside it: without blanks and the colon behind.
QString namedAfter(QStringView caption);

/// The words that a container, or what it holds, is known by: its own name, else the frame's caption.
QString nameOf(const QWidget& widget);

/// The keyboard is, for who listens, at a part of this widget that is no widget itself.
void tellFocusAt(QWidget& widget, int child);

} // namespace qinghe::accessible
