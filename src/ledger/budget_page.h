#pragma once

#include "core/grid_page.h"

namespace qinghe {

/// The budget page, `Frame8`: a plain list of planned spending, kept in `ysb`. It compares nothing with what was really
/// spent.
class BudgetPage : public GridPage {
    Q_OBJECT

public:
    explicit BudgetPage(MainWindow& window);
};

} // namespace qinghe
