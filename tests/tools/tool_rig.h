#pragma once

#include "qt_printing.h"
#include "support/program_rig.h"

#include <gtest/gtest.h>

namespace qinghe::testing {

/// A program on whose income page, with one stored row, the date picker and the calculator can be opened.
class ToolTest : public ::testing::Test {
protected:
    /// Signs in and brings up the page; the day of today may be set on the rig's clock before.
    void openPage() {
        rig.signIn();
        rig.sql(QStringLiteral("insert into srb values('1','2024-05-03','工资','我',12.5,'现金','',1)"));
        rig.click(rig.onMain<Label>(QStringLiteral("Label2(0)")));
        rig.settle();
    }
    Form& openDatePicker() {
        if (!rig.program)
            openPage();
        rig.clickCell(ms2(), 1, 2);
        return *rig.loaded(QStringLiteral("Form1"));
    }
    Form& openCalculator() {
        if (!rig.program)
            openPage();
        rig.clickCell(ms2(), 1, 5);
        return *rig.loaded(QStringLiteral("Form9"));
    }

    MSFlexGrid& ms2() { return rig.onMain<MSFlexGrid>(QStringLiteral("ms2")); }
    TextBox& tx2() { return rig.onMain<TextBox>(QStringLiteral("tx2")); }
    Shared& shared() { return rig.program->shared(); }
    bool isOpen(const QString& tool) {
        const Form* form = rig.loaded(tool);
        return form && form->isVisible();
    }

    ProgramRig rig;
};

} // namespace qinghe::testing
