#include "household.h"

#include <gtest/gtest.h>

using namespace whole;

namespace {

const std::vector<std::string> boxes{purge::Kind[0], purge::Kind[1], purge::Kind[2],
                                     purge::Kind[3], purge::Kind[5], purge::Plans};
/// The days of the rows in each dated table, in one row.
const std::string days = "select (select group_concat(时间) from srb), (select group_concat(时间) from zcb), "
                         "(select group_concat(日期) from jrb), (select group_concat(日期) from jcb), "
                         "(select group_concat(预算时间) from ysb), (select group_concat(日程日期) from rcb)";
const Message question{"是否确定清空选择的记录？", "提示", Message::Question, {"是", "否"}};

/// A row the day before the tenth of November, one on it, one the day after, in each table.
void fillTables(const LedgerFolder& folder) {
    for (const std::string day : {"'2024-11-09'", "'2024-11-10'", "'2024-11-11'"})
        folder.execute("insert into srb values('1'," + day + ",'工资','王青',100,'建行','',1);" +
                       "insert into zcb values('1'," + day + ",'买菜','王青',20,'现金','',1);" +
                       "insert into jrb values('建行'," + day + ",1,1,1,'甲','乙','',1);" +
                       "insert into jcb values('建行'," + day + ",1,1,1,'甲','乙','',1);" + "insert into ysb values(" +
                       day + ",'春耕',1,'',1);" + "insert into rcb values(" + day + ",1," + day +
                       ",'8:05','晒谷','音乐1',1);" +
                       "insert into zhb(账户名称,起始金额,收入,支出,借入,借出,转入,转出,余额,备注信息,区别) "
                       "values('工资卡',1,0,0,0,0,0,0,1,'',1);");
}

void openPurge(Program& program) {
    program.click(pages::Settings);
    program.click(settings::Purge);
    program.waitForKeyboard(forms::Purge);
}

/// Presses 开始删除, says yes, and reads the messages that follow.
void startPurge(Program& program, const std::vector<std::string>& told) {
    program.click(purge::Start);
    EXPECT_EQ(program.message(), question);
    EXPECT_GT(program.place("QMessageBox").top(), program.place(purge::Records).bottom()); // below what it asks about
    program.answer("是");
    for (const std::string& text : told) {
        EXPECT_EQ(program.message(), (Message{text, "提示", Message::Information, {"确定"}}));
        program.answer("确定");
    }
    EXPECT_FALSE(program.showsMessage());
}

} // namespace

TEST(Purge, WhatIsOldGoesUpToAndWithTheDayThatIsPicked) {
    const LedgerFolder folder;
    fillTables(folder);
    {
        Program program(folder);
        signIn(program);
        EXPECT_EQ(program.text(desktop::Income), "300.00元");
        openPurge(program);
        for (const std::string& box : boxes)
            program.click(box);
        program.click(purge::Date);
        pickDay(program, 10);
        EXPECT_EQ(program.text(purge::Date), "2024-11-10");
        EXPECT_FALSE(program.get(purge::Date, "enabled").toBool());
        EXPECT_EQ(program.windows().size(), 2u); // the picker has gone
        startPurge(program, {"收入记录已清空！", "支出记录已清空！", "借入记录已清空", "借出记录已清空",
                             "预算记录已清空", "日程记录已清空"});
        startPurge(program, {"当前收入记录为空！", "当前支出记录为空！", "当前借入记录为空！", "当前借出记录为空！",
                             "当前预算记录为空！", "当前日程记录为空！"});
        program.close(forms::Purge);
        EXPECT_FALSE(program.get(settings::Purge, "checked").toBool());
        EXPECT_EQ(program.text(desktop::Income), "300.00元"); // as it was at the sign-in
        endByCross(program);
    }
    EXPECT_EQ(folder.rows(days),
              std::vector<std::string>{"2024-11-11|2024-11-11|2024-11-11|2024-11-11|2024-11-11|2024-11-11"});
    EXPECT_EQ(folder.rows("select count(*) from zhb"), std::vector<std::string>{"3"});

    Program program(folder);
    signIn(program);
    EXPECT_EQ(program.text(desktop::Income), "100.00元");
    endByCross(program);
}

TEST(Purge, AccountsGoAltogetherAndNeedNoDate) {
    const LedgerFolder folder;
    fillTables(folder);
    Program program(folder);
    signIn(program);
    openPurge(program);
    program.click(purge::Kind[0]);
    program.click(purge::Kind[4]);
    EXPECT_FALSE(program.shows(purge::Date));
    program.click(purge::Start);
    program.answer("否");
    EXPECT_FALSE(program.showsMessage());
    startPurge(program, {"请选择日期！", "账户记录已清空"});
    program.click(purge::Kind[4]);
    EXPECT_TRUE(program.shows(purge::Date));
    EXPECT_EQ(program.text(purge::Date), "");
    program.click(pages::Desktop);
    EXPECT_EQ(program.windows(), std::vector<std::string>{forms::Main});
    endByCross(program);
    EXPECT_EQ(folder.rows("select (select count(*) from zhb), (select count(*) from srb)"),
              std::vector<std::string>{"0|3"});
}

TEST(Purge, ADateThatIsNoneIsToldAndNothingIsLost) {
    const LedgerFolder folder;
    fillTables(folder);
    const std::vector<std::string> before = folder.rows(days);
    Program program(folder);
    signIn(program);
    openPurge(program);
    program.click(purge::Kind[0]);
    program.click(purge::Date);
    program.waitFor(forms::DatePicker);
    program.type("abc'");
    program.click(purge::Start);
    program.answer("是");
    expectErrorWindow(program, "“abc'”不是日期，日期应写成 2024-5-3 的样子");
    EXPECT_EQ(folder.rows(days), before);
}
