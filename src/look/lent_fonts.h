#pragma once

#include <QString>

namespace qinghe {

/// Lets the program use the fonts in a folder where the machine itself has no font for Chinese. Asks the machine only
/// if there is such a folder. To be called before the first text.
void lendChineseFonts(const QString& folder);

} // namespace qinghe
