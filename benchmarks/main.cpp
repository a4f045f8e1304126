#include "backup_copies.h"
#include "bare_sqlite.h"
#include "child_runs.h"
#include "filled_store.h"
#include "journal.h"
#include "ledger_pages.h"
#include "look/look.h"
#include "measure.h"
#include "reminders.h"
#include "support/program_rig.h"
#include "upkeep.h"

#include <QApplication>

#include <cstdlib>

using namespace qinghe;
using namespace qinghe::benchmarks;
using namespace Qt::StringLiterals;
using namespace qinghe::testing;

namespace {

constexpr int Runs = 7;

void measureStart(Report& report) {
    qinghe::testing::ProgramRig fullRig, emptyRig;
    fillTables(fullRig.dataFile(), FullTable);
    const QString full = fullRig.folder(), empty = emptyRig.folder();
    report.add(u"start to sign-in painted, against an empty window"_s,
               inTurn(
                   2 * Runs,
                   [&] {
                       return startTime({u"start"_s, full});
                   },
                   [] { return startTime({u"empty-window"_s}); }),
               1.5);
    report.add(u"sign-in click to main window painted, full tables against empty ones"_s,
               inTurn(
                   2 * Runs,
                   [&] {
                       return childFigure({u"sign-in"_s, full});
                   },
                   [&] {
                       return childFigure({u"sign-in"_s, empty});
                   }),
               1.2);
    report.add(u"resident memory with income open, against an empty window"_s,
               inTurn(
                   3,
                   [&] {
                       return childFigure({u"memory"_s, full});
                   },
                   [] { return childFigure({u"empty-window"_s}); }),
               2, u"MiB"_s);
}

struct IncomeTimes {
    Pair open, save;
};

/// Opens and saves the income page with `rows` rows against the same work in bare SQLite on a file of the same content.
IncomeTimes incomeTimes(int rows) {
    qinghe::testing::ProgramRig rig;
    fillTables(rig.dataFile(), rows);
    plainCopy(rig.dataFile(), rig.file(u"plain.db"_s));
    Bare bare(rig.file(u"plain.db"_s));
    const Cells cells = readCells(bare, u"srb"_s);
    rig.signIn();
    auto& income = rig.at(pages::Income);
    auto& save = rig.at(income::Save);
    IncomeTimes times;
    times.open = inTurn(
        Runs, [&] { return milliseconds([&] { rig.click(income); }); },
        [&] { return milliseconds([&] { openIncomeBare(bare); }); });
    times.save = inTurn(
        Runs, [&] { return milliseconds([&] { rig.click(save); }); },
        [&] {
            return milliseconds([&] {
                bare.read(u"select * from srb order by rowid"_s); // the page loads the table again first
                saveBare(bare, cells);
            });
        });
    if (rig.lastMessage().text != u"保存成功"_s)
        qFatal("the save was refused");
    return times;
}

void measureIncome(Report& report) {
    std::vector<double> sizes, opens, saves;
    for (int rows : {1000, 4000, 16000, FullTable}) {
        const IncomeTimes times = incomeTimes(rows);
        sizes.push_back(rows);
        opens.push_back(times.open.ours);
        saves.push_back(times.save.ours);
        report.note(u"%1 rows: open %2 ms (reference %3), save %4 ms (reference %5)"_s.arg(rows)
                        .arg(times.open.ours, 0, 'f', 1)
                        .arg(times.open.reference, 0, 'f', 1)
                        .arg(times.save.ours, 0, 'f', 1)
                        .arg(times.save.reference, 0, 'f', 1));
        if (rows != FullTable)
            continue;
        report.add(u"opening income, 32767 rows, against bare SQLite"_s, times.open, 1.6);
        report.add(u"saving income, 32767 rows, durable, against bare SQLite"_s, times.save, 1.6);
    }
    report.addPlain(u"growth of opening with the rows, exponent"_s, growthExponent(sizes, opens), 1.1);
    report.addPlain(u"growth of saving with the rows, exponent"_s, growthExponent(sizes, saves), 1.1);
}

struct Chapter {
    QStringView name;
    void (*measure)(Report&);
};
constexpr Chapter Chapters[] = {
    {u"start", measureStart},     {u"income", measureIncome},       {u"ledger", measureLedgerPages},
    {u"journal", measureJournal}, {u"reminders", measureReminders}, {u"upkeep", measureBackupCopies},
    {u"upkeep", measureUpkeep},
};

} // namespace

/// Without arguments all chapters are measured, else those named.
int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("DISPLAY") && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    int exitCode = 0;
    if (runAsChild(argc, argv, exitCode))
        return exitCode;
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    dress(application);
    Report report;
    const QStringList wanted = QApplication::arguments().mid(1);
    for (const Chapter& chapter : Chapters)
        if (wanted.isEmpty() || wanted.contains(chapter.name.toString()))
            chapter.measure(report);
    return report.close();
}
