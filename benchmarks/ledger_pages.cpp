#include "ledger_pages.h"

#include "bare_sqlite.h"
#include "filled_store.h"
#include "support/program_rig.h"

namespace qinghe::benchmarks {

using namespace Qt::StringLiterals;
using qinghe::testing::ProgramRig;

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
    const char16_t* name;
    const char16_t* label;
    const char16_t* save;
    const char16_t* table;
};

void measurePage(Report& report, FullBook& book, const PageOfOneTable& page) {
    const QString name = QString::fromUtf16(page.name), table = QString::fromUtf16(page.table);
    auto& label = book.rig.onMain<Label>(QString::fromUtf16(page.label));
    auto& save = book.rig.onMain<CommandButton>(QString::fromUtf16(page.save));
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
    book.rig.click(book.rig.onMain<Label>(u"Label2(0)"_s));
    book.bare->run(u"delete from sztjlsb"_s);
    book.bare->run(u"insert into sztjlsb select substr(时间,1,7),金额,项目,区别,收款人 from srb order by rowid"_s);
    auto& Option8 = book.rig.onMain<OptionButton>(u"Option8"_s);
    auto& Option9 = book.rig.onMain<OptionButton>(u"Option9"_s);
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

} // namespace

void measureLedgerPages(Report& report) {
    FullBook book;
    for (const PageOfOneTable& page : {
             PageOfOneTable{u"loans", u"Label1", u"Command3", u"jcb"},
             PageOfOneTable{u"accounts", u"Label6", u"Command21", u"zhb"},
             PageOfOneTable{u"budget", u"Label5", u"Command18", u"ysb"},
         })
        measurePage(report, book, page);
    measureReports(report, book);
}

} // namespace qinghe::benchmarks
