#pragma once

#include "core/workbench.h"
#include "platform/web_browser.h"

namespace qinghe {

/// `Form7`: shows the makers' page of tools beside the main window.
class WebWindow : public Form {
    Q_OBJECT

public:
    explicit WebWindow(Workbench& bench);

    void load() override;

protected:
    void applyPlace() override;

private:
    Workbench& m_bench;
    WebBrowser* Web1;
};

} // namespace qinghe
