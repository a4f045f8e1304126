#pragma once

#include "core/shared.h"

#include <QUrl>

namespace qinghe {

/// The makers' address as the title band shows it.
inline constexpr QStringView WebAddressCaption = u"qinghe.example";

/// The makers' pages lie in a folder of their own beside the program.
inline constexpr QStringView WebBase = u"web/";

QUrl webPage(const Shared& shared, const QString& page);

/// Opens one of these pages in the system's browser; where there is none, in the window that shows the tools. Says so
/// where the page is not there.
void openWebPage(Shared& shared, const QString& page);
/// Whether a link out of the pages may leave the program: a web address, or a letter that takes no file along. What
/// else there is would start other programs, or show other files.
bool mayLeave(const QUrl& address);
/// Opens an address that may leave in the system's browser; where there is none, says it, to be written down.
void openAddress(const Shared& shared, const QUrl& address);

} // namespace qinghe
