#pragma once

#include <QPainterPath>

#include <string_view>

namespace qinghe {

/// The path that a short text draws: a letter and its numbers, all places absolute.
///   M x y  move          L x y  line           H x / V y  level or upright line    Z  close
///   C x1 y1 x2 y2 x y    curve                 Q x1 y1 x y  curve
///   O x y r  circle      E x y rx ry  ellipse  R x y w h r  rectangle with round corners
/// Numbers are parted by blanks or commas. Only for our own constant texts: a letter outside the list ends the path.
QPainterPath pathOf(std::string_view text);

} // namespace qinghe
