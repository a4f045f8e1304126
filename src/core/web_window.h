#pragma once

#include "controls/web_browser.h"
#include "core/shared.h"

namespace qinghe {

/// `Form7`: shows the makers' page of tools beside the main window, and on a machine without a browser their other
/// pages.
class WebWindow : public Form {
    Q_OBJECT

public:
    explicit WebWindow(Shared& shared);

    void load() override;

    /// Comes up with the tools, or as its user left it there.
    void showTools();
    /// Comes up with this page, under the page's own title, in a browser's stead.
    void showInstead(const QUrl& page);

protected:
    void applyPlace() override;

private:
    void showBesideMain();

    Shared& m_shared;
    WebBrowser* Web1;
};

} // namespace qinghe
