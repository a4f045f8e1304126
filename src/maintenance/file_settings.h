#pragma once

#include "core/main_window.h"
#include "maintenance/backup_window.h"

namespace qinghe {

/// What the settings page does with the data as a whole, `Frame19`: backup and restore, and three boxes that purge,
/// wipe and initialise. A box acts when it becomes ticked; unticking the last two asks and does nothing.
class FileSettings : public QObject {
    Q_OBJECT

public:
    FileSettings(MainWindow& window, Frame& page);

    void Form2_Option14_Click();
    void Form2_Option16_Click();
    void Form2_Check2_Click();
    void Form2_Check3_Click();
    void Form2_Check4_Click();

private:
    void placeControls();
    void wipeTexts();
    void openBackup(BackupWindow::Direction direction);

    Shared& m_shared;
    Adodc& Adodc1;
    Frame* Frame19;         // 文件设置
    OptionButton* Option14; // 系统数据备份
    OptionButton* Option16; // 系统数据还原
    Label* m_caution;       ///< the ground of what cannot be undone
    Label* m_safety;        ///< the way back from it
    CheckBox* Check3;       // 选择删除记录数据...
    CheckBox* Check2;       // 格式化日志
    CheckBox* Check4;       // 初始化系统数据
};

} // namespace qinghe
