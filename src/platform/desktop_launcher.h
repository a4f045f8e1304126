#pragma once

#include "platform/services.h"

namespace qinghe {

/// The desktop's browser.
class DesktopLauncher : public Launcher {
public:
    bool explore(const QUrl& page) override;
};

/// Whether a browser with windows is installed. What opens files for a desktop says so of every page, also where no
/// browser stands behind it.
bool hasBrowser();

} // namespace qinghe
