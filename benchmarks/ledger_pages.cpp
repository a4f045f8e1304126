#include "ledger_pages.h"

#include "analysis/ms_chart.h"
#include "bare_sqlite.h"
#include "filled_store.h"
#include "support/program_rig.h"

namespace qinghe::benchmarks {

using namespace Qt::StringLiterals;
using namespace qinghe::testing;

namespace {

constexpr int Runs = 7;

/// A rig with full tables, and the same content as a plain SQLite file.
struct FullBook {
    FullBook() {
        fillTables(rig.dataFile(), FullTable);
        plainCopy(rig.dataFile(), rig.file(u"plain.db"_s));
        bare = std::make_unique<Bare>(rig.file(u"plain.db"_s));
        rig.signIn();
    }
    double clickTime(QWidget& widget) {
        return milliseconds([&] { rig.click(widget); });
    }
    double readTime(const QStringList& queries) {
        return milliseconds([&] {
            for (const QString& query : queries)
                bare->read(query);
        });
    }

    ProgramRig rig;
    std::unique_ptr<Bare> bare;
};

/// A page that shows one whole table and saves it. It is opened again, so no option changes.
struct PageOfOneTable {
    QStringView name;
    Name<Label> label;
    Name<CommandButton> save;
    QStringView table;
};

void measurePage(Report& report, FullBook& book, const PageOfOneTable& page) {
    const QString name = page.name.toString(), table = page.table.toString();
    auto& label = book.rig.at(page.label);
    auto& save = book.rig.at(page.save);
    const Cells cells = readCells(*book.bare, table);
    report.add(u"opening %1, 32767 rows, against bare SQLite"_s.arg(name),
               inTurn(
                   Runs, [&] { return book.clickTime(label); },
                   [&] { return book.readTime({u"select * from %1 order by rowid"_s.arg(table)}); }),
               1.6);
    report.add(u"saving %1, 32767 rows, durable, against bare SQLite"_s.arg(name),
               inTurn(
                   Runs, [&] { return book.clickTime(save); },
                   [&] { return milliseconds([&] { saveBare(*book.bare, cells); }); }),
               1.6);
    if (book.rig.lastMessage().text != u"保存成功"_s)
        qFatal("the save was refused");
}

void measureReports(Report& report, FullBook& book) {
    book.rig.clock->time = QDateTime(QDate(2024, 11, 18), QTime(20, 36, 8));
    book.rig.click(book.rig.at(pages::Income));
    book.bare->run(u"delete from sztjlsb"_s);
    book.bare->run(u"insert into sztjlsb select substr(时间,1,7),金额,项目,区别,收款人 from srb order by rowid"_s);
    auto& Option8 = book.rig.at(income::ByItem);
    auto& Option9 = book.rig.at(income::ByPerson);
    const QString total = u"select sum(金额) from sztjlsb where 时间= '2024-11'"_s;
    const auto turns = [&](OptionButton& option, OptionButton& other, const QString& query) {
        return inTurn(
            Runs,
            [&] {
                book.rig.click(other);
                return milliseconds([&] { handlers::enter([&] { option.setValue(true); }); });
            },
            [&] {
                return book.readTime({query, total});
            });
    };
    report.add(
        u"the month by items without its painting, 32767 rows, against its queries"_s,
        turns(Option8, Option9, u"select 项目,sum(金额)as 总金额 from sztjlsb where 时间= '2024-11' group by 项目"_s),
        1.5);
    report.add(u"the month by people without its painting, 32767 rows, against its queries"_s,
               turns(Option9, Option8,
                     u"select 人员,项目,sum(金额)as 总金额 from sztjlsb where 时间= '2024-11' group by 项目,人员"_s),
               1.5);
}

/// The categories: a list of as many majors as rows, and one major with as many minors.
void measureCategories(Report& report, FullBook& book) {
    auto& Option3 = book.rig.at(categories::Income);
    auto& Option4 = book.rig.at(categories::Expense);
    book.rig.click(book.rig.at(pages::Settings));
    book.rig.click(book.rig.at(settings::Categories));
    const QString majors = u"select distinct 收入大类 from srflb"_s;
    report.add(u"opening categories, 32767 majors, against bare SQLite"_s,
               inTurn(
                   Runs,
                   [&] {
                       book.rig.click(Option4);
                       return book.clickTime(Option3);
                   },
                   [&] { return book.readTime({majors}); }),
               1.6);
    const auto saveTimes = [&](const QString& button, const QString& into) {
        auto& save = book.rig.onMain<CommandButton>(button);
        const Cells names = readCells(*book.bare, u"srflb"_s);
        return inTurn(
            Runs, [&] { return book.clickTime(save); },
            [&] { return milliseconds([&] { saveNamesBare(*book.bare, names, into); }); });
    };
    report.add(u"saving 32767 majors, durable, against bare SQLite"_s, saveTimes(categories::SaveMajors, u"收入大类"_s),
               1.6);

    book.rig.sql(u"update srflb set 收入大类='一', 收入细类='细'||rowid, 快速代码='dm'||rowid"_s);
    book.bare->run(u"update srflb set 收入大类='一', 收入细类='细'||rowid, 快速代码='dm'||rowid"_s);
    book.rig.click(Option4);
    book.rig.click(Option3);
    auto& ms3 = book.rig.at(categories::Majors);
    report.add(u"opening one major with 32767 minors, against bare SQLite"_s,
               inTurn(
                   Runs, [&] { return milliseconds([&] { book.rig.clickCell(ms3, 1, 1); }); },
                   [&] { return book.readTime({u"select * from srflb where 收入大类='一' order by rowid"_s}); }),
               1.6);
    report.add(u"saving 32767 minors, durable, against bare SQLite"_s,
               saveTimes(categories::SaveMinors, u"收入大类,收入细类"_s), 1.6);
}

/// What a chart of months reads and rewrites, and one drawing of it.
void measureCharts(Report& report, FullBook& book) {
    auto& Option10 = book.rig.at(charts::Accounts);
    auto& Option11 = book.rig.at(charts::YearsIncome);
    auto& MSC1 = book.rig.at(charts::Chart);
    book.rig.sql(u"delete from zhb where 区别 > 300"_s);
    book.rig.click(book.rig.at(pages::Charts));
    QImage image(MSC1.size(), QImage::Format_ARGB32_Premultiplied);
    const auto drawing = [&] { return milliseconds([&] { MSC1.paintOn(image); }); };
    std::vector<double> drawings;
    for (int i = 0; i < 3 * Runs; ++i) {
        MSC1.setChartData(QVariantList(MSC1.ChartData())); // laid out anew
        drawings.push_back(drawing());
    }
    if (MSC1.ChartData().size() != 300)
        qFatal("not 300 points");
    report.addPlain(u"drawing a chart of 300 points, ms"_s, median(drawings), 16);
    report.add(u"the chart of 120 months, 32767 rows, against bare SQLite and one drawing"_s,
               inTurn(
                   Runs,
                   [&] {
                       book.rig.click(Option10);
                       return book.clickTime(Option11);
                   },
                   [&] { return milliseconds([&] { gatherMonthsBare(*book.bare); }) + drawing(); }),
               1.6);
    if (MSC1.ChartData().size() != 120)
        qFatal("not 120 months");
}

} // namespace

void measureLedgerPages(Report& report) {
    FullBook book;
    for (const PageOfOneTable& page : {
             PageOfOneTable{u"loans", pages::Loans, loans::Save, u"jcb"},
             PageOfOneTable{u"accounts", pages::Accounts, accounts::Save, u"zhb"},
             PageOfOneTable{u"budget", pages::Budget, budget::Save, u"ysb"},
         })
        measurePage(report, book, page);
    measureReports(report, book);
    measureCategories(report, book);
    measureCharts(report, book);
}

} // namespace qinghe::benchmarks
