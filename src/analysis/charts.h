#pragma once

#include "core/main_window.h"

namespace qinghe {

/// The page of the charts, `Frame15`.
class ChartsPage : public QObject {
    Q_OBJECT

public:
    explicit ChartsPage(MainWindow& window);
};

} // namespace qinghe
