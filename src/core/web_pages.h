#pragma once

#include "core/shared.h"

#include <QUrl>

namespace qinghe {

/// The makers' address as the title band shows it.
inline constexpr QStringView WebAddressCaption = u"qinghe.example";

/// The makers' pages lie in a folder of their own beside the program.
inline constexpr QStringView WebBase = u"web/";

QUrl webPage(const Shared& shared, const QString& page);

} // namespace qinghe
