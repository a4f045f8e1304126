#pragma once

#include "core/shared.h"
#include "tools/month_grid.h"

#include <array>

namespace qinghe {

/// `Form1`: a month that hangs under a date field. A double click on a day puts its text into the field that asked and
/// into the current cell of the grid behind it. It leaves the keyboard to the field, so that a date can be picked or
/// typed; the field hands keys on when it is asked to (PickerKeys). They walk over the days of the month and on into
/// the next one; Enter takes a day as the double click does, Esc closes the picker.
class DatePicker : public FieldTool {
    Q_OBJECT

public:
    explicit DatePicker(Shared& shared);

    void serve(const FieldTarget& field) override;
    void unloaded() override;
    void setTakesKeys(bool takes) override;
    bool takeKey(const QKeyEvent& key) override;

    void Form1_Command1_Click(); ///< one month forward
    void Form1_Command2_Click(); ///< one month back
    void Form1_Label3_Click(int index);
    void Form1_Label3_DblClick(int index);

private:
    void showMonth();
    void walkTo(int day);
    void walkMonths(int months);
    bool walk(const QKeyEvent& key);

    Shared& m_shared;
    MonthGrid m_month;
    int m_day = 0;           ///< of the month on show, that the keys are at; 0 while the field keeps them
    CommandButton* Command1; // forward
    CommandButton* Command2; // back
    Label* Label1;           // year and month
    Label* Label2;           // days of the week
    std::array<Label*, MonthGrid::CellCount> Label3;
};

} // namespace qinghe
