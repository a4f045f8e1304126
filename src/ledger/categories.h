#pragma once

#include "core/main_window.h"

namespace qinghe {

/// The page of the categories, `Frame3`.
class CategoriesPage : public QObject {
    Q_OBJECT

public:
    explicit CategoriesPage(MainWindow& window);
};

} // namespace qinghe
