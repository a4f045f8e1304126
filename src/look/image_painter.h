#pragma once

class QPainter;
class QStyleOption;

namespace qinghe {

class Image;

/// An icon, an icon on a disc, or a picture that fills its control.
void paintImage(const QStyleOption& option, QPainter& painter, const Image& image);

} // namespace qinghe
