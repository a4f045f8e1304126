#pragma once

#include <QPixmap>
#include <QSize>

class QImage;

namespace qinghe {

/// Whether a picture is too dark to write on: any block of it, scaled to 20 x 14, is darker than a grey of 140, or dark
/// things too fine for that, such as twigs in snow, are strewn over it. A user's own photo then gets a denser veil and
/// flatter panels.
bool isDark(const QImage& picture);

/// The picture stretched to a size in desktop pixels, sharp on a screen of that device pixel ratio. What is painted
/// again and again is kept, for the last few pictures only.
QPixmap scaledPicture(const QImage& picture, const QSize& size, double ratio);

} // namespace qinghe
