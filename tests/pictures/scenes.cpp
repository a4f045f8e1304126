#include "scenes.h"

#include <algorithm>
#include <array>

namespace pictures {

using namespace whole;

namespace {

void signInOnly(Program&) {}

void show(Program& program, const std::string& label) {
    signIn(program);
    program.click(label);
}

template<const auto& Label>
void page(Program& program) {
    show(program, Label);
}

template<const auto& Label, const auto& Option>
void option(Program& program) {
    show(program, Label);
    if (!program.showsMessage()) // there is nothing to count yet
        program.click(Option);
}

// The desktop, and what the main window shows whatever the page.

void tip(Program& program) {
    signIn(program);
    program.moveTo(desktop::Income);
    program.wait(1500); // a tip takes its time
}

/// A plain file lies where the folder of the safety copies should be.
void blockCopies(const LedgerFolder& folder) {
    folder.write("安全副本", "");
}

void note(Program& program) {
    signIn(program);
    program.wait(2500); // the copy of the day is tried when the rest is done
}

void names(Program& program) {
    program.click(sign_in::User, {205, 8});
}

void refused(Program& program) {
    program.clearAndType(sign_in::Password, "654321");
    program.click(sign_in::Enter);
    program.message();
}

void find(Program& program) {
    show(program, pages::Expense);
    program.key("Ctrl+F");
    program.type("买");
}

/// The keyboard has come so many stops far.
template<const auto& Label, int Stops>
void tabbed(Program& program) {
    show(program, Label);
    for (int i = 0; i < Stops; ++i)
        program.key("Tab");
}

// The pages with a grid.

/// This row, or the last one of a list that has fewer.
int row(Program& program, int wanted) {
    return std::min(wanted, program.get(income::Grid, "Rows").toInt() - 1);
}

void date(Program& program) {
    show(program, pages::Expense);
    program.clickCell(income::Grid, row(program, 3), 2);
    program.waitFor(forms::DatePicker);
}

void calculator(Program& program) {
    show(program, pages::Expense);
    program.clickCell(income::Grid, row(program, 3), 5);
    program.waitForKeyboard(forms::Calculator);
    program.type("12.5+8");
}

void unsaved(Program& program) {
    show(program, pages::Expense);
    fillCell(program, income::Grid, row(program, 2), 3, "买米");
    fillCell(program, income::Grid, row(program, 6), 2, "6月35日"); // which no save takes
    program.clickCell(income::Grid, row(program, 4), 5);
    reckon(program, "96.5");
    program.clickCell(income::Grid, row(program, 3), 7);
    program.type("两袋");
}

void typing(Program& program) {
    show(program, pages::Income);
    program.clickCell(income::Grid, 1, 3);
    program.type("替外婆买的");
}

void saved(Program& program) {
    show(program, pages::Users);
    program.click(users::Save);
    program.message();
}

void question(Program& program) {
    show(program, pages::Expense);
    program.click(income::Remove);
    program.message();
}

void chart(Program& program) {
    option<pages::Charts, charts::ExpenseByItem>(program);
    if (program.showsMessage())
        return;
    program.click(charts::From);
    pickDay(program, 1);
    program.click(charts::To);
    pickDay(program, 18);
    program.click(charts::Query);
}

// The journal.

void diaryMenu(Program& program) {
    show(program, pages::Diary);
    program.click(diary_page::Text);
    program.type("初雪");
    program.key("Menu");
}

void writeDiary(Program& program) {
    show(program, pages::Diary);
    program.clickCell(diary_page::Grid, 1, 1);
    pickDay(program, 18);
    program.clickCell(diary_page::Grid, 1, 2);
    enter(program, "初雪");
    program.click(diary_page::Text);
    program.type("傍晚下了今年的第一场雪，院子里的柿子树白了一半。");
    program.key("Return");
    program.type("小满在雪地里写了一个“福”字，叫爷爷出来看。");
    program.key("Return");
    program.type("晚饭吃面，煤炉边上烤了红薯。");
}

void findDiary(Program& program) {
    show(program, pages::Diary);
    program.click(diary_page::Find);
    program.clickCell(diary_page::Grid, 1, 2);
}

void plan(Program& program, const std::string& text, int day, int hour, int minute) {
    show(program, pages::Schedule);
    program.click(schedule::Plan);
    program.type(text);
    program.click(schedule::Date);
    pickDay(program, day);
    program.clearAndType(schedule::Hour, std::to_string(hour));
    program.clearAndType(schedule::Minute, std::to_string(minute));
    program.click(schedule::TakeMusic);
}

void planAhead(Program& program) {
    plan(program, "给爷爷打电话，问他周末要不要一起去赶集。", 20, 19, 30);
}

/// The clock stands in the minute of the plan.
void ring(Program& program) {
    plan(program, "给爷爷打电话，问他周末要不要一起去赶集。", 18, 20, 36);
    program.click(schedule::Save);
    answer(program, "保存成功！");
    program.waitFor(forms::Reminder);
}

void today(Program& program) {
    show(program, pages::Schedule);
    program.click(schedule::Today);
}

void usersBehindSchedule(Program& program) {
    show(program, pages::Users);
    program.click(pages::Schedule);
}

// Settings, and the windows behind them.

void skins(Program& program) {
    show(program, pages::Settings);
    program.click(settings::ChangeSkin);
    program.click(settings::Skins);
}

void pictureMenu(Program& program) {
    show(program, pages::Settings);
    program.click(settings::Pictures);
}

void addSkin(Program& program) {
    pictureMenu(program);
    program.pick("添加记账本皮肤");
    program.waitForKeyboard(forms::SkinPictures);
}

void openCategories(Program& program) {
    show(program, pages::Settings);
    program.click(settings::Categories);
    program.click(categories::Expense);
    program.clickCell(categories::Majors, 6, 1);
}

void purge(Program& program) {
    show(program, pages::Settings);
    program.click(settings::Purge);
    program.waitForKeyboard(forms::Purge);
    program.click(purge::Date);
    pickDay(program, 1);
    program.click(purge::Kind[0]);
    program.click(purge::Kind[1]);
}

void openBackup(Program& program, const std::string& option) {
    show(program, pages::Settings);
    program.click(option);
    program.waitForKeyboard(forms::Backup);
}

void backUp(Program& program) {
    openBackup(program, settings::Backup);
}

void restore(Program& program) {
    openBackup(program, settings::Restore);
}

void chooseFile(Program& program) {
    backUp(program);
    program.click(backup::Start);
    program.message();
    program.answer("确定");
    program.waitForKeyboard("QFileDialog");
}

void failure(Program& program) {
    show(program, pages::Expense);
    fillCell(program, income::Grid, 1, 2, "11月31日");
    program.click(income::Save);
    program.message();
}

void tools(Program& program) {
    signIn(program);
    program.click(title::Tools);
    program.waitFor(forms::Web);
}

void endOfTools(Program& program) {
    tools(program);
    program.click(web::Browser);
    program.key("Ctrl+End");
}

std::string manual(const std::string& name) {
    return "manual/" + name + ".png";
}

} // namespace

std::span<const Scene> scenes() {
    using namespace qinghe::testing;
    static const std::string main = forms::Main;
    static const std::array all{
        Scene{"sign-in", signInOnly, forms::SignIn, manual("sign-in")},
        Scene{"names", names, ""},
        Scene{"refused", refused, ""},
        Scene{"desktop", page<pages::Desktop>, main, "desktop.png"},
        Scene{"tip", tip, ""},
        Scene{"note", note, main, "", blockCopies},
        Scene{"income", page<pages::Income>, main},
        Scene{"typing", typing, ""},
        Scene{"expense", page<pages::Expense>, main, manual("expense")},
        Scene{"date", date, main, manual("date")},
        Scene{"calculator", calculator, main, manual("calculator")},
        Scene{"unsaved", unsaved, main, manual("unsaved")},
        Scene{"month", option<pages::Expense, income::ByItem>, main, manual("month")},
        Scene{"people", option<pages::Expense, income::ByPerson>, main, manual("people")},
        Scene{"find", find, main, manual("find")},
        Scene{"question", question, ""},
        Scene{"failure", failure, ""},
        Scene{"borrowed", option<pages::Loans, loans::Borrowed>, main},
        Scene{"loans", option<pages::Loans, loans::Lent>, main, manual("loans")},
        Scene{"savings", page<pages::Accounts>, main, manual("savings")},
        Scene{"budget", page<pages::Budget>, main, manual("budget")},
        Scene{"accounts-chart", page<pages::Charts>, main},
        Scene{"keys-option", tabbed<pages::Expense, 1>, main},
        Scene{"keys-button", tabbed<pages::Expense, 2>, main},
        Scene{"keys-image", tabbed<pages::Charts, 3>, main},
        Scene{"keys-figure", tabbed<pages::Desktop, 3>, main},
        Scene{"chart", chart, main, "chart.png"},
        Scene{"chart-months", option<pages::Charts, charts::YearsExpense>, main, manual("chart-months")},
        Scene{"users", page<pages::Users>, main, manual("users")},
        Scene{"saved", saved, ""},
        Scene{"diary-write", writeDiary, main, manual("diary-write")},
        Scene{"diary-menu", diaryMenu, ""},
        Scene{"diary-find", findDiary, main, manual("diary-find")},
        Scene{"schedule", planAhead, main, manual("schedule")},
        Scene{"today", today, main},
        Scene{"users-behind-schedule", usersBehindSchedule, main},
        Scene{"reminder", ring, forms::Reminder, manual("reminder")},
        Scene{"settings", page<pages::Settings>, main, manual("settings")},
        Scene{"skins", skins, ""},
        Scene{"picture-menu", pictureMenu, ""},
        Scene{"add-skin", addSkin, ""},
        Scene{"categories", openCategories, main, manual("categories")},
        Scene{"purge", purge, forms::Purge, manual("purge")},
        Scene{"backup", backUp, forms::Backup, manual("backup")},
        Scene{"restore", restore, ""},
        Scene{"choose-file", chooseFile, ""},
        Scene{"tools", tools, ""},
        Scene{"tools-end", endOfTools, ""},
    };
    return all;
}

} // namespace pictures
