#include "household.h"

#include <gtest/gtest.h>

using namespace whole;

namespace {

/// Presses Tab until the control has the keyboard.
void tabTo(Program& program, const std::string& control) {
    for (int presses = 0; !program.get(control, "focus").toBool(); ++presses) {
        if (presses > 40)
            throw std::runtime_error("Tab does not come to " + control);
        program.key("Tab");
    }
}

/// Answers the message box, which the desktop gives the keyboard; afterwards `then` has it.
void answerByKey(Program& program, const std::string& text, const std::string& key,
                 const std::string& then = forms::Main) {
    EXPECT_EQ(program.message().text, text);
    program.waitForKeyboard("QMessageBox");
    program.key(key);
    program.waitUntil([&] { return !program.showsMessage(); }, "the answer to " + text);
    if (!then.empty())
        program.waitForKeyboard(then);
}

void line(Program& program, const std::string& text) {
    if (!text.empty())
        program.type(text);
    program.key("Return");
}

struct Expense {
    std::string code, item, person, amount, account;
};

void write(Program& program, const Expense& expense) {
    line(program, expense.code);
    program.waitFor(forms::DatePicker);
    program.key("F4"); // the picker is handed the keys, goes back a day and takes it
    program.key("Left");
    program.key("Return");
    line(program, ""); // on from the date
    line(program, expense.item);
    line(program, expense.person);
    program.waitForKeyboard(forms::Calculator);
    line(program, expense.amount);
    program.waitForKeyboard(forms::Main);
    line(program, expense.account);
    line(program, ""); // no remark: the row is done
}

} // namespace

TEST(EveningByKeyboard, ExpensesAChartTheDiaryABackupAndTheWayOutTakeNoPointer) {
    const LedgerFolder folder;
    folder.execute("insert into srb values('1','2024-11-15','工资','王青',8000,'建行','',1);"
                   "insert into zhb(账户名称,起始金额,收入,支出,借入,借出,转入,转出,余额,备注信息,区别) "
                   "values('建行',1,0,0,0,0,0,0,1,'',1)");
    Program program(folder);
    program.waitForKeyboard(forms::SignIn);
    program.key("Return"); // in the password, which is remembered
    program.waitForKeyboard(forms::Main);

    program.key("Alt+3");
    EXPECT_EQ(program.caption(income::Page), "支出记录");
    tabTo(program, income::Grid);
    const std::vector<Expense> expenses{{"01", "菜", "王青", "35.5", "现金"},
                                        {"02", "米", "王青", "84", "现金"},
                                        {"03", "电费", "李禾", "126.3", "建行"},
                                        {"04", "书", "李禾", "29+45", "建行"},
                                        {"05", "药", "王青", "18.8", "现金"}};
    for (const Expense& expense : expenses) {
        if (&expense != &expenses.front())
            program.key("Insert");
        program.key("Home");
        write(program, expense);
    }
    program.key("Insert");
    program.key("Delete"); // it was one too many
    answerByKey(program, "是否需要删除?", "O");
    program.key("Ctrl+S");
    answerByKey(program, "保存成功", "Return");

    program.key("Alt+7");
    tabTo(program, charts::Accounts);
    for (int i = 0; i < 4; ++i)
        program.key("Right");
    EXPECT_EQ(program.caption(charts::ChartFrame), "支出分类统计");
    EXPECT_EQ(program.get(charts::Chart, "ChartData").toArray().size(), 5);

    program.key("Alt+9");
    tabTo(program, diary_page::Grid);
    line(program, "2024-11-18");
    line(program, "不用鼠标的一晚");
    tabTo(program, diary_page::Text);
    program.type("记了五笔账。");
    program.key("Ctrl+S");
    answerByKey(program, "日志已经保存！", "O");

    program.key("Alt+S");
    tabTo(program, settings::Backup);
    program.key("Space");
    program.waitForKeyboard(forms::Backup);
    tabTo(program, backup::Start);
    program.key("Return");
    answerByKey(program, "请指定数据库备份的位置。", "Return", {});
    program.choose(folder.file("evening.dat").toStdString());
    answerByKey(program, "备份完成。", "Return", forms::Backup);
    program.key("Escape");
    program.waitForKeyboard(forms::Main);

    tabTo(program, title::Close);
    program.key("Return");
    EXPECT_EQ(program.exitCode(), 0);
    EXPECT_EQ(folder.rows("select * from zcb"),
              (std::vector<std::string>{"01|2024-11-17|菜|王青|35.5|现金||1", "02|2024-11-17|米|王青|84|现金||2",
                                        "03|2024-11-17|电费|李禾|126.3|建行||3", "04|2024-11-17|书|李禾|74|建行||4",
                                        "05|2024-11-17|药|王青|18.8|现金||5"}));
    EXPECT_EQ(folder.rows("select * from rjb"), std::vector<std::string>{"2024-11-18|不用鼠标的一晚"});
    EXPECT_TRUE(folder.has("evening.dat"));
}
