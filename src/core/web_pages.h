#pragma once

#include "core/shared.h"

#include <QUrl>

namespace qinghe {

/// The makers' address as the title band shows it.
inline const QString WebAddressCaption = QStringLiteral("qinghe.example");

/// The makers' pages lie in a folder of their own beside the program.
inline const QString WebBase = QStringLiteral("web/");

QUrl webPage(const Shared& shared, const QString& page);

} // namespace qinghe
