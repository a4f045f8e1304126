#pragma once

#include "support/program_test.h"

namespace qinghe::testing {

/// A program on whose income page, with one stored row, the date picker and the calculator can be opened.
class ToolTest : public ProgramTest {
protected:
    /// Signs in and brings up the page; the day of today may be set on the rig's clock before.
    void openPage() {
        rig.signIn();
        rig.sql(u"insert into srb values('1','2024-05-03','工资','我',12.5,'现金','',1)"_s);
        press(rig.at(pages::Income));
    }
    Form& openDatePicker() {
        if (!rig.program)
            openPage();
        rig.clickCell(ms2(), 1, 2);
        return *rig.loaded(forms::DatePicker);
    }
    Form& openCalculator() {
        if (!rig.program)
            openPage();
        rig.clickCell(ms2(), 1, 5);
        return *rig.loaded(forms::Calculator);
    }

    MSFlexGrid& ms2() { return rig.at(income::Grid); }
    TextBox& tx2() { return rig.at(income::Box); }
    bool isOpen(const FormName& tool) {
        const Form* form = rig.loaded(tool);
        return form && form->isVisible();
    }
};

} // namespace qinghe::testing
