#pragma once

#include "controls/combo_box.h"
#include "core/main_window.h"

namespace qinghe {

/// The choice of a skin on the settings page: a box that opens the list of skins on offer, the list, which puts the
/// chosen one on the main window as a preview, and the button that keeps it for the starts to come.
class SkinChoice : public QObject {
    Q_OBJECT

public:
    SkinChoice(MainWindow& window, Frame& place);

    /// List and button out of sight; what the list holds stays.
    void hide();

    void Form2_Check10_Click();
    void Form2_Combo2_Click();
    void Form2_Command30_Click();

    CheckBox* Check10;        // 更换记账本皮肤
    ComboBox* Combo2;         // skins on offer
    CommandButton* Command30; // 确定

private:
    void listSkins();
    void closeList();

    MainWindow& m_window;
    Shared& m_shared;
    Adodc& Adodc1;

    float skinSize = 0; ///< of the skin last chosen in the list
    QByteArray skinBytes;
};

} // namespace qinghe
