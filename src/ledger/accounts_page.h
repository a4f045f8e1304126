#pragma once

#include "core/grid_page.h"

namespace qinghe {

/// The page of savings accounts, `frame9`: a small book in `zhb` that is kept by hand. No other page feeds it. The
/// balance is worked out while Enter walks along a row, and never by a save or a load.
class AccountsPage : public GridPage {
    Q_OBJECT

public:
    explicit AccountsPage(MainWindow& window);

protected:
    void moved() override;
};

} // namespace qinghe
