#pragma once

#include <QColor>
#include <QImage>
#include <QRect>
#include <QWidget>

#include <functional>
#include <gtest/gtest.h>

/// Looks at what the style really paints.
namespace qinghe::testing {

/// The widget as it is seen on a screen of this device pixel ratio, on its parents' ground when it has one.
QImage rendered(QWidget& widget, double ratio = 1);

/// Gives a widget a plain ground and leaves all other colours as they are.
void setGround(QWidget& widget, const QColor& colour);

/// What a painter draws on a clear picture.
QImage drawn(const QSize& size, double ratio, const std::function<void(QPainter&)>& draw);

/// The smallest rectangle, in device pixels, round all pixels that `counts` accepts.
QRect extent(const QImage& image, const std::function<bool(const QColor&)>& counts);

bool isNear(const QColor& one, const QColor& other, int tolerance = 3);
bool isDarkInk(const QColor& colour);

/// The device pixel at a place in desktop pixels.
QColor pixelAt(const QImage& image, double x, double y);

} // namespace qinghe::testing
