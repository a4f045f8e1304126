#include "journal/reminders.h"

#include "core/stored_choice.h"
#include "runtime/number_text.h"

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr int PauseTicks = 70;

/// The blanks inside the marks belong to the query.
QString ofDay(const QString& query, const QDate& day) {
    return query + u" from rcb where 日程日期= # "_s + dateText(day) + u" # "_s;
}

} // namespace

QString reminderTime(const QTime& moment) {
    return (spacedNumberText(moment.hour()) + spacedNumberText(moment.minute())).trimmed();
}

Reminders::Reminders(MainWindow& form) : QObject(&form), window(form), bench(form.bench()), Adodc1(*form.Adodc1) {
    window.Check1->Click = [this] { Form2_Check1_Click(); };
    window.Check8->Click = [this] { Form2_Check8_Click(); };
    window.Timer2->Tick = [this] { Form2_Timer2_Timer(); };
    window.Timer3->Tick = [this] { Form2_Timer3_Timer(); };
}

// The two boxes stand for one choice and are brought into line by the start alone: the one clicked last counts.

void Reminders::Form2_Check1_Click() {
    storeTick(*window.Check1);
}

void Reminders::Form2_Check8_Click() {
    storeTick(*window.Check8);
}

void Reminders::storeTick(const CheckBox& box) {
    qinghe::storeTick(bench, Adodc1, RemindAtSignIn, box, u"设置完毕！"_s, u"系统提示"_s);
}

void Reminders::Form2_Timer2_Timer() {
    // A page may rely on the table that it loaded last: the tick leaves the control as it found it.
    const Adodc::Loan loan = Adodc1.borrow();
    if (remindersChecked != 1) {
        if (!anyPlanToday())
            return window.Timer2->setEnabled(false);
        remindersChecked = 1;
    }
    ringDue();
}

bool Reminders::anyPlanToday() {
    Adodc1.setConnectionString(bench.connection());
    return Adodc1.open(ofDay(u"select *"_s, bench.services.clock->today())).recordCount() != 0;
}

void Reminders::ringDue() {
    const QDateTime now = bench.services.clock->now();
    const QString minute = reminderTime(now.time());
    // Asked anew at every tick: a plan saved a moment ago counts.
    Recordset& plans = Adodc1.open(ofDay(u"select 提醒时间,提醒音乐,日程内容"_s, now.date()));
    for (; !plans.eof(); plans.moveNext())
        // The window reads the current row as it loads. One that stands already is left as it is.
        if (plans.field(0).text() == minute && !bench.forms.loaded(u"Form6"_s))
            bench.forms.get(u"Form6"_s).showForm();
}

void Reminders::Form2_Timer3_Timer() {
    window.Timer2->setEnabled(false);
    ++reminderPauseTicks;
    if (reminderPauseTicks != PauseTicks)
        return;
    window.Timer2->setEnabled(true);
    reminderPauseTicks = 0;
    window.Timer3->setEnabled(false);
}

} // namespace qinghe
