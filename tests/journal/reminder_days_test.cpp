#include "reminder_rig.h"

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

/// Many hours of seconds, with a user who answers ten seconds before the minute ends. The long run over months is a
/// chapter of the benchmarks.
TEST_F(ReminderTest, EveryPlanOfSeveralHoursRingsOnceOrIsSwallowedByAPause) {
    struct Planned {
        QStringView day;
        QStringView time;
    };
    constexpr std::array<Planned, 7> rung{{{u"2024-02-28", u"22 0"},
                                           {u"2024-02-28", u"22 30"},
                                           {u"2024-02-28", u"23 59"},
                                           {u"2024-02-29", u"0 5"},
                                           {u"2024-02-29", u"0 8"},
                                           {u"2024-02-29", u"1 0"},
                                           {u"2024-02-29", u"1 2"}}};
    QStringList expected;
    for (const Planned& plan : rung) {
        const QString name = plan.day.toString() + ' '_L1 + plan.time.toString();
        plant(plan.day.toString(), plan.time.toString(), name);
        expected << name;
    }
    plant(u"2024-02-28"_s, u"22 0"_s, u"in the same minute"_s);
    plant(u"2024-02-28"_s, u"22 1"_s, u"in the pause"_s);
    setClock(u"2024-02-28T21:59:00"_s);
    watch();
    QStringList heard;
    for (int second = 0; second < 4 * 3600; ++second) {
        pass();
        // Answered late in its minute, so that the pause covers the whole of the next one.
        if (rings() && rig.clock->time.time().second() == 50) {
            heard << shownPlan();
            understand();
        }
    }
    EXPECT_EQ(heard, expected);
}

} // namespace
} // namespace qinghe::testing
