#pragma once

#include "core/grid_page.h"

namespace qinghe {

/// The page of users, `Frame7`: the people who may sign in, with their passwords in clear, kept in `yhb`. Everybody who
/// is signed in may change or delete all of them, himself too. The name that the sign-in remembers is not touched: it
/// may go on naming somebody who has been deleted.
class UsersPage : public GridPage {
    Q_OBJECT

public:
    explicit UsersPage(MainWindow& window);
};

} // namespace qinghe
