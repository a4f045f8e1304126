#include "app/program.h"

#include "analysis/charts.h"
#include "core/main_window.h"
#include "core/sign_in.h"
#include "core/web_window.h"
#include "journal/diary.h"
#include "journal/schedule.h"
#include "ledger/accounts.h"
#include "ledger/budget.h"
#include "ledger/categories.h"
#include "ledger/income_expense.h"
#include "ledger/loans.h"
#include "maintenance/backup.h"
#include "maintenance/picture_injection.h"
#include "maintenance/purge.h"
#include "maintenance/settings.h"
#include "maintenance/users.h"
#include "platform/free_memory.h"
#include "tools/calculator.h"
#include "tools/date_picker.h"

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t LargeWork = 1 << 20; ///< bytes that a handler read, from which on freed memory is given back

Form* mainWindowWithPages(Workbench& bench) {
    auto* window = new MainWindow(bench);
    // A click on the bare form reaches the pages in this order.
    new BudgetPage(*window);
    new AccountsPage(*window);
    new UsersPage(*window);
    new LoansPage(*window);
    new IncomeExpensePage(*window);
    new CategoriesPage(*window);
    new ChartsPage(*window);
    new DiaryPage(*window);
    new SchedulePage(*window);
    new SettingsPage(*window);
    return window;
}

} // namespace

Program::Program(Services services) : m_bench(std::move(services)) {
    handlers::install({
        .commit = [this] { m_bench.store.commit(); },
        .report =
            [this](const RuntimeError& error) { m_bench.services.messages->showError(error.number(), error.text()); },
        .end = [this](int code) { end(code); },
        .returned =
            [this] {
                if (!m_bench.forms.anyLoaded())
                    end(0);
                else if (m_bench.store.rest() > LargeWork)
                    giveBackFreeMemory();
            },
    });
    m_bench.store.use(m_bench.beside(u"data.dll"_s));
    // A copy that can take its folder's lock keeps it from the start; one that cannot tries again at its main window.
    m_bench.services.instance->tryTake();
    defineForms();
}

Program::~Program() {
    handlers::bar();
    m_bench.forms.clear();
    handlers::reset();
}

void Program::defineForms() {
    Workbench& bench = m_bench;
    bench.forms.define(u"Form5"_s, [&bench] { return new SignIn(bench); });
    bench.forms.define(u"Form2"_s, [&bench] { return mainWindowWithPages(bench); });
    bench.forms.define(u"Form1"_s, [&bench] { return new DatePicker(bench); });
    bench.forms.define(u"Form3"_s, [&bench] { return new PurgeWindow(bench); });
    bench.forms.define(u"Form9"_s, [&bench] { return new Calculator(bench); });
    bench.forms.define(u"Form7"_s, [&bench] { return new WebWindow(bench); });
    bench.forms.define(u"Form13"_s, [&bench] { return new BackupWindow(bench); });
    for (const PictureTarget& target : pictureTargets())
        bench.forms.define(QString::fromUtf16(target.form),
                           [&bench, &target] { return new PictureInjection(bench, target); });
}

void Program::start() {
    handlers::enter([this] { m_bench.forms.get(u"Form5"_s).showForm(); });
}

void Program::end(int code) {
    // The guard has ended the unit of work; the file is released by the end of the process.
    m_bench.services.process->end(code);
}

} // namespace qinghe
