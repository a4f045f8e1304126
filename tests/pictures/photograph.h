#pragma once

#include <QByteArray>

namespace pictures {

/// A picture as a family would take for its skin: busy, with bright and dark places beside each other everywhere. JPEG.
QByteArray photograph();

} // namespace pictures
