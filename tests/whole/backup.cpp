#include "display_pointer.h"
#include "household.h"

#include <gtest/gtest.h>

using namespace whole;

namespace {

const Message whereTo{"请指定数据库备份的位置。", "备份提示", Message::None, {"确定", "取消"}};
const Message whereFrom{"请指定要还原的数据库备份文件所在的位置。", "还原提示", Message::None, {"确定", "取消"}};

void openWindow(Program& program, const std::string& option) {
    program.click(pages::Settings);
    program.click(option);
    program.waitForKeyboard(forms::Backup);
}

/// Presses the window's button and gives the file when asked.
void copy(Program& program, const Message& question, const std::string& file, const std::string& done) {
    program.click(backup::Start);
    EXPECT_EQ(program.message(), question);
    program.answer("确定");
    program.choose(file);
    EXPECT_EQ(program.message(), (Message{done, "青禾家庭记账本", Message::None, {"确定"}}));
    program.answer("确定");
}

/// The ledger as it was when the diary had an entry more, in a file that can be restored.
std::string storeOlder(const LedgerFolder& folder) {
    folder.execute("delete from srflb; insert into srflb values('工资','奖金','jj');"
                   "insert into jcb values('现金','2024-11-02',800,795,5,'王青','李禾','买书',1);"
                   "insert into ysb values('2024-11-20','买米',120,'两袋',1);"
                   "insert into zhb(账户名称,起始金额,收入,支出,借入,借出,转入,转出,余额,备注信息,区别) "
                   "values('工资卡',1000,300,100,0,0,60,10,1250,'每月发',1);"
                   "insert into rjb values('2024-11-17','秋收')");
    QByteArray open = folder.bytes("data.dll");
    open.replace(1, 2, QByteArray("\x01\x00", 2)); // as the running program has it
    folder.write("older.dat", open);
    folder.execute("delete from rjb");
    return folder.file("older.dat").toStdString();
}

struct PageInFront {
    std::vector<std::string> opening; ///< the clicks that bring it up
    std::string grid;
    std::string caption; ///< of the column whose first cell is written over
    std::string saving;
};

/// Restores while the page is in front, then writes a cell over and saves; the restored file has it.
void expectEditedAfterARestore(const PageInFront& page, const std::string& query) {
    const LedgerFolder folder;
    const std::string older = storeOlder(folder);
    Program program(folder);
    signIn(program);
    openWindow(program, settings::Restore);
    for (const std::string& control : page.opening)
        program.click(control);
    copy(program, whereFrom, older, "还原完毕。");
    display_pointer::click(program.cellPlace(page.grid, 1, column(program, page.grid, page.caption)).center());
    program.waitForKeyboard(forms::Main); // which the other window had
    enter(program, "还原以后");
    save(program, page.saving);
    program.close(forms::Backup);
    endByCross(program);
    EXPECT_EQ(folder.rows(query), std::vector<std::string>{"还原以后"});
    EXPECT_EQ(folder.rows("select 日记标题 from rjb"), std::vector<std::string>{"秋收"});
    EXPECT_EQ(folder.rows("pragma integrity_check")[0], "ok");
}

} // namespace

TEST(Backup, WhatWasBackedUpComesBack) {
    const LedgerFolder folder;
    folder.execute("insert into ysb values('2024-11-20','买米',120,'',1),('2024-11-21','买盐',6,'',2)");
    const std::string file = folder.beside("十一月.dat").toStdString();
    Program program(folder);
    signIn(program);
    openWindow(program, settings::Backup);
    copy(program, whereTo, file, "备份完成。");
    program.close(forms::Backup);

    program.click(pages::Budget);
    program.clickCell(budget::Grid, 1, 2);
    remove(program, budget::Remove);
    waitForRows(program, budget::Grid, {"2024-11-21|买盐|6|"});

    openWindow(program, settings::Restore);
    EXPECT_EQ(program.text(backup::Start), "开始还原");
    copy(program, whereFrom, file, "还原完毕。");
    program.click(pages::Budget);
    waitForRows(program, budget::Grid, {"2024-11-20|买米|120|", "2024-11-21|买盐|6|"});
    endByCross(program);
    EXPECT_EQ(folder.header(), "00 00");
    EXPECT_EQ(folder.rows("select 预算项目 from ysb"), (std::vector<std::string>{"买米", "买盐"}));
    EXPECT_EQ(folder.rows("pragma integrity_check")[0], "ok");
}

TEST(Backup, ABackupMadeHereOpensInAnotherFolder) {
    const LedgerFolder folder, other;
    folder.execute("insert into ysb values('2024-11-20','买米',120,'',1)");
    {
        Program program(folder);
        signIn(program);
        openWindow(program, settings::Backup);
        copy(program, whereTo, other.file("data.dll").toStdString(), "备份完成。");
        program.kill();
    }
    Program program(other);
    signIn(program);
    program.click(pages::Budget);
    waitForRows(program, budget::Grid, {"2024-11-20|买米|120|"});
    endByCross(program);
}

TEST(Backup, ACopyOfTheClosedLedgerIsReadAfterTheNextStart) {
    const LedgerFolder folder;
    folder.execute("insert into ysb values('2024-11-20','买米',120,'',1)");
    const QByteArray closed = folder.bytes("data.dll");
    folder.execute("delete from ysb");
    folder.write("closed.dat", closed);
    {
        Program program(folder);
        signIn(program);
        openWindow(program, settings::Restore);
        copy(program, whereFrom, folder.file("closed.dat").toStdString(), "还原完毕。");
        program.click(pages::Budget);
        expectErrorWindow(program, "请重新启动程序");
    }
    Program program(folder);
    signIn(program);
    program.click(pages::Budget);
    waitForRows(program, budget::Grid, {"2024-11-20|买米|120|"});
    endByCross(program);
}

TEST(Backup, AFileThatIsNotThereIsTold) {
    const LedgerFolder folder;
    Program program(folder);
    signIn(program);
    openWindow(program, settings::Restore);
    const QByteArray before = folder.bytes("data.dll");
    program.click(backup::Start);
    program.answer("确定");
    program.choose(folder.beside("没有.dat").toStdString());
    expectErrorWindow(program, "没有.dat");
    EXPECT_EQ(folder.bytes("data.dll"), before);
}

TEST(Backup, LoansInFrontAreSavedIntoTheRestoredFile) {
    expectEditedAfterARestore({{pages::Loans}, loans::Grid, "备注", loans::Save}, "select 备注 from jcb");
}

TEST(Backup, TheBudgetInFrontIsSavedIntoTheRestoredFile) {
    expectEditedAfterARestore({{pages::Budget}, budget::Grid, "备注", budget::Save}, "select 备注 from ysb");
}

TEST(Backup, AccountsInFrontAreSavedIntoTheRestoredFile) {
    expectEditedAfterARestore({{pages::Accounts}, accounts::Grid, "备注信息", accounts::Save},
                              "select 备注信息 from zhb");
}

TEST(Backup, CategoriesInFrontAreSavedIntoTheRestoredFile) {
    expectEditedAfterARestore(
        {{pages::Settings, settings::Categories}, categories::Majors, "收入大类", categories::SaveMajors},
        "select 收入大类 from srflb");
}
