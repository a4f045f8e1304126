#pragma once

#include "controls/combo_box.h"
#include "controls/long_text_box.h"
#include "journal/reminders.h"

namespace qinghe {

/// The schedule page, `Frame17`: writes a plan for a day with its hour, minute and music into `rcb`, and lists the
/// plans of today. It tests nothing but that text and date are there; when a plan rings is told in reminders.h.
class SchedulePage : public Page {
    Q_OBJECT

public:
    explicit SchedulePage(MainWindow& window);

    void tabClicked(PageCode) override { Form2_Label23_Click(); }
    void windowLoads() override;
    void rescue(RescuedTexts& texts) const override;
    KeyedButtons keyedButtons() const override { return {Command26, Command28}; }

    void Form2_Label23_Click();
    void Form2_Check1_Click();
    void Form2_Text3_KeyPress(int KeyAscii);
    void Form2_Text4_Click();
    void Form2_Combo1_Click();
    void Form2_Command26_Click();
    void Form2_Command27_Click();
    void Form2_Command28_Click();
    void Form2_Command29_Click();

private:
    void placeControls();
    void nameBoxes();
    void bindEvents();
    void fillLists();
    void openFreshPlan();
    bool refusesGap();
    void writePlan(const DateValue& setAt);

    MainWindow& m_window;
    Shared& m_shared;
    Adodc& Adodc1;
    Reminders m_reminders;
    MMControl& MM1;
    Frame& Frame17;
    Frame* Frame18;           // 提醒设置
    Label* Label3;            // the plan's number, or how many characters were typed
    LongTextBox* Text3;       // the plan
    TextBox* Text4;           // its day
    ComboBox* Combo3;         // hour
    ComboBox* Combo4;         // minute
    ComboBox* Combo1;         // music
    Label* Label22;           // what was chosen
    CheckBox* Check1;         // 登陆定时提醒日程
    CommandButton* Command26; // 添加新日程
    CommandButton* Command27; // 查看今日日程
    CommandButton* Command28; // 保存日程和设置
    CommandButton* Command29; // 确定音乐

    Int16 scheduleNumber;       ///< of the plan, within one visit to the page
    bool scheduleSaved = false; ///< what stands in Text3 is saved or a listing
    QString m_kept;             ///< the text that was saved or listed last
};

} // namespace qinghe
