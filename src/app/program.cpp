#include "app/program.h"

#include "analysis/charts_page.h"
#include "core/last_words.h"
#include "core/main_window.h"
#include "core/own_files.h"
#include "core/sign_in.h"
#include "core/web_window.h"
#include "journal/diary_page.h"
#include "journal/schedule_page.h"
#include "ledger/accounts_page.h"
#include "ledger/budget_page.h"
#include "ledger/categories_page.h"
#include "ledger/income_expense_page.h"
#include "ledger/loans_page.h"
#include "maintenance/backup_window.h"
#include "maintenance/picture_window.h"
#include "maintenance/purge_window.h"
#include "maintenance/settings_page.h"
#include "maintenance/users_page.h"
#include "platform/free_memory.h"
#include "store/data_file.h"
#include "tools/calculator.h"
#include "tools/date_picker.h"

#include <QApplication>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t LargeWork = 1 << 20; ///< bytes that a handler read, from which on freed memory is given back

Form* mainWindowWithPages(Shared& shared) {
    auto* window = new MainWindow(shared);
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

Program::Program(Services services) : m_shared(std::move(services)) {
    handlers::install({
        .failed = [this] { m_shared.safety.keepFailedSave(); },
        .commit = [this] { m_shared.store.commit(); },
        .report = [this](const RuntimeError& error) { tellError(error); },
        .end = [this](int code) { end(code); },
        .returned =
            [this] {
                if (!m_shared.forms.anyLoaded())
                    end(0);
                else if (m_shared.store.rest() > LargeWork)
                    giveBackFreeMemory();
            },
    });
    m_shared.store.use(m_shared.dataFile());
    // A copy that can take its folder's lock keeps it from the start; one that cannot tries again at its main window.
    m_shared.services.instance->answerCalls([this] { comeForward(); });
    m_shared.services.instance->tryTake();
    defineForms();
}

Program::~Program() {
    handlers::bar();
    m_shared.safety.breakOff();
    m_shared.forms.clear();
    handlers::reset();
}

void Program::defineForms() {
    Shared& shared = m_shared;
    shared.forms.define(names::SignIn, [&shared] { return new SignIn(shared); });
    shared.forms.define(names::Main, [&shared] { return mainWindowWithPages(shared); });
    shared.forms.define(names::DatePicker, [&shared] { return new DatePicker(shared); });
    shared.forms.define(names::Purge, [&shared] { return new PurgeWindow(shared); });
    shared.forms.define(names::Calculator, [&shared] { return new Calculator(shared); });
    shared.forms.define(names::Web, [&shared] { return new WebWindow(shared); });
    shared.forms.define(names::Backup, [&shared] { return new BackupWindow(shared); });
    for (const PictureTarget& target : pictureTargets())
        shared.forms.define(target.form, [&shared, &target] { return new PictureWindow(shared, target); });
}

void Program::start(const std::optional<RuntimeError>& trouble) {
    handlers::enter([this, &trouble] {
        if (trouble)
            throw *trouble;
        closeOwnFiles(m_shared);
        m_shared.forms.get(names::SignIn).showForm();
    });
}

void Program::comeForward() {
    if (auto* window = static_cast<MainWindow*>(m_shared.forms.loaded(names::Main))) {
        window->comeForward();
    } else if (Form* signIn = m_shared.forms.loaded(names::SignIn)) {
        signIn->setWindowState(0);
        signIn->showForm();
    }
    if (QWidget* box = QApplication::activeModalWidget())
        box->activateWindow();
}

std::vector<Page*> Program::pages() const {
    const auto* window = static_cast<MainWindow*>(m_shared.forms.loaded(names::Main)); // made above, see defineForms
    return window ? window->navigation().pages() : std::vector<Page*>();
}

void Program::endAsked() {
    if (handlers::ending())
        return end(1);
    handlers::enter([this] {
        handlers::boundary();
        keepUnsaved(m_shared, pages());
        throw handlers::ProgramEnd{0};
    });
}

void Program::tellError(const RuntimeError& error) {
    const QString became = lastWords(m_shared, pages(), error);
    m_shared.services.messages->showError(error.number(), error.text(), became);
}

void Program::end(int code) {
    m_shared.safety.breakOffAtEnd();
    // The guard has ended the unit of work; the file is released by the end of the process.
    m_shared.services.process->end(code);
}

} // namespace qinghe
