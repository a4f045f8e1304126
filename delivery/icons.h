#pragma once

#include <QByteArray>
#include <QString>

namespace qinghe {

/// The program's icon as a PNG, so many pixels wide and high.
QByteArray iconPng(int size);

/// Puts the icon in the sizes of desktops into folders as an icon theme has them (`16x16/apps`). Throws RuntimeError
/// (PathFileAccess).
void deliverIcons(const QString& folder);

} // namespace qinghe
