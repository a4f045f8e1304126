#pragma once

#include "controls/web_browser.h"
#include "core/shared.h"

namespace qinghe {

/// `Form7`: shows the makers' page of tools beside the main window.
class WebWindow : public Form {
    Q_OBJECT

public:
    explicit WebWindow(Shared& shared);

    void load() override;

protected:
    void applyPlace() override;

private:
    Shared& m_shared;
    WebBrowser* Web1;
};

} // namespace qinghe
