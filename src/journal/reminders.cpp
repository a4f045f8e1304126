#include "journal/reminders.h"

#include "core/plans.h"
#include "journal/reminder_window.h"
#include "runtime/number_text.h"

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr int PauseTicks = 70;

} // namespace

QString reminderTime(const QTime& moment) {
    return (spacedNumberText(moment.hour()) + spacedNumberText(moment.minute())).trimmed();
}

Reminders::Reminders(MainWindow& form)
    : QObject(&form),
      MM1(new MMControl(*form.shared().services.sound, u"MM1"_s, &form)),
      m_shared(form.shared()),
      Adodc1(*form.Adodc1),
      Timer2(new Timer(&form, u"Timer2"_s)),
      Timer3(new Timer(&form, u"Timer3"_s)) {
    Timer2->Tick = [this] { Form2_Timer2_Timer(); };
    Timer3->Tick = [this] { Form2_Timer3_Timer(); };
    m_shared.forms.define(names::Reminder, [this] { return new ReminderWindow(*this); });
}

void Reminders::watch() {
    Timer2->setInterval(1000);
    Timer2->setEnabled(true);
}

void Reminders::pause() {
    Timer2->setEnabled(false);
    Timer3->setInterval(1000);
    Timer3->setEnabled(true);
}

void Reminders::Form2_Timer2_Timer() {
    if (!remindersChecked) {
        if (!readPlans(m_shared.services.clock->today(), u"*"))
            return;
        if (Adodc1.recordset().recordCount() == 0)
            return Timer2->setEnabled(false);
        remindersChecked = true;
    }
    ringDue();
}

bool Reminders::readPlans(const QDate& day, QStringView columns) {
    return m_shared.store.tryNow([&] { plans::watched(Adodc1, day, columns); });
}

void Reminders::ringDue() {
    const QDateTime now = m_shared.services.clock->now();
    const QString minute = reminderTime(now.time());
    // Asked anew at every tick: a plan saved a moment ago counts.
    if (!readPlans(now.date(), u"提醒时间,提醒音乐,日程内容"))
        return;
    Recordset& plans = Adodc1.recordset();
    for (; !plans.eof(); plans.moveNext())
        // The window reads the current row as it loads. One that stands already is left as it is.
        if (plans.field(0).text() == minute && !m_shared.forms.loaded(names::Reminder))
            m_shared.forms.get(names::Reminder).showForm();
}

void Reminders::Form2_Timer3_Timer() {
    Timer2->setEnabled(false);
    ++reminderPauseTicks;
    if (reminderPauseTicks != PauseTicks)
        return;
    Timer2->setEnabled(true);
    reminderPauseTicks = 0;
    Timer3->setEnabled(false);
}

} // namespace qinghe
