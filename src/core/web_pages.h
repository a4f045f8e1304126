#pragma once

#include "core/workbench.h"

#include <QUrl>

namespace qinghe {

/// The makers' address as the title band shows it.
inline const QString WebAddressCaption = QStringLiteral("qinghe.example");

/// The makers' pages lie in a folder of their own beside the program.
inline const QString WebBase = QStringLiteral("web/");

QUrl webPage(const Workbench& bench, const QString& page);

} // namespace qinghe
