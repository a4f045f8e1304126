#pragma once

#include "journal/reminders.h"
#include "journal/schedule_page.h"
#include "qt_printing.h"
#include "support/program_rig.h"

#include <gtest/gtest.h>

namespace qinghe::testing {

/// A program whose schedule page is open, on the evening of 2024-6-18 at 20:36:08.
class ScheduleTest : public ::testing::Test {
protected:
    ScheduleTest() {
        rig.signIn();
        open();
    }

    void open() { rig.click(rig.onMain<Label>(QStringLiteral("Label23"))); }
    LongTextBox& text() { return rig.onMain<LongTextBox>(QStringLiteral("Text3")); }
    TextBox& date() { return rig.onMain<TextBox>(QStringLiteral("Text4")); }
    ComboBox& hour() { return rig.onMain<ComboBox>(QStringLiteral("Combo3")); }
    ComboBox& minute() { return rig.onMain<ComboBox>(QStringLiteral("Combo4")); }
    ComboBox& music() { return rig.onMain<ComboBox>(QStringLiteral("Combo1")); }
    CommandButton& fresh() { return rig.onMain<CommandButton>(QStringLiteral("Command26")); }
    CommandButton& today() { return rig.onMain<CommandButton>(QStringLiteral("Command27")); }
    CommandButton& save() { return rig.onMain<CommandButton>(QStringLiteral("Command28")); }
    QString counter() { return rig.onMain<Label>(QStringLiteral("Label3")).Caption(); }
    Timer& timer2() { return rig.onMain<Timer>(QStringLiteral("Timer2")); }
    Timer& timer3() { return rig.onMain<Timer>(QStringLiteral("Timer3")); }

    /// Puts a plan on the page, without saving it.
    void write(const QString& plan, const QString& day, const QString& atHour = {}, const QString& atMinute = {}) {
        text().setBoxText(plan);
        date().setBoxText(day);
        hour().setText(atHour);
        minute().setText(atMinute);
    }
    /// Rows of `rcb` in the order of writing.
    QStringList plans(const QString& columns = QStringLiteral("*")) {
        return rig.sql(QStringLiteral("select %1 from rcb order by rowid").arg(columns));
    }
    /// A row that stands in the table already.
    void plant(const QString& day, const QString& time, const QString& plan, const QString& piece = {}) {
        rig.sql(QStringLiteral("insert into rcb(日程日期,提醒时间,日程内容,提醒音乐) values('%1','%2','%3','%4')")
                    .arg(day, time, plan, piece.isEmpty() ? QStringLiteral("音乐1") : piece));
    }

    ProgramRig rig;
};

inline const ShownMessage PlanSaved{QStringLiteral("保存成功！"), 64, QStringLiteral("保存提示")};
inline const ShownMessage PlanIncomplete{QStringLiteral("日程安排和提醒日期不能为空，请输入提醒内容！"), 64,
                                         QStringLiteral("提示")};

} // namespace qinghe::testing
