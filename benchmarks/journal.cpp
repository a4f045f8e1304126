#include "journal.h"

#include "bare_sqlite.h"
#include "controls/long_text_box.h"
#include "filled_store.h"
#include "support/program_rig.h"

#include <QFile>
#include <sqlite3.h>

namespace qinghe::benchmarks {

using namespace Qt::StringLiterals;
using namespace qinghe::testing;

namespace {

constexpr int Runs = 31;
constexpr int Entries = 10'000;
constexpr int LongDiary = 1'000'000; ///< bytes

/// The texts of a query, a row of the grid each.
void listBare(Bare& bare, MSFlexGrid& grid, const QString& query) {
    sqlite3_stmt* statement = bare.prepare(query);
    const int columns = sqlite3_column_count(statement);
    for (int row = 1; sqlite3_step(statement) == SQLITE_ROW; ++row) {
        grid.setRows(row + 1);
        for (int i = 0; i < columns; ++i)
            grid.setTextMatrix(row, i + 1,
                               QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(statement, i)),
                                                 sqlite3_column_bytes(statement, i)));
    }
    sqlite3_finalize(statement);
}

void measureFinding(Report& report) {
    ProgramRig rig;
    rig.sql(u"with recursive c(n) as (select 1 union all select n+1 from c where n<%1) insert into rjb "
            "select date('2000-01-01', '+'||n||' days'), '第'||n||'篇日记' from c"_s.arg(Entries));
    plainCopy(rig.dataFile(), rig.file(u"plain.db"_s));
    Bare bare(rig.file(u"plain.db"_s));
    MSFlexGrid bareGrid(nullptr, u"bare"_s);
    bareGrid.setCols(3);
    rig.signIn();
    rig.click(rig.at(pages::Diary));
    auto& Option5 = rig.at(diary_page::Find);
    auto& Option6 = rig.at(diary_page::Write);
    report.add(u"listing 10000 diary entries without their painting, against bare SQLite and a bare grid"_s,
               inTurn(
                   Runs,
                   [&] {
                       rig.click(Option6);
                       return milliseconds([&] { handlers::enter([&] { Option5.setValue(true); }); });
                   },
                   [&] {
                       bareGrid.setRows(2);
                       return milliseconds(
                           [&] { listBare(bare, bareGrid, u"select 日期,日记标题 from rjb order by rowid"_s); });
                   }),
               1.6);
    if (rig.at(diary_page::Grid).Rows() != Entries + 1 || bareGrid.Rows() != Entries + 1)
        qFatal("not all entries");
}

void writeDiary(const QString& path) {
    const QByteArray line(
        "\xCC\xEC\xC3\xBB\xC1\xC1\xBE\xCD\xB3\xF6\xC3\xC5\xA3\xAC\xCB\xAE\xBA\xDC\xC1\xB9\xA1\xA3\r\n");
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(line.repeated(LongDiary / line.size())) <= 0)
        qFatal("cannot write the diary");
}

/// From the click on the title until the text is painted.
void measureShowing(Report& report) {
    ProgramRig rig;
    rig.sql(u"insert into rjb values('2024-05-03','长'),('2024-05-04','短')"_s);
    rig.signIn();
    writeDiary(rig.file(u"mydiary/长.dll"_s));
    rig.click(rig.at(pages::Diary));
    rig.click(rig.at(diary_page::Find));
    auto& ms8 = rig.at(diary_page::Grid);
    auto& tx8 = rig.at(diary_page::Text);
    std::vector<double> times;
    for (int i = 0; i < Runs; ++i) {
        rig.clickCell(ms8, 1, 1); // the date shows nothing
        rig.settle();
        times.push_back(milliseconds([&] {
            rig.clickCell(ms8, 1, 2);
            tx8.viewport()->repaint();
        }));
    }
    report.note(u"showing a diary of 1 MB: %1 ms"_s.arg(median(times), 0, 'f', 1));
}

} // namespace

void measureJournal(Report& report) {
    measureFinding(report);
    measureShowing(report);
}

} // namespace qinghe::benchmarks
