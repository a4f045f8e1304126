#pragma once

#include "maintenance/file_settings.h"
#include "maintenance/skin_choice.h"

#include <QMenu>

namespace qinghe {

struct PictureTarget;

/// The settings page, `Frame16`. Every box and option acts at once; nothing is to be confirmed. Here stand the options
/// of the system (`Frame20`) and the ways to the categories and to the windows that store pictures; what belongs to a
/// skin stands in SkinChoice, what belongs to the data in FileSettings.
class SettingsPage : public Page {
    Q_OBJECT

public:
    explicit SettingsPage(MainWindow& window);

    void tabClicked(PageCode) override { Form2_Label7_Click(); }
    void windowLoads() override;

    void Form2_Label7_Click();
    void Form2_Check7_Click();
    void Form2_Check8_Click();

private:
    void placeBoxes();
    void makePictureMenu();
    void turnPicture(const PictureTarget& target);
    void bindEvents();

    MainWindow& m_window;
    Shared& m_shared;
    Adodc& Adodc1;
    Frame* Frame20;           // 系统设置
    CheckBox* Check8;         // 登陆自动定时提醒今日日程
    CheckBox* Check7;         // 最小化到系统托盘
    CheckBox* Check5;         // 开机启动: a reserved place, hidden for good
    CommandButton* Command31; // 收支分类设置
    CommandButton* Command32; // 更换图片
    QMenu* m_pictures;        ///< the windows that store pictures
    SkinChoice m_skins;
    FileSettings m_files;
};

} // namespace qinghe
