#pragma once

#include "core/shared.h"

#include <QUrl>

namespace qinghe {

/// The makers' address as the title band shows it.
inline constexpr QStringView WebAddressCaption = u"qinghe.example";

/// The makers' pages lie in a folder of their own beside the program.
inline constexpr QStringView WebBase = u"web/";

QUrl webPage(const Shared& shared, const QString& page);

/// Opens one of these pages in the system's browser; where there is none, in the window that shows the tools.
void openWebPage(Shared& shared, const QString& page);
/// Opens an address in the system's browser; where there is none, says it, to be written down.
void openAddress(const Shared& shared, const QUrl& address);

} // namespace qinghe
