#pragma once

#include <QByteArray>

namespace pictures {

/// A picture as a family would take for its skin: busy, with bright and dark places beside each other everywhere. JPEG.
QByteArray photograph();
/// One that is bright on the whole, with dark twigs all over: no part of it is dark, and no word can be read on it.
QByteArray twigs();

} // namespace pictures
