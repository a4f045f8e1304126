#include "upkeep.h"

#include "bare_sqlite.h"
#include "filled_store.h"
#include "support/program_rig.h"

#include <array>

namespace qinghe::benchmarks {

using namespace Qt::StringLiterals;
using namespace qinghe::testing;

namespace {

constexpr int Runs = 7;
constexpr double Bound = 1.6;

/// A kind of record with a date: its box in the purge window, table and column.
struct Dated {
    Name<CheckBox> box;
    QStringView table;
    QStringView date;
};
constexpr std::array<Dated, 6> DatedKinds{{
    {purge::Kind[0], u"srb", u"时间"},
    {purge::Kind[1], u"zcb", u"时间"},
    {purge::Kind[2], u"jrb", u"日期"},
    {purge::Kind[3], u"jcb", u"日期"},
    {purge::Kind[5], u"ysb", u"预算时间"},
    {purge::Plans, u"rcb", u"日程日期"},
}};

/// Fills full tables, then purges all six dated kinds up to a day; each kind is one durable transaction.
double purgeTime(const QDate& last) {
    ProgramRig rig;
    fillTables(rig.dataFile(), FullTable);
    rig.signIn();
    rig.click(rig.at(pages::Settings));
    rig.click(rig.at(settings::Purge));
    for (const Dated& kind : DatedKinds)
        rig.click(rig.at(kind.box));
    rig.at(purge::Date).setBoxText(dateText(last));
    auto& start = rig.at(purge::Start);
    const double time = milliseconds([&] { rig.click(start); });
    if (rig.messages->shown.size() != 1 + DatedKinds.size() || rig.lastMessage().text != u"日程记录已清空"_s)
        qFatal("the purge was not done");
    return time;
}

double purgeTimeBare(const QDate& last) {
    ProgramRig rig;
    fillTables(rig.dataFile(), FullTable);
    plainCopy(rig.dataFile(), rig.file(u"plain.db"_s));
    Bare bare(rig.file(u"plain.db"_s));
    bare.run(u"pragma user_version=1"_s); // brings the copy to the disk, as the other file is
    return milliseconds([&] {
        for (const Dated& kind : DatedKinds) {
            bare.run(u"begin immediate"_s);
            bare.run(u"delete from %1 where %2<='%3'"_s.arg(kind.table.toString(), kind.date.toString(),
                                                            last.toString(Qt::ISODate)));
            bare.run(u"commit"_s);
        }
    });
}

void measurePurge(Report& report, const QString& share, const QDate& last) {
    report.add(u"purging %1 of 32767 rows in each of six tables, durable, against bare SQLite"_s.arg(share),
               inTurn(
                   Runs, [&] { return purgeTime(last); }, [&] { return purgeTimeBare(last); }),
               Bound);
}

/// What initialising empties.
constexpr std::array<QStringView, 10> InitialisedTables{u"jcb", u"jrb", u"nsrb", u"nzcb", u"rcb",
                                                        u"rjb", u"srb", u"ysb",  u"zcb",  u"zhb"};

/// Fills all that is initialised: the ledgers, the work tables of the charts, and the diary's titles.
void fillBook(ProgramRig& rig) {
    fillTables(rig.dataFile(), FullTable);
    rig.sql(u"begin;"
            "insert into nsrb select substr(时间,1,7),金额,区别 from srb;"
            "insert into nzcb select substr(时间,1,7),金额,区别 from zcb;"
            "insert into rjb select 时间,'日记'||区别 from srb;"
            "commit"_s);
}

/// The ten tables are one durable transaction.
double initialiseTime() {
    ProgramRig rig;
    fillBook(rig);
    rig.signIn();
    rig.click(rig.at(pages::Settings));
    auto& initialise = rig.at(settings::Initialise);
    const double time = milliseconds([&] { initialise.click(); });
    if (rig.lastMessage().text != u"初始化完毕"_s)
        qFatal("nothing was initialised");
    return time;
}

double initialiseTimeBare() {
    ProgramRig rig;
    fillBook(rig);
    plainCopy(rig.dataFile(), rig.file(u"plain.db"_s));
    Bare bare(rig.file(u"plain.db"_s));
    bare.run(u"pragma user_version=1"_s); // brings the copy to the disk, as the other file is
    return milliseconds([&] {
        bare.run(u"begin immediate"_s);
        for (QStringView table : InitialisedTables)
            bare.run(u"delete from %1 where 1"_s.arg(table.toString()));
        bare.run(u"commit"_s);
    });
}

} // namespace

void measureUpkeep(Report& report) {
    measurePurge(report, u"all"_s, QDate(2030, 1, 1));
    measurePurge(report, u"half"_s, QDate(2019, 12, 31));
    report.add(u"initialising ten tables of 32767 rows, durable, against bare SQLite"_s,
               inTurn(Runs, initialiseTime, initialiseTimeBare), Bound);
}

} // namespace qinghe::benchmarks
