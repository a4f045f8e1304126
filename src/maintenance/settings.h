#pragma once

#include "core/main_window.h"
#include "maintenance/backup.h"

#include <QMenu>

namespace qinghe {

/// The settings page, `Frame16`: so far the ways to the categories, to pictures, and to backup and restore.
class SettingsPage : public QObject {
    Q_OBJECT

public:
    explicit SettingsPage(MainWindow& window);

private:
    void makePictureMenu();
    void makeFileSettings();
    void Form2_Option14_Click();
    void Form2_Option16_Click();
    void openBackup(BackupWindow::Direction direction);

    Workbench& m_bench;
    Frame* Frame20;           // 系统设置
    CommandButton* Command31; // 收支分类设置
    CommandButton* Command32; // 更换图片
    QMenu* m_pictures;        ///< the windows that store pictures
    Frame* Frame19;           // 文件设置
    OptionButton* Option14;   // 系统数据备份
    OptionButton* Option16;   // 系统数据还原
};

} // namespace qinghe
