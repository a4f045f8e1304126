#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

namespace qinghe {

/// Reads a picture by its content, whatever a name says, with its orientation: JPEG, PNG, BMP and GIF alone. A larger
/// picture than `fill` (pixels of the desktop's own unit) is read no larger than the densest screen shows it there.
/// What would take too long or too much memory is told by its head and not read: more than 100 megapixels, or the work
/// of as many in a JPEG of many scans. Throws RuntimeError (InvalidPicture) with the name in its text.
QImage pictureFrom(const QByteArray& bytes, const QSize& fill, const QString& name);

} // namespace qinghe
