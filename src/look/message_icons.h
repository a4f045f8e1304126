#pragma once

#include "controls/style_roles.h"

#include <QIcon>

namespace qinghe {

/// The icon of a message box: a line icon on a pale disc, drawn at whatever size is asked for. QIcon() for a standard
/// picture that is none of a message box.
QIcon messageIcon(QStyle::StandardPixmap standard);

} // namespace qinghe
