#pragma once

#include "core/shared.h"

#include <array>

namespace qinghe {

/// `Form3`: removes old rows for good. Each kind of record that is ticked loses its rows of the chosen day and of all
/// days before it, one kind after the other; each is kept before its message, so that a failure leaves the kinds done
/// so far removed and the others whole. Accounts have no date and go altogether. Nothing is worked out anew, neither
/// balances nor what the main window shows.
class PurgeWindow : public Form {
    Q_OBJECT

public:
    explicit PurgeWindow(Shared& shared);

    void load() override;
    void unloaded() override;

    Event<> Gone; ///< the window goes

    void Form3_Text1_Click();
    void Form3_Check1_Click();
    void Form3_Check2_Click();
    void Form3_Command1_Click();

private:
    struct Records; ///< one kind
    static const std::array<Records, 7> Kinds;

    void makeBoxes();
    void makeDate();
    void makeHelp();
    void purge(const Records& kind);
    void keepWayBack();
    void tell(QStringView text);
    void setDateShown(bool shown);

    Shared& m_shared;
    Adodc* Adodc1;
    Frame* Frame1;                     // （删除记录）项目
    std::array<CheckBox*, 7> m_checks; // Check1(0) to Check1(5) and Check2, in the order of the kinds
    Label* Label2;                     // 删除日期在
    TextBox* Text1;                    // the date
    Label* Label3;                     // 以前的记录
    Frame* Frame2;                     // 操作说明
    CommandButton* Command1;           // 开始删除
    Label* m_safety;                   ///< the way back
    bool m_hasCopy = false;            ///< in this run
};

} // namespace qinghe
