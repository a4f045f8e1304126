#include "reminders.h"

#include "bare_sqlite.h"
#include "child_runs.h"
#include "filled_store.h"
#include "journal/reminders.h"
#include "support/program_rig.h"

#include <cmath>

namespace qinghe::benchmarks {

using namespace Qt::StringLiterals;
using namespace qinghe::testing;

namespace {

constexpr int Runs = 7;

/// A program with a full table of plans, and the same content as a plain SQLite file.
struct FullSchedule {
    FullSchedule() {
        fillTables(rig.dataFile(), FullTable);
        // Days behind those of the full table, with so many plans.
        for (const int plans : {1, 20})
            for (int i = 0; i < plans; ++i)
                rig.sql(u"insert into rcb(日程日期,提醒时间,日程内容,提醒音乐) values('%1','8 %2','日程','音乐1')"_s
                            .arg(dayWith(plans).toString(Qt::ISODate))
                            .arg(i));
        plainCopy(rig.dataFile(), rig.file(u"plain.db"_s));
        bare = std::make_unique<Bare>(rig.file(u"plain.db"_s));
        rig.signIn();
    }
    static QDate dayWith(int plans) { return QDate(2030, 1, 1).addDays(plans); }

    ProgramRig rig;
    std::unique_ptr<Bare> bare;
};

void measureDayQuery(Report& report, FullSchedule& schedule) {
    Adodc& control = *schedule.rig.mainWindow().Adodc1;
    const auto day = [](int i) { return QDate(2016, 1, 1).addDays(i); };
    constexpr int Queries = 500;
    const auto ours = [&] {
        return milliseconds([&] {
            for (int i = 0; i < Queries; ++i) {
                Recordset& plans = control.open(u"select 提醒时间,提醒音乐,日程内容 from rcb where 日程日期= # "_s +
                                                dateText(day(i)) + u"#"_s);
                for (; !plans.eof(); plans.moveNext())
                    plans.field(u"提醒时间"_s).text();
            }
        });
    };
    const auto reference = [&] {
        return milliseconds([&] {
            for (int i = 0; i < Queries; ++i)
                schedule.bare->read(u"select 提醒时间,提醒音乐,日程内容 from rcb where 日程日期='"_s +
                                    day(i).toString(Qt::ISODate) + u"'"_s);
        });
    };
    report.add(u"plans of one day among 32767, 500 queries, against bare SQLite"_s, inTurn(Runs, ours, reference), 3);
}

/// The first comparison of a program, which asks twice when the day has plans.
void measureTicks(Report& report, FullSchedule& schedule) {
    constexpr int Ticks = 500;
    std::vector<std::unique_ptr<Reminders>> beginnings; // each has not ticked yet; they go last
    for (const int plans : {0, 1, 20}) {
        const QString day = FullSchedule::dayWith(plans).toString(Qt::ISODate);
        schedule.rig.clock->time = QDateTime(FullSchedule::dayWith(plans), QTime(23, 30));
        const auto ours = [&] {
            const std::size_t first = beginnings.size();
            for (int i = 0; i < Ticks; ++i)
                beginnings.push_back(std::make_unique<Reminders>(schedule.rig.mainWindow()));
            return milliseconds([&] {
                for (std::size_t i = first; i < beginnings.size(); ++i)
                    handlers::enter([&] { beginnings[i]->Form2_Timer2_Timer(); });
            });
        };
        const auto reference = [&] {
            return milliseconds([&] {
                for (int i = 0; i < Ticks; ++i)
                    for (QStringView columns : {u"*", u"提醒时间,提醒音乐,日程内容"})
                        schedule.bare->read(u"select %1 from rcb where 日程日期='%2'"_s.arg(columns.toString(), day));
            });
        };
        report.add(u"500 ticks with %1 plans today among 32767, against their two queries"_s.arg(plans),
                   inTurn(Runs, ours, reference), 3);
    }
}

void measureRest(Report& report) {
    ProgramRig rig;
    fillTables(rig.dataFile(), FullTable);
    rig.sql(u"update txb set 日程提醒=1; update rcb set 日程日期=date('now','localtime') where 区别<=20"_s);
    report.addPlain(u"processor time of a minute at rest with reminders on, % of one core"_s,
                    childFigure({u"rest"_s, rig.folder()}), 0.5);
}

/// One tenth of a year in seconds, over the end of a February, with twelve plans on every day and a user who answers.
void runManyDays(Report& report) {
    constexpr int Days = 37;
    const QDate first(2024, 1, 25);
    ProgramRig rig;
    rig.sql(u"with recursive d(n) as (select 0 union all select n+1 from d where n<%1), "
            "h(m) as (select 0 union all select m+1 from h where m<11) insert into rcb(日程日期,提醒时间,日程内容,"
            "提醒音乐) select date('%2','+'||n||' days'), (2*m)||' '||((7*n+5*m)%60), n||'/'||m, '音乐1' from d, h"_s
                .arg(Days - 1)
                .arg(first.toString(Qt::ISODate)));
    rig.signIn();
    rig.clock->time = QDateTime(first, QTime(0, 0)).addSecs(-1);
    MainWindow& window = rig.mainWindow();
    auto &watch = rig.at(schedule::Watch), &pause = rig.at(schedule::Pause);
    watch.setEnabled(true);
    const auto tick = [](Timer& timer) {
        if (timer.Enabled())
            timer.Tick.fromQt();
    };
    std::map<QString, int> rung;
    double before = 0;
    constexpr int Seconds = Days * 24 * 3600;
    const double time = milliseconds([&] {
        for (int second = 0; second < Seconds; ++second) {
            rig.clock->time = rig.clock->time.addSecs(1);
            tick(*window.Timer1);
            tick(watch);
            tick(pause);
            if (Form* popup = rig.loaded(forms::Reminder)) {
                tick(*popup->findChild<Timer*>(reminder::Clock));
                ++rung[popup->findChild<Label*>(reminder::Plan)->Caption()];
                popup->findChild<CommandButton*>(reminder::Understood)->click();
                ProgramRig::settle();
                rig.sound->calls.clear();
            }
            if (second == Seconds / Days)
                before = residentMiB(); // a day has passed
        }
    });
    if (rung.size() != Days * 12 || std::any_of(rung.begin(), rung.end(), [](auto& plan) { return plan.second != 1; }))
        qFatal("plans were missed or rang twice");
    report.note(u"%1 days of seconds: %2 plans rang once each; %3 s, %4 µs a second"_s.arg(Days)
                    .arg(rung.size())
                    .arg(time / 1000, 0, 'f', 1)
                    .arg(time * 1000 / Seconds, 0, 'f', 1));
    report.addPlain(u"growth of memory from the first of these days to the last, MiB"_s, residentMiB() - before, 0.5);
}

} // namespace

void measureReminders(Report& report) {
    {
        FullSchedule schedule;
        measureDayQuery(report, schedule);
        measureTicks(report, schedule);
    }
    runManyDays(report);
    measureRest(report);
}

} // namespace qinghe::benchmarks
