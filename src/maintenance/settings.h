#pragma once

#include "core/main_window.h"

namespace qinghe {

/// The settings page, `Frame16`: so far the way to the categories.
class SettingsPage : public QObject {
    Q_OBJECT

public:
    explicit SettingsPage(MainWindow& window);

private:
    Frame* Frame20;           // 系统设置
    CommandButton* Command31; // 收支分类设置
};

} // namespace qinghe
