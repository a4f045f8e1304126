#pragma once

#include "journal/reminders.h"
#include "journal/schedule_page.h"
#include "support/program_test.h"

namespace qinghe::testing {

/// A program whose schedule page is open, on the evening of 2024-6-18 at 20:36:08.
class ScheduleTest : public ProgramTest {
protected:
    ScheduleTest() {
        rig.signIn();
        open();
    }

    void open() { rig.click(rig.at(pages::Schedule)); }
    LongTextBox& text() { return rig.at(schedule::Plan); }
    TextBox& date() { return rig.at(schedule::Date); }
    ComboBox& hour() { return rig.at(schedule::Hour); }
    ComboBox& minute() { return rig.at(schedule::Minute); }
    ComboBox& music() { return rig.at(schedule::Music); }
    CommandButton& fresh() { return rig.at(schedule::New); }
    CommandButton& today() { return rig.at(schedule::Today); }
    CommandButton& save() { return rig.at(schedule::Save); }
    QString counter() { return rig.at(schedule::Counter).Caption(); }
    Timer& timer2() { return rig.at(schedule::Watch); }
    Timer& timer3() { return rig.at(schedule::Pause); }

    /// Puts a plan on the page, without saving it.
    void write(const QString& plan, const QString& day, const QString& atHour = {}, const QString& atMinute = {}) {
        text().setBoxText(plan);
        date().setBoxText(day);
        hour().setText(atHour);
        minute().setText(atMinute);
    }
    /// Rows of `rcb` in the order of writing.
    QStringList plans(const QString& columns = u"*"_s) {
        return rig.sql(u"select %1 from rcb order by rowid"_s.arg(columns));
    }
    /// A row that stands in the table already.
    void plant(const QString& day, const QString& time, const QString& plan, const QString& piece = {}) {
        rig.sql(u"insert into rcb(日程日期,提醒时间,日程内容,提醒音乐) values('%1','%2','%3','%4')"_s.arg(
            day, time, plan, piece.isEmpty() ? u"音乐1"_s : piece));
    }
};

inline const ShownMessage PlanSaved{u"保存成功！"_s, 64, u"保存提示"_s};
inline const ShownMessage PlanIncomplete{u"日程安排和提醒日期不能为空，请输入提醒内容！"_s, 64, u"提示"_s};

} // namespace qinghe::testing
